#include "shell/GlobDef.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName("Floatrix");
    // The program ends only through the main frame's exit question.
    QApplication::setQuitOnLastWindowClosed(false);
    StartUp();
    return QApplication::exec();
}
