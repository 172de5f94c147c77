#include "core/ProgramFiles.h"

#include <QtTest>

// The program finds its files beside its executable in the build tree and in
// ../share/floatrix when installed.
class ProgramFilesTest : public QObject
{
    Q_OBJECT

private slots:
    void findsFilesBesideOrInstalled_data();
    void findsFilesBesideOrInstalled();
    void theRunningProgramReadsFromItsOwnFolder();
};

void ProgramFilesTest::findsFilesBesideOrInstalled_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("expected");

    QTest::newRow("build tree") << QStringList{"bin/pot_t1.bmp"} << "bin";
    QTest::newRow("installed") << QStringList{"share/floatrix/pot_t1.bmp"} << "share/floatrix";
    QTest::newRow("beside wins over installed") << QStringList{"bin/pot_t1.bmp", "share/floatrix/pot_t1.bmp"} << "bin";
    QTest::newRow("missing, installed folder there") << QStringList{"share/floatrix/other.bmp"} << "share/floatrix";
    QTest::newRow("missing, nothing installed") << QStringList{} << "bin";
}

void ProgramFilesTest::findsFilesBesideOrInstalled()
{
    QFETCH(QStringList, files);
    QFETCH(QString, expected);
    QTemporaryDir prefix;
    QVERIFY(prefix.isValid());
    const QDir root(prefix.path());
    QVERIFY(root.mkpath("bin"));
    for (const QString& file : files) {
        QVERIFY(root.mkpath(QFileInfo(file).path()));
        QFile touched(root.filePath(file));
        QVERIFY(touched.open(QIODevice::WriteOnly));
    }
    QCOMPARE(ProgramFiles::folderFrom(root.filePath("bin"), "pot_t1.bmp"), root.filePath(expected));
}

void ProgramFilesTest::theRunningProgramReadsFromItsOwnFolder()
{
    // The build copies the pictures beside every program, the tests included.
    const QString own = QCoreApplication::applicationDirPath();
    QCOMPARE(ProgramFiles::folder("pot_t2.bmp"), own);
    QCOMPARE(ProgramFiles::path("floatrixo.avi"), own + "/floatrixo.avi");
}

QTEST_GUILESS_MAIN(ProgramFilesTest)
#include "tst_programfiles.moc"
