#include "ModalAnswerer.h"
#include "WindowChecks.h"

#include "canvas/CanvasWidget.h"
#include "introduction/OptionsWidgets.h"
#include "introduction/RunControl.h"
#include "introduction/frmCollisionOptions.h"
#include "introduction/frmIntroduction.h"
#include "microview/frmLGOptions.h"
#include "model/CollisionSetup.h"
#include "shell/Forms.h"
#include "shell/GlobDef.h"
#include "shell/MDIMain.h"

#include <QEventLoop>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QtTest>

namespace {

frmIntroduction& intro()
{
    return Form<frmIntroduction>();
}

QPushButton* button(int index)
{
    return intro().findChild<QPushButton*>(OptionsWidgets::indexedName("cmdCommand", index));
}

void goTo(int unit, int page)
{
    for (auto [name, value] : {std::pair{"txtUnit", unit}, std::pair{"txtPage", page}}) {
        auto* box = intro().findChild<QLineEdit*>(name);
        box->selectAll();
        QTest::keyClicks(box, QString::number(value));
    }
    button(6)->click();
}

CollisionState& state()
{
    return intro().Experiment().State();
}

// Runs ticks directly until the run stops by itself; returns how many it took.
int runToTheEnd(float& lastTime)
{
    RunControl& run = intro().Run();
    int ticks = 0;
    while (run.Timer1().isActive() && ticks < 1000) {
        lastTime = state().SimulationTime + state().TimeStep;
        run.Timer1_Timer();
        ++ticks;
    }
    return ticks;
}

QString captions()
{
    return button(8)->text() + "/" + button(9)->text();
}

void clickPicture(Qt::MouseButton which, float twipsY)
{
    auto* picture = intro().findChild<CanvasWidget*>("picIntroduction");
    QTest::mouseClick(picture, which, {}, QPoint(100, int(twipsY / 15)));
}

} // namespace

class IntroductionRunTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aDefaultRunStopsByItselfAtTheEnd();
    void theTimerRunsTheExperimentOnItsOwn();
    void pauseStepNextAndRestoreActOnTheClock();
    void theDelayBarSetsTheTickInterval();
    void aFailedCheckSaysWhyAndBlocksTheRun();
    void clicksZoomTheGraphsAfterARun();
    void exitDuringARunClosesTheWindow();
    void optionsOpensTheDialogOfThePage();
};

void IntroductionRunTest::init()
{
    ShowMainWindow();
    Form<MDIMain>().ShowChild(&intro());
    QVERIFY(QTest::qWaitForWindowExposed(&intro()));
}

void IntroductionRunTest::cleanup()
{
    QCOMPARE(closeLeftoverWindows(), 1); // the main frame that holds the introduction
    QVERIFY(!IsLoaded<frmIntroduction>());
}

void IntroductionRunTest::aDefaultRunStopsByItselfAtTheEnd()
{
    goTo(3, 2);
    QVERIFY(button(5)->isEnabled());
    QCOMPARE(state().ContactStart, 1.6f);
    button(5)->click();
    QVERIFY(intro().Run().Timer1().isActive());
    for (int i = 1; i <= 7; ++i)
        QVERIFY2(!button(i)->isEnabled(), qPrintable(QString::number(i)));
    QVERIFY(button(0)->isEnabled() && button(8)->isEnabled() && button(9)->isEnabled());

    float lastTime = 0;
    const int ticks = runToTheEnd(lastTime);
    QVERIFY(ticks == 100 || ticks == 101);
    QVERIFY(qAbs(lastTime - 3.2f) < 0.04f);
    QCOMPARE(state().SimulationTime, 0.0f);
    QVERIFY(intro().Run().RunCompleted());
    QVERIFY(!button(5)->isEnabled() && !button(8)->isEnabled() && !button(9)->isEnabled());
    QCOMPARE(button(5)->text(), QString("Simulation"));
    for (int i : {1, 2, 3, 4, 6, 7})
        QVERIFY(button(i)->isEnabled());

    // Go To sets the page up again, and its check offers a new run.
    button(6)->click();
    QVERIFY(button(5)->isEnabled());
    QVERIFY(!intro().Run().RunCompleted());
}

