#include "core/ProgramFiles.h"

#include <QtTest>

namespace {

// An empty file at each path under root, and an empty bin/ for the executable.
bool createFiles(const QDir& root, const QStringList& files)
{
    if (!root.mkpath("bin"))
        return false;
    for (const QString& file : files) {
        QFile touched(root.filePath(file));
        if (!root.mkpath(QFileInfo(file).path()) || !touched.open(QIODevice::WriteOnly))
            return false;
    }
    return true;
}

} // namespace

// The program finds its files beside its executable in the build tree and in
// ../share/floatrix when installed.
class ProgramFilesTest : public QObject
{
    Q_OBJECT

private slots:
    void findsFilesBesideOrInstalled_data();
    void findsFilesBesideOrInstalled();
    void theRunningProgramReadsFromItsOwnFolder();
    void choosesTheFinerDrawingForTheScreen_data();
    void choosesTheFinerDrawingForTheScreen();
};

// A picture is sought as a folder, the film player as the path of the program.
void ProgramFilesTest::findsFilesBesideOrInstalled_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("expected");

    QTest::newRow("build tree") << "pot_t1.bmp" << QStringList{"bin/pot_t1.bmp"} << "bin";
    QTest::newRow("installed") << "pot_t1.bmp" << QStringList{"share/floatrix/pot_t1.bmp"} << "share/floatrix";
    QTest::newRow("beside wins over installed")
        << "pot_t1.bmp" << QStringList{"bin/pot_t1.bmp", "share/floatrix/pot_t1.bmp"} << "bin";
    QTest::newRow("missing, installed folder there")
        << "pot_t1.bmp" << QStringList{"share/floatrix/other.bmp"} << "share/floatrix";
    QTest::newRow("missing, nothing installed") << "pot_t1.bmp" << QStringList{} << "bin";

    const QString player = "floatrix-film";
    QTest::newRow("player in the build tree") << player << QStringList{"bin/floatrix-film"} << "bin/floatrix-film";
    QTest::newRow("player installed")
        << player << QStringList{"libexec/floatrix/floatrix-film"} << "libexec/floatrix/floatrix-film";
    QTest::newRow("player beside wins")
        << player << QStringList{"bin/floatrix-film", "libexec/floatrix/floatrix-film"} << "bin/floatrix-film";
    QTest::newRow("player missing") << player << QStringList{"share/floatrix/floatrixo.avi"} << "bin/floatrix-film";
}

void ProgramFilesTest::findsFilesBesideOrInstalled()
{
    QFETCH(QString, name);
    QFETCH(QStringList, files);
    QFETCH(QString, expected);
    QTemporaryDir prefix;
    QVERIFY(prefix.isValid());
    const QDir root(prefix.path());
    QVERIFY(createFiles(root, files));
    const QString bin = root.filePath("bin");
    const QString found = name.endsWith(".bmp") ? ProgramFiles::folderFrom(bin, name)
                                                : ProgramFiles::helperProgramFrom(bin, name);
    QCOMPARE(found, root.filePath(expected));
}

void ProgramFilesTest::theRunningProgramReadsFromItsOwnFolder()
{
    // The build copies the pictures beside every program, the tests included.
    const QString own = QCoreApplication::applicationDirPath();
    QCOMPARE(ProgramFiles::folder("pot_t2.bmp"), own);
    QCOMPARE(ProgramFiles::path("floatrixo.avi"), own + "/floatrixo.avi");
}

// A high-density screen gets the least fine drawing that is at least as fine as it,
// else the finest there is; a plain screen none.
void ProgramFilesTest::choosesTheFinerDrawingForTheScreen_data()
{
    QTest::addColumn<QList<int>>("drawn");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<int>("factor"); // 0 for none

    QTest::newRow("plain screen") << QList<int>{2, 3} << 1.0 << 0;
    QTest::newRow("barely above plain") << QList<int>{2, 3} << 1.005 << 0;
    QTest::newRow("one and a half") << QList<int>{2, 3} << 1.5 << 2;
    QTest::newRow("double") << QList<int>{2, 3} << 2.0 << 2;
    QTest::newRow("two and a half") << QList<int>{2, 3} << 2.5 << 3;
    QTest::newRow("beyond the finest") << QList<int>{2, 3} << 4.0 << 3;
    QTest::newRow("double, only @3x") << QList<int>{3} << 2.0 << 3;
    QTest::newRow("triple, only @2x") << QList<int>{2} << 3.0 << 2;
    QTest::newRow("none drawn") << QList<int>{} << 2.0 << 0;
}

void ProgramFilesTest::choosesTheFinerDrawingForTheScreen()
{
    QFETCH(QList<int>, drawn);
    QFETCH(double, ratio);
    QFETCH(int, factor);
    QTemporaryDir folder;
    const QDir root(folder.path());
    for (int made : drawn) {
        QFile file(root.filePath(QString("pot_t1@%1x.png").arg(made)));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    const ProgramFiles::SharperPicture sharper = ProgramFiles::sharperPicture(root.filePath("pot_t1.bmp"), ratio);
    QCOMPARE(sharper.factor, factor ? factor : 1);
    QCOMPARE(sharper.path, factor ? root.filePath(QString("pot_t1@%1x.png").arg(factor)) : QString());
}

QTEST_GUILESS_MAIN(ProgramFilesTest)
#include "tst_programfiles.moc"
