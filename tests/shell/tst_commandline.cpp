#include "shell/CommandLine.h"
#include "shell/ProgramLanguage.h"

#include <QtTest>

// The command line: options read into what the program does, and the built program
// answering --help, --version and mistakes without opening a window.
class CommandLineTest : public QObject
{
    Q_OBJECT

private slots:
    void readsOptions_data();
    void readsOptions();
    void refusesMistakesInOneLine_data();
    void refusesMistakesInOneLine();
    void scaleIsHandedToTheToolkit();
    void catalogueTranslatesAndNoLanguageLoadsNone();
    void builtProgramAnswersWithoutStarting_data();
    void builtProgramAnswersWithoutStarting();
};

using Outcome = CommandLineOptions::Outcome;

void CommandLineTest::readsOptions_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<Outcome>("outcome");
    QTest::addColumn<QString>("language");
    QTest::addColumn<double>("scale");

    QTest::newRow("nothing") << QStringList{} << Outcome::Run << "" << 0.0;
    QTest::newRow("greek") << QStringList{"--lang", "el"} << Outcome::Run << "el" << 0.0;
    QTest::newRow("english, joined") << QStringList{"--lang=en"} << Outcome::Run << "en" << 0.0;
    QTest::newRow("scale 2") << QStringList{"--scale", "2"} << Outcome::Run << "" << 2.0;
    QTest::newRow("scale limits") << QStringList{"--scale", "1", "--scale", "3"} << Outcome::Run << "" << 3.0;
    QTest::newRow("scale and language") << QStringList{"--scale=1.5", "--lang", "el"} << Outcome::Run << "el" << 1.5;
    QTest::newRow("toolkit options pass")
        << QStringList{"-platform", "offscreen", "-reverse", "-style=fusion"} << Outcome::Run << "" << 0.0;
    QTest::newRow("help") << QStringList{"--help"} << Outcome::ShowHelp << "" << 0.0;
    QTest::newRow("short help") << QStringList{"-h"} << Outcome::ShowHelp << "" << 0.0;
    QTest::newRow("version") << QStringList{"--version"} << Outcome::ShowVersion << "" << 0.0;
    QTest::newRow("short version") << QStringList{"-v"} << Outcome::ShowVersion << "" << 0.0;
}

void CommandLineTest::readsOptions()
{
    QFETCH(QStringList, arguments);
    QFETCH(Outcome, outcome);
    const CommandLineOptions options = CommandLine::parse(QStringList{"/usr/bin/floatrix"} + arguments);
    QCOMPARE(options.outcome, outcome);
    QTEST(options.language, "language");
    QTEST(options.scale, "scale");
}

void CommandLineTest::refusesMistakesInOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("names");

    QTest::newRow("unknown option") << QStringList{"--colour"} << "colour";
    QTest::newRow("unknown short option") << QStringList{"-x"} << "'x'";
    QTest::newRow("toolkit's help is not offered") << QStringList{"--help-all"} << "'help-all'";
    QTest::newRow("language not offered") << QStringList{"--lang", "fr"} << "'fr'";
    QTest::newRow("language missing") << QStringList{"--lang"} << "lang";
    QTest::newRow("scale too small") << QStringList{"--scale", "0.5"} << "'0.5'";
    QTest::newRow("scale too large") << QStringList{"--scale", "3.01"} << "'3.01'";
    QTest::newRow("scale not a number") << QStringList{"--scale", "big"} << "'big'";
    QTest::newRow("scale with a comma") << QStringList{"--scale", "1,5"} << "'1,5'";
    QTest::newRow("scale not finite") << QStringList{"--scale", "nan"} << "'nan'";
    QTest::newRow("argument") << QStringList{"lesson.txt"} << "'lesson.txt'";
    QTest::newRow("mistake after a good option") << QStringList{"--lang", "el", "--scale", "9"} << "'9'";
}

void CommandLineTest::refusesMistakesInOneLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, names);
    const CommandLineOptions options = CommandLine::parse(QStringList{"/usr/bin/floatrix"} + arguments);
    QCOMPARE(options.outcome, Outcome::Refuse);
    QVERIFY2(options.text.startsWith("floatrix: "), qPrintable(options.text));
    QVERIFY2(options.text.contains(names), qPrintable(options.text));
    QVERIFY(!options.text.contains('\n'));
}

void CommandLineTest::scaleIsHandedToTheToolkit()
{
    const QByteArray before = qgetenv("QT_SCALE_FACTOR");
    qunsetenv("QT_SCALE_FACTOR");
    CommandLine::applyScale(CommandLine::parse({"floatrix"}));
    QVERIFY(!qEnvironmentVariableIsSet("QT_SCALE_FACTOR"));
    CommandLine::applyScale(CommandLine::parse({"floatrix", "--scale", "2.5"}));
    QCOMPARE(qgetenv("QT_SCALE_FACTOR"), QByteArray("2.5"));
    qputenv("QT_SCALE_FACTOR", before);
    if (before.isEmpty())
        qunsetenv("QT_SCALE_FACTOR");
}

void CommandLineTest::catalogueTranslatesAndNoLanguageLoadsNone()
{
    QVERIFY(ProgramLanguage::load(QString()));
    QCOMPARE(QCoreApplication::translate("frmMicroView", "Simulate"), QString("Simulate"));
    QVERIFY(ProgramLanguage::load("el"));
    QCOMPARE(QCoreApplication::translate("frmMicroView", "Simulate"), QString("Προσομοίωση"));
}

void CommandLineTest::builtProgramAnswersWithoutStarting_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("out");
    QTest::addColumn<QString>("err");

    QTest::newRow("version") << QStringList{"--version"} << 0 << "Floatrix 1."
                             << "";
    QTest::newRow("help") << QStringList{"--help"} << 0 << "--lang <el|en>"
                          << "";
    QTest::newRow("unknown") << QStringList{"--bogus"} << 2 << ""
                             << "floatrix: unknown option 'bogus'";
    QTest::newRow("bad scale") << QStringList{"--scale", "4"} << 2 << ""
                               << "floatrix: --scale takes";
}

void CommandLineTest::builtProgramAnswersWithoutStarting()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QFETCH(QString, out);
    QFETCH(QString, err);
    // The program lives beside the tests; no display is needed for these answers.
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("QT_QPA_PLATFORM");
    environment.remove("DISPLAY");
    program.setProcessEnvironment(environment);
    program.start(QCoreApplication::applicationDirPath() + "/floatrix", arguments);
    QVERIFY(program.waitForFinished(10000));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), exitCode);
    const QString printed = QString::fromLocal8Bit(program.readAllStandardOutput());
    const QString complained = QString::fromLocal8Bit(program.readAllStandardError());
    QVERIFY2(out.isEmpty() ? printed.isEmpty() : printed.contains(out), qPrintable(printed));
    QVERIFY2(err.isEmpty() ? complained.isEmpty() : complained.startsWith(err), qPrintable(complained));
    if (!err.isEmpty())
        QCOMPARE(complained.count('\n'), 1);
}

QTEST_GUILESS_MAIN(CommandLineTest)
#include "tst_commandline.moc"
