#include "CommandLine.h"

#include "core/ProgramFiles.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QLocale>

#include <cmath>
#include <cstdio>

namespace {

constexpr double SmallestScale = 1;
constexpr double LargestScale = 3;

// The toolkit's own options, which the application object reads and removes: they
// are accepted here so that they keep working, and left out of the help.
struct ToolkitOption
{
    const char* name;
    bool takesValue;
};
constexpr ToolkitOption ToolkitOptions[] = {{"platform", true}, {"platformpluginpath", true}, {"platformtheme", true},
    {"plugin", true}, {"qwindowgeometry", true}, {"qwindowicon", true}, {"qwindowtitle", true}, {"geometry", true},
    {"display", true}, {"title", true}, {"name", true}, {"session", true}, {"style", true}, {"stylesheet", true},
    {"qmljsdebugger", true}, {"reverse", false}, {"widgetcount", false}, {"nograb", false}, {"dograb", false},
    {"sync", false}};

QString programName(const QStringList& arguments)
{
    const QString name = arguments.isEmpty() ? QString() : QFileInfo(arguments.first()).fileName();
    return name.isEmpty() ? QStringLiteral("floatrix") : name;
}

// Where the running executable is; the help names the folder its files are read
// from. Read before the application object exists, so not through it.
QString programFolder()
{
    return QFileInfo(QStringLiteral("/proc/self/exe")).canonicalPath();
}

void addOptions(QCommandLineParser& parser)
{
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(
        QStringLiteral("Floatrix: the physics of the paper hot-air balloon, at the scale of molecules and "
                       "at our own.\nIts pictures and film are read from %1")
            .arg(ProgramFiles::folderFrom(programFolder(), QStringLiteral("pot_t1.bmp"))));
    // Made here rather than by the parser, which would also offer the toolkit's help.
    parser.addOption({{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this help and end.")});
    parser.addOption({{QStringLiteral("v"), QStringLiteral("version")},
        QStringLiteral("Show the program's name and version and end.")});
    parser.addOption({QStringLiteral("lang"),
        QStringLiteral("Show every text in English (en) or in Greek (el); without it the program shows "
                       "its own texts."),
        QStringLiteral("el|en")});
    parser.addOption({QStringLiteral("scale"),
        QStringLiteral("Make every window, text and picture F times as large (1 to 3), for a projector "
                       "or a large screen."),
        QStringLiteral("F")});
    for (const ToolkitOption& toolkit : ToolkitOptions) {
        QCommandLineOption option(QString::fromLatin1(toolkit.name));
        if (toolkit.takesValue)
            option.setValueName(QStringLiteral("value"));
        option.setFlags(QCommandLineOption::HiddenFromHelp);
        parser.addOption(option);
    }
}

CommandLineOptions refused(const QString& program, const QString& problem)
{
    CommandLineOptions options;
    options.outcome = CommandLineOptions::Outcome::Refuse;
    options.text = QStringLiteral("%1: %2 (see %1 --help)").arg(program, problem);
    return options;
}

bool readScale(const QString& text, double& scale)
{
    bool ok = false;
    scale = QLocale::c().toDouble(text, &ok);
    return ok && std::isfinite(scale) && scale >= SmallestScale && scale <= LargestScale;
}

} // namespace

CommandLineOptions CommandLine::parse(const QStringList& arguments)
{
    const QString program = programName(arguments);
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(arguments))
        return refused(program, parser.errorText().toLower().remove('.'));
    if (!parser.positionalArguments().isEmpty())
        return refused(program, QStringLiteral("unexpected argument '%1'").arg(parser.positionalArguments().first()));

    CommandLineOptions options;
    if (parser.isSet(QStringLiteral("help"))) {
        options.outcome = CommandLineOptions::Outcome::ShowHelp;
        options.text = parser.helpText().replace(QStringLiteral("<executable_name>"), program);
        return options;
    }
    if (parser.isSet(QStringLiteral("version"))) {
        options.outcome = CommandLineOptions::Outcome::ShowVersion;
        options.text = QStringLiteral("Floatrix %1\n").arg(QStringLiteral(FLOATRIX_VERSION));
        return options;
    }
    if (parser.isSet(QStringLiteral("lang"))) {
        options.language = parser.value(QStringLiteral("lang"));
        if (options.language != QStringLiteral("el") && options.language != QStringLiteral("en"))
            return refused(program, QStringLiteral("--lang takes el or en, not '%1'").arg(options.language));
    }
    if (parser.isSet(QStringLiteral("scale"))) {
        const QString value = parser.value(QStringLiteral("scale"));
        if (!readScale(value, options.scale))
            return refused(program, QStringLiteral("--scale takes a number from 1 to 3, not '%1'").arg(value));
    }
    return options;
}

QStringList CommandLine::arguments(int argc, char* argv[])
{
    QStringList list;
    for (int i = 0; i < argc; ++i)
        list << QString::fromLocal8Bit(argv[i]);
    return list;
}

int CommandLine::report(const CommandLineOptions& options)
{
    const bool error = options.outcome == CommandLineOptions::Outcome::Refuse;
    const QByteArray text = options.text.toLocal8Bit();
    std::fputs(text.constData(), error ? stderr : stdout);
    if (error)
        std::fputc('\n', stderr);
    return error ? 2 : 0;
}

void CommandLine::applyScale(const CommandLineOptions& options)
{
    if (options.scale > 0)
        qputenv("QT_SCALE_FACTOR", QByteArray::number(options.scale));
}
