#include "ModalAnswerer.h"
#include "WindowChecks.h"

#include "about/frmIdentify.h"
#include "canvas/Rgb.h"
#include "introduction/RunControl.h"
#include "introduction/frmCollisionOptions.h"
#include "introduction/frmIntroduction.h"
#include "macroview/frmMacroView.h"
#include "microview/frmLGOptions.h"
#include "microview/frmMicroView.h"
#include "model/CollisionSetup.h"
#include "model/FluidParameters.h"
#include "shell/Forms.h"
#include "shell/GlobDef.h"
#include "shell/MDIMain.h"
#include "widgets/CanvasWidget.h"
#include "widgets/KeyboardAccess.h"

#include <QAccessible>
#include <QApplication>
#include <QFocusFrame>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QtTest>

namespace {

template <class T = QWidget>
T* child(QWidget* window, const QString& name)
{
    T* found = window->findChild<T*>(name);
    if (!found)
        qFatal("no control %s", qPrintable(name));
    return found;
}

// Presses Tab until the control has the focus; false if a whole round misses it.
bool tabTo(QWidget* control)
{
    for (int presses = 0; presses < 80; ++presses) {
        if (QApplication::focusWidget() == control)
            return true;
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : control->window(), Qt::Key_Tab);
    }
    return QApplication::focusWidget() == control;
}

// Replaces the text of the box that has the focus, as typed.
void retype(const QString& text)
{
    QWidget* box = QApplication::focusWidget();
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(box, text);
}

// The mnemonic letter of a text ("&Contents": C).
Qt::Key mnemonicKey(const QString& text)
{
    const int at = int(text.indexOf('&'));
    return at < 0 ? Qt::Key_unknown : Qt::Key(text.at(at + 1).toUpper().unicode());
}

// Opens an item of a menu of the frame by its mnemonics alone.
void chooseFromMenu(const char* menuName, const char* itemName)
{
    MDIMain& frame = Form<MDIMain>();
    auto* menu = frame.findChild<QMenu*>(menuName);
    QTest::keyClick(&frame, mnemonicKey(menu->menuAction()->text()), Qt::AltModifier);
    QTRY_VERIFY(QApplication::activePopupWidget() == menu);
    QTest::keyClick(menu, mnemonicKey(frame.findChild<QAction*>(itemName)->text()));
    // The offscreen platform leaves the closed menu the active window; a desktop
    // gives the frame back its activation.
    QTRY_VERIFY(!QApplication::activePopupWidget());
    frame.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&frame));
}

QString accessible(QWidget* control, QAccessible::Text which)
{
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(control);
    return face ? face->text(which) : QString();
}

// Every control of the window that Tab can reach, with the name a screen reader says.
QMultiMap<QString, QString> focusableNames(QWidget* window)
{
    QMultiMap<QString, QString> names;
    for (QWidget* control : window->findChildren<QWidget*>())
        if (control->isVisibleTo(window) && (control->focusPolicy() & Qt::TabFocus) && control->window() == window->window())
            names.insert(accessible(control, QAccessible::Name), control->objectName());
    return names;
}

// The control the one visible focus frame of a window surrounds (none when no frame
// or several show).
QWidget* framedControl(QWidget* window)
{
    QList<QFocusFrame*> shown;
    for (auto* frame : window->findChildren<QFocusFrame*>())
        if (frame->isVisible())
            shown << frame;
    return shown.size() == 1 ? shown.first()->widget() : nullptr;
}

void checkNamesAndPictures(QWidget* window)
{
    const QMultiMap<QString, QString> names = focusableNames(window);
    QVERIFY2(!names.contains(QString()), qPrintable("unnamed: " + names.values(QString()).join(", ")));
    for (const QString& name : names.uniqueKeys())
        QVERIFY2(names.count(name) == 1, qPrintable(name + " names " + names.values(name).join(", ")));
    for (CanvasWidget* picture : window->findChildren<CanvasWidget*>())
        QVERIFY2(!accessible(picture, QAccessible::Description).isEmpty(), qPrintable(picture->objectName()));
}

CollisionSetup& dialogSetup()
{
    static CollisionSetup setup;
    return setup;
}

FluidParameters& dialogFluid()
{
    static FluidParameters fluid;
    return fluid;
}

} // namespace

class KeyboardTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void mnemonicsAreOnePerLetterAndMarkedOnce();
    void menusAndShortcutsWorkFromTheKeyboard();
    void microViewRunsFromTheKeyboard();
    void collisionRunsFromTheKeyboard();
    void dialogsTakeEnterAndEscape_data();
    void dialogsTakeEnterAndEscape();
    void everyFocusableControlHasItsOwnName_data();
    void everyFocusableControlHasItsOwnName();
    void hintsAreTooltips();
};

