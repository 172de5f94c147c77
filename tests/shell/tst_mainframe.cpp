#include "ModalAnswerer.h"
#include "WindowChecks.h"

#include "core/RunTimeError.h"
#include "introduction/frmCollisionOptions.h"
#include "introduction/frmIntroduction.h"
#include "microview/frmMicroView.h"
#include "shell/Forms.h"
#include "shell/GlobDef.h"
#include "shell/MDIMain.h"
#include "widgets/HandlerGuard.h"
#include "widgets/ScreenFit.h"
#include "widgets/suppl.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QtTest>

namespace {

QAction* menuItem(const QString& name)
{
    return Form<MDIMain>().findChild<QAction*>(name);
}

QString statusText()
{
    return Form<MDIMain>().findChild<QLabel*>("lblStatusLine")->text();
}

// Runs an action on a window at the first turn of the event loop after it shows.
class ShownAction : public QObject
{
public:
    ShownAction(const QString& name, std::function<void(QWidget*)> action) : m_name(name), m_action(std::move(action))
    {
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show && watched->objectName() == m_name) {
            QPointer<QWidget> window = static_cast<QWidget*>(watched);
            QTimer::singleShot(0, this, [this, window] {
                if (window)
                    m_action(window);
            });
        }
        return false;
    }

private:
    QString m_name;
    std::function<void(QWidget*)> m_action;
};

} // namespace

class MainFrameTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void menusInOrder();
    void helpItemsSayNotImplemented();
    void aboutIsModal();
    void contentsItemsOpenEachViewOnce();
    void exitAnsweredNoKeepsAnEmptyFrame();
    void exitAnsweredYesEndsTheProgram();
    void statusLineSpansTheFrameAndKeepsTheLastHint();
    void faultInAHandlerIsShownAndTheProgramGoesOn();
    void centreFormLeavesAMaximisedWindowAlone();
    void childWindowsCentreAgainWhenRestored_data();
    void childWindowsCentreAgainWhenRestored();
    void aBoxAfterADialogClosesOutlivesTheDialog();
    void aWindowIsFittedIntoTheFreeArea_data();
    void aWindowIsFittedIntoTheFreeArea();
    void theFrameLiesWhollyOnItsScreen();
};

void MainFrameTest::init()
{
    ShowMainWindow();
    QVERIFY(QTest::qWaitForWindowExposed(&Form<MDIMain>()));
}

void MainFrameTest::cleanup()
{
    QCOMPARE(closeLeftoverWindows(), 1); // the main frame each test opened
    QVERIFY(!IsLoaded<MDIMain>());
}

void MainFrameTest::menusInOrder()
{
    MDIMain& frame = Form<MDIMain>();
    QCOMPARE(frame.windowTitle(), QString("Ludophys - The Floatrixon (Floatrix)"));
    QStringList menus;
    // Each caption carries its keyboard mnemonic, which Qt shows as an underline.
    for (QAction* action : frame.menuBar()->actions())
        menus << action->text().remove('&');
    QCOMPARE(menus, QStringList({"Contents", "Options", "Help"}));
    QVERIFY(frame.findChild<QMenu*>("mnuOptions")->actions().isEmpty());

    QStringList contents;
    for (QAction* action : frame.findChild<QMenu*>("mnuContents")->actions())
        contents << (action->isSeparator() ? "-" : action->text().remove('&')) + "@" + action->objectName();
    QCOMPARE(contents,
        QStringList({"Introduction@mnuContentsItem(0)", "Macroscopic View@mnuContentsItem(1)",
            "Microscopic View@mnuContentsItem(2)", "-@mnuContentsItem(3)", "Exit@mnuContentsItem(4)"}));
    QStringList help;
    for (QAction* action : frame.findChild<QMenu*>("mnuHelp")->actions())
        help << (action->isSeparator() ? "-" : action->text().remove('&'));
    QCOMPARE(help, QStringList({"Contents", "Search for...", "-", "About..."}));
}

void MainFrameTest::helpItemsSayNotImplemented()
{
    for (const char* name : {"mnuHelpItem(0)", "mnuHelpItem(1)"}) {
        ModalAnswerer answer(QMessageBox::Ok);
        menuItem(name)->trigger();
        QCOMPARE(answer.count(), 1);
        QCOMPARE(answer.title(), QString("Floatrix"));
        QCOMPARE(answer.text(), QString("Sorry, feature not yet implemented"));
        QCOMPARE(answer.icon(), QMessageBox::Critical);
    }
    QVERIFY(Form<MDIMain>().isVisible());
}

void MainFrameTest::aboutIsModal()
{
    QString shown;
    ModalAnswerer close([&](QWidget* modal) {
        shown = modal->objectName();
        modal->close();
    });
    menuItem("mnuHelpItem(3)")->trigger();
    QCOMPARE(shown, QString("frmIdentify"));
}

