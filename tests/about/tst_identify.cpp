#include "ModalAnswerer.h"
#include "WindowChecks.h"

#include "about/MemoryStatus.h"
#include "about/frmIdentify.h"
#include "core/Twips.h"
#include "shell/Forms.h"
#include "shell/GlobDef.h"
#include "shell/MDIMain.h"

#include <QEventLoop>
#include <QLabel>
#include <QMdiArea>
#include <QPushButton>
#include <QtTest>

namespace {

QWidget* control(const QString& name)
{
    return Form<frmIdentify>().findChild<QWidget*>(name);
}

int panelTop()
{
    return Form<frmIdentify>().FraIdentifyTop();
}

void hover(QWidget* widget)
{
    QMouseEvent move(QEvent::MouseMove, QPointF(5, 5), widget->mapToGlobal(QPointF(5, 5)), Qt::NoButton,
        Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &move);
}

} // namespace

class IdentifyTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void splashSlidesUpRestsAndHandsOver();
    void keysDuringTheSplashShortenIt_data();
    void keysDuringTheSplashShortenIt();
    void splashClosedOtherwiseEndsTheProgram();
    void furtherClicksDoNotPutTheHandOverOff();
    void aboutBoxShowsMemoryAndFramesTheIconOnHover();
    void memoryLineFormat();
};

void IdentifyTest::cleanup()
{
    // Nothing but the main frame the splash hands over to may be left.
    QVERIFY(!IsLoaded<frmIdentify>());
    QVERIFY(closeLeftoverWindows() <= 1);
}

void IdentifyTest::splashSlidesUpRestsAndHandsOver()
{
    StartUp();
    frmIdentify& splash = Form<frmIdentify>();
    QVERIFY(splash.isVisible());
    QCOMPARE(splash.windowTitle(), QString());
    // No caption: no title bar and no border, so the outer height is the visible one.
    QVERIFY(splash.windowFlags().testFlag(Qt::FramelessWindowHint));
    QCOMPARE(splash.frameGeometry().height(), Twips::toPixels(3455));
    QCOMPARE(splash.height(), Twips::toPixels(3455));
    QVERIFY(splash.EffectTimer().isActive());
    QCOMPARE(splash.EffectTimer().interval(), 50);
    // 0.8 of the design inner height, below the part that stays visible.
    QCOMPARE(panelTop(), 3468);
    QVERIFY(control("FraIdentify")->y() >= splash.height());

    // A click on any part of the panel or on the window itself shortens the splash,
    // and the panel stops where it stands.
    int top = 3468;
    for (const char* name : {"frmIdentify", "picAuxiliary", "Picture2", "lblID(0)", "lblID(6)", "lblID(12)"}) {
        splash.setPhase(frmIdentify::SplashPhase::Slide);
        for (int step = 0; step < 8; ++step, top -= 25)
            splash.EffectTimer_Timer();
        QTest::mouseClick(QString(name) == "frmIdentify" ? &splash : control(name), Qt::LeftButton, {}, QPoint(2, 2));
        QCOMPARE(splash.EffectTimer().interval(), 1000);
        QCOMPARE(panelTop(), top);
    }

    splash.setPhase(frmIdentify::SplashPhase::Slide);
    for (; top > 68; top -= 25)
        splash.EffectTimer_Timer();
    QCOMPARE(panelTop(), 68);
    QCOMPARE(control("FraIdentify")->y(), Twips::toPixels(68));
    QCOMPARE(splash.EffectTimer().interval(), 50);
    splash.EffectTimer_Timer();
    QCOMPARE(panelTop(), 50);
    QCOMPARE(splash.EffectTimer().interval(), 1000);
    QVERIFY(!IsLoaded<MDIMain>());

    // The rest is left to the real timer: the splash is still there a moment later
    // and gives way, after its second, to the main frame, shown with no child window
    // and an empty status line.
    QEventLoop moment;
    QTimer::singleShot(200, &moment, &QEventLoop::quit);
    moment.exec();
    QVERIFY(IsLoaded<frmIdentify>());
    QTRY_VERIFY_WITH_TIMEOUT(!IsLoaded<frmIdentify>(), 3000);
    QVERIFY(Form<MDIMain>().isVisible());
    QVERIFY(Form<MDIMain>().mdiArea()->subWindowList().isEmpty());
    QCOMPARE(Form<MDIMain>().statusLine(), QString());
}

void IdentifyTest::keysDuringTheSplashShortenIt_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("Return") << int(Qt::Key_Return) << int(Qt::NoModifier);
    QTest::newRow("Enter") << int(Qt::Key_Enter) << int(Qt::KeypadModifier);
    QTest::newRow("Space") << int(Qt::Key_Space) << int(Qt::NoModifier);
    QTest::newRow("Escape") << int(Qt::Key_Escape) << int(Qt::NoModifier);
}