void KeyboardTest::init()
{
    ShowMainWindow();
    QVERIFY(QTest::qWaitForWindowActive(&Form<MDIMain>()));
}

void KeyboardTest::cleanup()
{
    closeLeftoverWindows();
    QVERIFY(!IsLoaded<MDIMain>());
}

void KeyboardTest::mnemonicsAreOnePerLetterAndMarkedOnce()
{
    QString used;
    QCOMPARE(KeyboardAccess::withMnemonic("Microscopic View", used), QString("&Microscopic View"));
    QCOMPARE(KeyboardAccess::withMnemonic("Macroscopic View", used), QString("Macroscopic &View"));
    QCOMPARE(KeyboardAccess::withMnemonic("Mv", used), QString("Mv"));
    QCOMPARE(KeyboardAccess::withMnemonic("E&xit", used), QString("E&xit"));
    QCOMPARE(used, QString("mv"));

    MDIMain& frame = Form<MDIMain>();
    QList<QList<QAction*>> groups = {frame.menuBar()->actions()};
    for (QAction* menu : frame.menuBar()->actions())
        groups << menu->menu()->actions();
    for (const QList<QAction*>& group : groups) {
        QSet<Qt::Key> keys;
        for (QAction* action : group)
            if (!action->isSeparator()) {
                QVERIFY2(action->text().count('&') == 1, qPrintable(action->text()));
                keys.insert(mnemonicKey(action->text()));
            }
        QCOMPARE(keys.size(), int(std::count_if(group.begin(), group.end(), [](QAction* a) { return !a->isSeparator(); })));
    }
}

void KeyboardTest::menusAndShortcutsWorkFromTheKeyboard()
{
    MDIMain& frame = Form<MDIMain>();
    chooseFromMenu("mnuContents", "mnuContentsItem(0)");
    QTRY_VERIFY(IsLoaded<frmIntroduction>());
    chooseFromMenu("mnuContents", "mnuContentsItem(2)");
    QTRY_VERIFY(IsLoaded<frmMicroView>());
    QCOMPARE(frame.mdiArea()->activeSubWindow()->widget(), &Form<frmMicroView>());

    // Ctrl+W closes the active view only.
    QTest::keyClick(&frame, Qt::Key_W, Qt::ControlModifier);
    QTRY_VERIFY(!IsLoaded<frmMicroView>());
    QVERIFY(IsLoaded<frmIntroduction>());

    // Ctrl+Q asks the exit question; No keeps the frame, emptied of its views.
    {
        ModalAnswerer no(QMessageBox::No);
        QTest::keyClick(&frame, Qt::Key_Q, Qt::ControlModifier);
        QCOMPARE(no.count(), 1);
    }
    QVERIFY(frame.isVisible());
    QVERIFY(!IsLoaded<frmIntroduction>());
}

void KeyboardTest::microViewRunsFromTheKeyboard()
{
    chooseFromMenu("mnuContents", "mnuContentsItem(2)");
    QTRY_VERIFY(IsLoaded<frmMicroView>());
    QWidget* view = &Form<frmMicroView>();
    QVERIFY(QTest::qWaitForWindowExposed(view));

    auto* temperature = child<QScrollBar>(view, "HScrTemp");
    const int warmer = temperature->value() + 1;
    QVERIFY(tabTo(temperature));
    // The style marks no focus on a bar: a frame shows which one the arrows move.
    QCOMPARE(framedControl(view), temperature);
    QTest::keyClick(temperature, Qt::Key_Right);
    QCOMPARE(temperature->value(), warmer);
    QCOMPARE(child<QLabel>(view, "lblTemp")->text(), QString("T=%1").arg(warmer));

    auto* columns = child<QScrollBar>(view, "HScrNoOfMolecules(0)");
    const int fewer = columns->value() - 1;
    QVERIFY(tabTo(columns));
    QCOMPARE(framedControl(view), columns);
    QTest::keyClick(columns, Qt::Key_Left);
    QCOMPARE(columns->value(), fewer);
    QCOMPARE(child<QLabel>(view, "lblNoOfMolecules(0)")->text(), QString("Nx=%1").arg(fewer));

    auto* simulate = child<QPushButton>(view, "cmdCommand(1)");
    QVERIFY(tabTo(simulate));
    QCOMPARE(framedControl(view), nullptr);
    QTest::keyClick(simulate, Qt::Key_Space);
    QCOMPARE(simulate->text(), QString("Pause"));
    QTest::keyClick(simulate, Qt::Key_Space);
    QCOMPARE(simulate->text(), QString("Simulate"));
}