void IntroductionRunTest::theTimerRunsTheExperimentOnItsOwn()
{
    goTo(3, 1);
    button(5)->click();
    QEventLoop loop;
    QTimer poll;
    connect(&poll, &QTimer::timeout, &loop, [&] {
        if (!intro().Run().Timer1().isActive())
            loop.quit();
    });
    poll.start(20);
    QTimer::singleShot(10000, &loop, &QEventLoop::quit);
    loop.exec();
    QVERIFY(!intro().Run().Timer1().isActive());
    QVERIFY(intro().Run().RunCompleted());
    QVERIFY(!button(5)->isEnabled());
}

void IntroductionRunTest::pauseStepNextAndRestoreActOnTheClock()
{
    goTo(3, 2);
    RunControl& run = intro().Run();
    button(5)->click();
    QCOMPARE(captions(), QString("Pause/Step"));
    for (int i = 0; i < 10; ++i)
        run.Timer1_Timer();
    const float step = state().TimeStep;
    const float atPause = state().SimulationTime;

    button(8)->click();
    QVERIFY(!run.Timer1().isActive());
    QCOMPARE(captions(), QString("Continue/Step"));
    QCOMPARE(RunControl::HintFor(8, button(8)->text()), QString("Resume simulation"));
    button(8)->click();
    QVERIFY(run.Timer1().isActive());
    QCOMPARE(captions(), QString("Pause/Step"));
    QCOMPARE(state().SimulationTime, atPause);

    button(9)->click();
    QVERIFY(!run.Timer1().isActive());
    QCOMPARE(captions(), QString("Next/Restore"));
    QCOMPARE(RunControl::HintFor(9, button(9)->text()), QString("Deactivate step by step simulation"));
    button(8)->click();
    QCOMPARE(state().SimulationTime, atPause + step);
    QVERIFY(!run.Timer1().isActive());
    button(9)->click();
    QVERIFY(run.Timer1().isActive());
    QCOMPARE(captions(), QString("Pause/Step"));

    // A run that ends while stepping keeps "Next" and "Restore" on the buttons.
    button(9)->click();
    while (button(8)->isEnabled())
        button(8)->click();
    QCOMPARE(captions(), QString("Next/Restore"));
    QVERIFY(run.RunCompleted());
    QCOMPARE(state().SimulationTime, 0.0f);
}

void IntroductionRunTest::theDelayBarSetsTheTickInterval()
{
    auto* delay = intro().findChild<QScrollBar*>("HScrSimulationDelay");
    QCOMPARE(delay->value(), 1);
    QCOMPARE(intro().Run().Timer1().interval(), 10);
    const int expected[] = {10, 40, 90, 160, 250};
    for (int value = 5; value >= 1; --value) {
        delay->setValue(value);
        QCOMPARE(intro().Run().Timer1().interval(), expected[value - 1]);
    }
}

void IntroductionRunTest::aFailedCheckSaysWhyAndBlocksTheRun()
{
    goTo(3, 2);
    {
        ModalAnswerer answerer;
        CollisionSetup::global().Ux[1] = -100;
        button(6)->click();
        QCOMPARE(answerer.count(), 1);
        QCOMPARE(answerer.title(), QString("Simulation Results"));
        QCOMPARE(answerer.text(),
            QString("Attention!\rInitial positions and velocities lead to increasing distance of bodies. Please "
                    "try again with different parameters by clicking on the button \"Options\"."));
        QCOMPARE(answerer.icon(), QMessageBox::Critical);
        QVERIFY(!button(5)->isEnabled());
    }
    // Equal velocities meet nowhere: the learner is told so as well.
    ModalAnswerer answerer;
    CollisionSetup::global().Ux[1] = 50;
    button(6)->click();
    QCOMPARE(answerer.count(), 1);
    QVERIFY(answerer.text().contains("x components of velocity are equal"));
    QVERIFY(!button(5)->isEnabled());
}