void IdentifyTest::keysDuringTheSplashShortenIt()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    StartUp();
    frmIdentify& splash = Form<frmIdentify>();
    for (int step = 0; step < 10; ++step)
        splash.EffectTimer_Timer();
    // The keys reach the window itself, or the hidden "&OK" once the window is active.
    QTest::keyClick(&splash, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(splash.EffectTimer().interval(), 1000);
    splash.setPhase(frmIdentify::SplashPhase::Slide);
    QVERIFY(QTest::qWaitForWindowActive(&splash));
    QCOMPARE(splash.focusWidget(), control("cmdClose"));
    const int top = panelTop();
    QTest::keyClick(splash.focusWidget(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));

    // Like a click: the panel stops, the splash stays for its last second and then
    // gives way to the main frame.
    QVERIFY(IsLoaded<frmIdentify>() && splash.isVisible());
    QCOMPARE(splash.EffectTimer().interval(), 1000);
    QCOMPARE(panelTop(), top);
    splash.EffectTimer_Timer();
    QVERIFY(!IsLoaded<frmIdentify>());
    QVERIFY(Form<MDIMain>().isVisible());
}

void IdentifyTest::splashClosedOtherwiseEndsTheProgram()
{
    StartUp();
    Form<frmIdentify>().close();
    QVERIFY(!IsLoaded<frmIdentify>() || !Form<frmIdentify>().isVisible());
    QVERIFY(!IsLoaded<MDIMain>());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!IsLoaded<frmIdentify>());
    for (QWidget* window : QApplication::topLevelWidgets())
        QVERIFY2(!window->isVisible(), qPrintable(window->objectName()));
}

void IdentifyTest::furtherClicksDoNotPutTheHandOverOff()
{
    // A restless pupil clicks on and on: the second that began with the first click
    // runs out all the same.
    StartUp();
    frmIdentify& splash = Form<frmIdentify>();
    QTest::mouseClick(control("Picture2"), Qt::LeftButton, {}, QPoint(2, 2));
    QCOMPARE(splash.EffectTimer().interval(), 1000);
    QEventLoop moment;
    QTimer::singleShot(300, &moment, &QEventLoop::quit);
    moment.exec();
    for (const char* name : {"Picture2", "lblID(6)", "picAuxiliary"})
        QTest::mouseClick(control(name), Qt::LeftButton, {}, QPoint(2, 2));
    QTest::keyClick(&splash, Qt::Key_Space);
    QVERIFY2(splash.EffectTimer().remainingTime() < 900, qPrintable(QString::number(splash.EffectTimer().remainingTime())));
    QTRY_VERIFY_WITH_TIMEOUT(!IsLoaded<frmIdentify>(), 3000);
    QVERIFY(Form<MDIMain>().isVisible());
}

void IdentifyTest::aboutBoxShowsMemoryAndFramesTheIconOnHover()
{
    bool designState = false;
    QString memory;
    QStringList borders;
    QString hint;
    ModalAnswerer act([&](QWidget* modal) {
        frmIdentify& about = Form<frmIdentify>();
        designState = modal == &about && about.windowTitle() == "About..." && panelTop() == 120
            && !about.EffectTimer().isActive() && !about.windowFlags().testFlag(Qt::FramelessWindowHint);
        memory = static_cast<QLabel*>(control("lblInfo"))->text();
        for (const char* name : {"picLogo", "lblInfo", "picLogo", "cmdClose", "picLogo", "FraIdentify",
                 "picLogo", "Picture2", "picLogo", "frmIdentify"}) {
            hover(QString(name) == "frmIdentify" ? &about : control(name));
            borders << QString::number(static_cast<QLabel*>(control("picLogo"))->frameShape() == QFrame::Box);
        }
        hover(control("cmdClose"));
        hint = Form<MDIMain>().statusLine();
        // A click on the panel changes nothing visible: the box stays and no timer runs.
        QTest::mouseClick(control("Picture2"), Qt::LeftButton, {}, QPoint(2, 2));
        designState = designState && !about.EffectTimer().isActive() && about.isVisible();
        QTest::keyClick(control("cmdClose"), Qt::Key_Return);
    });
    StartUp(); // the About box comes after a splash
    Form<frmIdentify>().EffectTimer_Timer();
    Form<frmIdentify>().AbortIntroduction();
    Form<frmIdentify>().EffectTimer_Timer();
    Form<MDIMain>().mnuHelpItem_Click(3);

    QCOMPARE(act.count(), 1);
    QVERIFY(designState);
    QVERIFY(!IsLoaded<frmIdentify>());
    QCOMPARE(borders, QStringList({"1", "0", "1", "0", "1", "0", "1", "0", "1", "0"}));
    QVERIFY(!hint.isEmpty());
    const QRegularExpression line("^Total physical memory: [0-9]+KB\nAvailable physical memory: [0-9.]+KB$");
    QVERIFY2(line.match(memory).hasMatch(), qPrintable(memory));
}

void IdentifyTest::memoryLineFormat()
{
    // 1 TB installed, 700 GB and a half kilobyte free: beyond any 32-bit figure.
    const MemoryStatus large = MemoryStatus::parse(
        "MemTotal:       1073741824 kB\nMemFree:          100 kB\nMemAvailable:   734003200 kB\n");
    QCOMPARE(large.InfoCaption(),
        QString("Total physical memory: 1073741824KB\rAvailable physical memory: 734003200KB"));
    QCOMPARE(MemoryStatus(1024 * 1024 + 512, 734003200LL * 1024 + 512).InfoCaption(),
        QString("Total physical memory: 1024KB\rAvailable physical memory: 734003200.5KB"));

    const MemoryStatus here = MemoryStatus::current();
    QVERIFY(here.totalBytes() > 0);
    QVERIFY(here.availableBytes() > 0 && here.availableBytes() <= here.totalBytes());
}

QTEST_MAIN(IdentifyTest)
#include "tst_identify.moc"
