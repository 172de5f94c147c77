#include "RandomInput.h"
#include "WindowChecks.h"

#include "core/ScopedRandomSequence.h"
#include "shell/GlobDef.h"

#include <QtTest>

namespace {

QtMessageHandler testLog = nullptr;

// The offscreen platform says at every raise, mask or size hint that it cannot do
// it; those lines would bury the run's own report.
void dropPlatformLimits(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support")))
        testLog(type, context, message);
}

} // namespace

// The whole program, from its splash on, under a long seeded stream of random user
// input. FLOATRIX_RANDOM_SEED and FLOATRIX_RANDOM_EVENTS choose another run (`make
// random-input` runs a longer one).
class RandomInputTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void programComesThroughRandomInput();
};

void RandomInputTest::cleanup()
{
    closeLeftoverWindows();
}

void RandomInputTest::programComesThroughRandomInput()
{
    const uint32_t seed = qEnvironmentVariableIsSet("FLOATRIX_RANDOM_SEED")
        ? uint32_t(qEnvironmentVariableIntValue("FLOATRIX_RANDOM_SEED"))
        : 20261123u;
    const int events = qEnvironmentVariableIsSet("FLOATRIX_RANDOM_EVENTS")
        ? qEnvironmentVariableIntValue("FLOATRIX_RANDOM_EVENTS")
        : 20000;
    ScopedRandomSequence fixed(double(seed % 30000));
    StartUp();
    RandomInput input(seed, events);
    testLog = qInstallMessageHandler(dropPlatformLimits);
    input.run(60);
    qInstallMessageHandler(testLog);
    for (auto [window, count] : input.windowsVisited().asKeyValueRange())
        qInfo("%s: %d events", qPrintable(window), count);
    QVERIFY2(input.failure().isEmpty(), qPrintable(input.failure()));
    QCOMPARE(input.sent(), events);
}

// QtTest ends a test function after five minutes; a long run takes longer, and the
// run's own watchdog already reports a program that stops answering.
int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QTEST_FUNCTION_TIMEOUT"))
        qputenv("QTEST_FUNCTION_TIMEOUT", QByteArray::number(24 * 3600 * 1000));
    QApplication app(argc, argv);
    RandomInputTest test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_random_input.moc"