void KeyboardTest::collisionRunsFromTheKeyboard()
{
    chooseFromMenu("mnuContents", "mnuContentsItem(0)");
    QTRY_VERIFY(IsLoaded<frmIntroduction>());
    frmIntroduction& intro = Form<frmIntroduction>();
    QVERIFY(QTest::qWaitForWindowExposed(&intro));

    // Enter in the Page box goes to the page typed.
    QVERIFY(tabTo(child(&intro, "txtUnit")));
    retype("3");
    QVERIFY(tabTo(child(&intro, "txtPage")));
    retype("2");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(intro.CurrentUnit(), int16_t(3));
    QCOMPARE(intro.CurrentPage(), int16_t(2));

    // A refused number leaves Go To disabled, and Enter then stays where it is.
    retype("9");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(intro.CurrentPage(), int16_t(2));

    auto* simulation = child<QPushButton>(&intro, "cmdCommand(5)");
    QVERIFY(tabTo(simulation));
    QTest::keyClick(simulation, Qt::Key_Space);
    RunControl& run = intro.Run();
    QVERIFY(run.Timer1().isActive());
    for (int ticks = 0; run.Timer1().isActive() && ticks < 1000; ++ticks)
        run.Timer1_Timer();
    QVERIFY(run.RunCompleted());
}

void KeyboardTest::dialogsTakeEnterAndEscape_data()
{
    QTest::addColumn<bool>("collision");
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("stored");
    QTest::newRow("collision, Enter") << true << int(Qt::Key_Return) << true;
    QTest::newRow("collision, Escape") << true << int(Qt::Key_Escape) << false;
    QTest::newRow("fluid, Enter") << false << int(Qt::Key_Enter) << true;
    QTest::newRow("fluid, Escape") << false << int(Qt::Key_Escape) << false;
}

void KeyboardTest::dialogsTakeEnterAndEscape()
{
    QFETCH(bool, collision);
    QFETCH(int, key);
    QFETCH(bool, stored);
    dialogSetup() = CollisionSetup();
    dialogFluid() = FluidParameters();
    QPointer<QDialog> dialog;
    if (collision)
        dialog = new frmCollisionOptions(dialogSetup(), Rgb::RGB(255, 255, 255));
    else
        dialog = new frmLGOptions(dialogFluid(), 6);
    dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(dialog));

    QVERIFY(tabTo(child(dialog, collision ? "txtm(1)" : "txtNoOfRows")));
    retype("3");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
    QTRY_VERIFY(!dialog || !dialog->isVisible());
    const int expected = stored ? 3 : (collision ? CollisionSetup().Mass[2] : FluidParameters().FluidRows);
    QCOMPARE(collision ? int(dialogSetup().Mass[2]) : int(dialogFluid().FluidRows), expected);
}

void KeyboardTest::everyFocusableControlHasItsOwnName_data()
{
    QTest::addColumn<QString>("window");
    for (const char* name :
        {"MDIMain", "frmMicroView", "frmIntroduction", "frmCollisionOptions", "frmLGOptions", "frmMacroView",
            "frmIdentify"})
        QTest::newRow(name) << QString(name);
}

void KeyboardTest::everyFocusableControlHasItsOwnName()
{
    QFETCH(QString, window);
    MDIMain& frame = Form<MDIMain>();
    if (window == "MDIMain") {
        checkNamesAndPictures(&frame);
    } else if (window == "frmMicroView" || window == "frmIntroduction" || window == "frmMacroView") {
        const int item = window == "frmIntroduction" ? 0 : window == "frmMacroView" ? 1 : 2;
        frame.mnuContentsItem_Click(item);
        checkNamesAndPictures(frame.mdiArea()->activeSubWindow()->widget());
    } else if (window == "frmIdentify") {
        bool checked = false;
        ModalAnswerer answer([&](QWidget* box) {
            checkNamesAndPictures(box);
            checked = true;
            box->close();
        });
        frame.mnuHelpItem_Click(3);
        QVERIFY(checked);
    } else {
        std::unique_ptr<QDialog> dialog;
        if (window == "frmCollisionOptions")
            dialog.reset(new frmCollisionOptions(dialogSetup(), Rgb::RGB(255, 255, 255)));
        else
            dialog.reset(new frmLGOptions(dialogFluid(), 6));
        dialog->show();
        checkNamesAndPictures(dialog.get());
    }
}

void KeyboardTest::hintsAreTooltips()
{
    frmCollisionOptions dialog(dialogSetup(), Rgb::RGB(255, 255, 255));
    auto* mass = child<QLineEdit>(&dialog, "txtm(1)");
    QVERIFY(!mass->toolTip().isEmpty());
    QCOMPARE(mass->toolTip(), mass->property("statusHint").toString());
    QVERIFY(dialog.toolTip().isEmpty());
    QCOMPARE(accessible(mass, QAccessible::Name), QString("Mass of body 2 (kg)"));
    QCOMPARE(accessible(child(&dialog, "cmdColorSelection(0)"), QAccessible::Name), QString("Colour of body 1"));
}

QTEST_MAIN(KeyboardTest)
#include "tst_keyboard.moc"
