#pragma once

#include <QString>
#include <QStringList>

// What the command line asks for. With no option the program starts exactly as
// it always has: no catalogue, no scaling.
struct CommandLineOptions
{
    enum class Outcome
    {
        Run,         // start the program
        ShowHelp,    // print the help text and end
        ShowVersion, // print the name and version and end
        Refuse,      // print the one-line error and end with code 2
    };

    Outcome outcome = Outcome::Run;
    QString language; // "el" or "en"; empty for the program's own texts
    double scale = 0; // 1 to 3; 0 when not asked for
    QString text;     // the help or version text, or the error line
};

// The program's command line: --help, --version, --lang el|en and --scale F.
// The toolkit's own options (-platform, -style...) pass through to it untouched.
class CommandLine
{
public:
    // The options in arguments (the program's name first, as in argv).
    static CommandLineOptions parse(const QStringList& arguments);

    // argv as a list of strings.
    static QStringList arguments(int argc, char* argv[]);

    // Prints the help, the version or the error of a parse that does not run the
    // program; returns the exit code (0, or 2 for an error).
    static int report(const CommandLineOptions& options);

    // Asks the toolkit to scale every window, font and picture; must come before
    // the application object is made.
    static void applyScale(const CommandLineOptions& options);
};