void MainFrameTest::contentsItemsOpenEachViewOnce()
{
    MDIMain& frame = Form<MDIMain>();
    menuItem("mnuContentsItem(2)")->trigger();
    frmMicroView* view = &Form<frmMicroView>();
    menuItem("mnuContentsItem(0)")->trigger();
    QCOMPARE(frame.mdiArea()->activeSubWindow()->widget(), &Form<frmIntroduction>());

    // Choosing it again only brings the same window forward.
    menuItem("mnuContentsItem(2)")->trigger();
    QCOMPARE(&Form<frmMicroView>(), view);
    QCOMPARE(frame.mdiArea()->activeSubWindow()->widget(), view);
    QCOMPARE(frame.mdiArea()->subWindowList().size(), 2);

    menuItem("mnuContentsItem(1)")->trigger();
    QCOMPARE(frame.mdiArea()->subWindowList().size(), 3);
    menuItem("mnuContentsItem(3)")->trigger(); // the separator does nothing
    QCOMPARE(frame.mdiArea()->subWindowList().size(), 3);
}

void MainFrameTest::exitAnsweredNoKeepsAnEmptyFrame()
{
    menuItem("mnuContentsItem(2)")->trigger();
    menuItem("mnuContentsItem(0)")->trigger();
    {
        ModalAnswerer answer(QMessageBox::No);
        menuItem("mnuContentsItem(4)")->trigger();
        QCOMPARE(answer.count(), 1);
        QCOMPARE(answer.text(), QString("Are you sure you want to exit ?"));
        QCOMPARE(answer.title(), QString("Floatrix"));
        QCOMPARE(answer.icon(), QMessageBox::Question);
    }
    // The children were gone before the question came.
    QVERIFY(!IsLoaded<frmMicroView>());
    QVERIFY(!IsLoaded<frmIntroduction>());
    QVERIFY(Form<MDIMain>().isVisible());

    // The close box asks the same; afterwards a fresh view opens.
    ModalAnswerer again(QMessageBox::No);
    Form<MDIMain>().close();
    QCOMPARE(again.count(), 1);
    menuItem("mnuContentsItem(2)")->trigger();
    QVERIFY(IsLoaded<frmMicroView>());
}

void MainFrameTest::exitAnsweredYesEndsTheProgram()
{
    menuItem("mnuContentsItem(1)")->trigger();
    ModalAnswerer answer(QMessageBox::Yes);
    menuItem("mnuContentsItem(4)")->trigger();
    QCOMPARE(answer.count(), 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!IsLoaded<MDIMain>());
    ShowMainWindow(); // so that cleanup finds the one frame it expects
}

void MainFrameTest::statusLineSpansTheFrameAndKeepsTheLastHint()
{
    MDIMain& frame = Form<MDIMain>();
    auto* label = frame.findChild<QLabel*>("lblStatusLine");
    auto* line = frame.findChild<QWidget*>("picStatusLine");
    QCOMPARE(statusText(), QString());
    QCOMPARE(line->height(), 17);
    frame.resize(900, 500);
    QTRY_COMPARE(label->width(), line->width());
    QCOMPARE(line->width(), frame.centralWidget()->width());
    frame.resize(640, 480);
    QTRY_COMPARE(label->width(), line->width());

    ShowOptionsButtonHint(1);
    QCOMPARE(statusText(), QString("Cancel changes and exit"));
    menuItem("mnuContentsItem(2)")->trigger();
    QCOMPARE(statusText(), QString("Cancel changes and exit"));
    ShowOptionsButtonHint(3);
    QCOMPARE(statusText(), QString());
}

void MainFrameTest::faultInAHandlerIsShownAndTheProgramGoesOn()
{
    bool stopped = false;
    ModalAnswerer answer(QMessageBox::Ok);
    const bool completed = RunGuarded([] { throw RunTimeError::overflow(); }, [&] { stopped = true; });
    QVERIFY(!completed);
    QVERIFY(stopped);
    QCOMPARE(answer.count(), 1);
    QCOMPARE(answer.title(), QString("Floatrix"));
    QCOMPARE(answer.text(), QString("Overflow"));
    QCOMPARE(answer.icon(), QMessageBox::Critical);
    QVERIFY(RunGuarded([] {}));
    QVERIFY(Form<MDIMain>().isVisible());
}

void MainFrameTest::centreFormLeavesAMaximisedWindowAlone()
{
    menuItem("mnuContentsItem(0)")->trigger();
    QWidget* frame = Form<frmIntroduction>().parentWidget();
    frame->move(3, 4);
    CentreForm(&Form<frmIntroduction>());
    const QSize area = Form<MDIMain>().mdiArea()->viewport()->size();
    QCOMPARE(frame->x(), (area.width() - frame->width()) / 2);
    QCOMPARE(frame->y(), (area.height() - frame->height()) / 10);

    frame->showMaximized();
    const QRect maximised = frame->geometry();
    CentreForm(&Form<frmIntroduction>());
    QCOMPARE(frame->geometry(), maximised);
}

void MainFrameTest::childWindowsCentreAgainWhenRestored_data()
{
    QTest::addColumn<int>("item");
    QTest::newRow("Introduction") << 0;
    QTest::newRow("Macroscopic View") << 1;
    QTest::newRow("Microscopic View") << 2;
}