void IntroductionRunTest::clicksZoomTheGraphsAfterARun()
{
    goTo(3, 2);
    CollisionGraphs& graphs = intro().Experiment().Graphs();
    QCOMPARE(graphs.GraphCount, int16_t(3));
    const float middleOfPanel2 = (graphs.PanelTop[2] + graphs.PanelBottom[2]) / 2;
    clickPicture(Qt::LeftButton, middleOfPanel2);
    QCOMPARE(graphs.GraphZoomed, int16_t(0));

    button(5)->click();
    float lastTime = 0;
    runToTheEnd(lastTime);
    clickPicture(Qt::LeftButton, middleOfPanel2);
    QCOMPARE(graphs.GraphZoomed, int16_t(1));
    QCOMPARE(graphs.SelectedGraph, int16_t(2));
    QCOMPARE(graphs.GraphTimeMax[4], 3.2f);

    clickPicture(Qt::RightButton, 0);
    QVERIFY(graphs.ContactZoom);
    QVERIFY(qAbs(graphs.GraphTimeMin[4] - (1.6f - 6 * state().TimeStep)) < 1e-4f);
    QVERIFY(qAbs(graphs.GraphTimeMax[4] - (1.6f + 18 * state().TimeStep)) < 1e-4f);
    clickPicture(Qt::RightButton, 0);
    QVERIFY(!graphs.ContactZoom);
    QCOMPARE(graphs.GraphZoomed, int16_t(1));
    QCOMPARE(graphs.GraphTimeMax[4], 3.2f);

    clickPicture(Qt::LeftButton, 0);
    QCOMPARE(graphs.GraphZoomed, int16_t(0));
    // Between the panels there is nothing to enlarge.
    clickPicture(Qt::LeftButton, 4800);
    QCOMPARE(graphs.GraphZoomed, int16_t(0));
}

void IntroductionRunTest::exitDuringARunClosesTheWindow()
{
    goTo(3, 1);
    button(5)->click();
    intro().Run().Timer1_Timer();
    button(0)->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!IsLoaded<frmIntroduction>());
    Form<MDIMain>().ShowChild(&intro());
    QCOMPARE(intro().CurrentUnit(), int16_t(1));
    QVERIFY(!intro().Run().Timer1().isActive());
}

void IntroductionRunTest::optionsOpensTheDialogOfThePage()
{
    QStringList titles;
    ModalAnswerer answerer([&](QWidget* modal) {
        titles << modal->windowTitle();
        if (auto* mass = modal->findChild<QLineEdit*>("txtm(0)")) {
            mass->selectAll();
            QTest::keyClicks(mass, "20");
        }
        modal->findChild<QPushButton*>("cmdCommand(0)")->click();
    });
    goTo(3, 2);
    button(7)->click();
    QCOMPARE(CollisionSetup::global().Page, int16_t(2));
    QCOMPARE(CollisionSetup::global().Mass[1], int16_t(20));
    QVERIFY(button(5)->isEnabled());
    QCOMPARE(intro().CurrentPage(), int16_t(2));

    goTo(2, 8);
    button(7)->click();
    QCOMPARE(CollisionSetup::global().Page, int16_t(8));
    goTo(4, 1);
    button(7)->click();
    QCOMPARE(titles, QStringList({"Παράμετροι Ελαστικής Κρούσης", "Parameters of Gas Molecules"}));
    QVERIFY(!IsLoaded<frmCollisionOptions>() && !IsLoaded<frmLGOptions>());
}

QTEST_MAIN(IntroductionRunTest)
#include "tst_introduction_run.moc"
