#include "shell/CommandLine.h"
#include "shell/GlobDef.h"
#include "shell/ProgramLanguage.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    const CommandLineOptions options = CommandLine::parse(CommandLine::arguments(argc, argv));
    if (options.outcome != CommandLineOptions::Outcome::Run)
        return CommandLine::report(options);
    CommandLine::applyScale(options);
    QApplication app(argc, argv);
    QApplication::setApplicationName("Floatrix");
    // Lets the desktop match the windows with the installed desktop file and icon.
    QApplication::setDesktopFileName("org.floatrix.Floatrix");
    // The program ends only through the main frame's exit question.
    QApplication::setQuitOnLastWindowClosed(false);
    ProgramLanguage::load(options.language);
    StartUp();
    return QApplication::exec();
}