void MainFrameTest::childWindowsCentreAgainWhenRestored()
{
    // Each view centres itself whenever it is resized; maximising and restoring its
    // child window are resizes too.
    QFETCH(int, item);
    MDIMain& main = Form<MDIMain>();
    main.resize(1000, 760);
    menuItem(QString("mnuContentsItem(%1)").arg(item))->trigger();
    QMdiSubWindow* frame = main.mdiArea()->activeSubWindow();
    QVERIFY(frame);
    auto centred = [&] {
        const QSize area = main.mdiArea()->viewport()->size();
        return QPoint((area.width() - frame->width()) / 2, (area.height() - frame->height()) / 10);
    };
    QTRY_COMPARE(frame->pos(), centred());
    frame->move(3, 4); // dragged aside: a move is no resize
    QCOMPARE(frame->pos(), QPoint(3, 4));
    frame->showMaximized();
    QCOMPARE(frame->pos(), QPoint(0, 0));
    frame->showNormal();
    QTRY_COMPARE(frame->pos(), centred());
    frame->showMinimized();
    frame->showNormal();
    QTRY_COMPARE(frame->pos(), centred());
}

void MainFrameTest::aBoxAfterADialogClosesOutlivesTheDialog()
{
    // "Ok" in the collision dialog with velocities that never meet, pressed as soon as
    // the dialog shows (before the window system has made it the active window): the
    // dialog goes, and the check that follows shows its box while the dialog's release
    // is still pending. The box must come through that release.
    menuItem("mnuContentsItem(0)")->trigger();
    frmIntroduction& intro = Form<frmIntroduction>();
    for (const auto& [name, text] : {std::pair{"txtUnit", "3"}, {"txtPage", "2"}}) {
        auto* box = intro.findChild<QLineEdit*>(name);
        box->selectAll();
        QTest::keyClicks(box, text);
    }
    intro.findChild<QPushButton*>("cmdCommand(6)")->click();
    ShownAction pressOk("frmCollisionOptions", [](QWidget* dialog) {
        auto* velocity = dialog->findChild<QLineEdit*>("txtux(1)");
        velocity->selectAll();
        QTest::keyClicks(velocity, "100");
        QTest::mouseClick(dialog->findChild<QPushButton*>("cmdCommand(0)"), Qt::LeftButton);
    });
    QString shown;
    ModalAnswerer answer([&](QWidget* modal) {
        auto* box = qobject_cast<QMessageBox*>(modal);
        QVERIFY(box);
        shown = box->windowTitle();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(box->isVisible());
        box->button(QMessageBox::Ok)->click();
    });
    intro.findChild<QPushButton*>("cmdCommand(7)")->click();
    QCOMPARE(shown, QString("Simulation Results"));
    QVERIFY(!IsLoaded<frmCollisionOptions>());
    QVERIFY(intro.isVisible());
}

// A window with its frame is shrunk only as far as the free area needs, then moved
// in only as far as needed.
void MainFrameTest::aWindowIsFittedIntoTheFreeArea_data()
{
    QTest::addColumn<QRect>("wanted");
    QTest::addColumn<QMargins>("frame");
    QTest::addColumn<QRect>("fitted");
    const QMargins none;
    const QMargins decorated(4, 30, 4, 4);
    // The free area throughout: 1600 x 1000 below a 40-pixel panel.
    QTest::newRow("fits, left alone") << QRect(100, 100, 800, 600) << decorated << QRect(100, 100, 800, 600);
    QTest::newRow("exactly fills the screen") << QRect(0, 40, 1600, 1000) << none << QRect(0, 40, 1600, 1000);
    QTest::newRow("too tall at double size") << QRect(0, 40, 1600, 1200) << decorated << QRect(4, 70, 1592, 966);
    QTest::newRow("off the right edge") << QRect(1200, 300, 800, 600) << none << QRect(800, 300, 800, 600);
    QTest::newRow("under the panel") << QRect(50, 0, 800, 600) << decorated << QRect(50, 70, 800, 600);
}

void MainFrameTest::aWindowIsFittedIntoTheFreeArea()
{
    QFETCH(QRect, wanted);
    QFETCH(QMargins, frame);
    QTEST(ScreenFit::fitted(wanted, frame, QRect(0, 40, 1600, 1000)), "fitted");
}

// The frame keeps its 800 x 600 where the screen has room for it with its title bar
// and borders, and shrinks onto a smaller screen (CTest runs this again at twice
// the size, where the offscreen screen offers 400 x 300).
void MainFrameTest::theFrameLiesWhollyOnItsScreen()
{
    MDIMain& frame = Form<MDIMain>();
    const QRect free = frame.screen()->availableGeometry();
    QTRY_VERIFY(free.contains(frame.frameGeometry()));
    const QSize decoration = frame.frameGeometry().size() - frame.size();
    QCOMPARE(frame.size(), QSize(800, 600).boundedTo(free.size() - decoration));
}

QTEST_MAIN(MainFrameTest)
#include "tst_mainframe.moc"
