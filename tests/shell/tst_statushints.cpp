#include "TestWindow.h"
#include "WindowChecks.h"

#include "introduction/frmCollisionOptions.h"
#include "introduction/frmIntroduction.h"
#include "microview/frmLGOptions.h"
#include "canvas/Rgb.h"
#include "model/CollisionSetup.h"
#include "model/FluidParameters.h"
#include "shell/Defaults.h"
#include "shell/Forms.h"
#include "shell/GlobDef.h"
#include "shell/MDIMain.h"

#include <QtTest>

namespace {

CollisionSetup setup;
FluidParameters fluid;
TestWindow<frmCollisionOptions> collisionOptions(
    [] { return new frmCollisionOptions(setup, Rgb::RGB(255, 255, 255)); });
TestWindow<frmLGOptions> fluidOptions([] { return new frmLGOptions(fluid, 6); });

// Opens a window as the program does; the parameter dialogs are shown without
// waiting, so that the test can move the pointer over them.
QWidget* open(const QString& window)
{
    if (window == "frmIntroduction") {
        ShowMainWindow();
        Form<MDIMain>().ShowChild(&Form<frmIntroduction>());
        return &Form<frmIntroduction>();
    }
    setup.Page = 2;
    QWidget* dialog = window == "frmLGOptions" ? static_cast<QWidget*>(&fluidOptions.get())
                                               : static_cast<QWidget*>(&collisionOptions.get());
    dialog->show();
    return dialog;
}

// A point of the widget that lies over none of its children.
QPoint bareSpot(const QWidget* widget)
{
    for (int y = widget->height() - 3; y > 0; y -= 2)
        for (int x = widget->width() - 3; x > 0; x -= 2)
            if (!widget->childAt(x, y))
                return {x, y};
    return {};
}

// The pointer comes from the bare window onto the control (the window system sends
// the Enter) and moves on over it; the status line after each move.
QStringList hintsAlongTheWay(QWidget* window, QWidget* control)
{
    QTest::mouseMove(window, bareSpot(window));
    const bool holdsControls = !control->findChildren<QWidget*>(Qt::FindDirectChildrenOnly).isEmpty();
    const QPoint start = holdsControls ? bareSpot(control) : control->rect().center();
    QStringList seen;
    for (const QPoint step : {QPoint(0, 0), QPoint(1, 0), QPoint(2, 1), QPoint(1, 2), QPoint(-1, 1)}) {
        QTest::mouseMove(control, start + step);
        seen << Form<MDIMain>().statusLine();
    }
    return seen;
}

} // namespace

class StatusHintsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theHintOfTheControlUnderThePointerStays_data();
    void theHintOfTheControlUnderThePointerStays();
};

void StatusHintsTest::init()
{
    RestoreAllDefaults();
}

void StatusHintsTest::cleanup()
{
    fluidOptions.unload();
    collisionOptions.unload();
    closeLeftoverWindows();
    QVERIFY(!IsLoaded<frmIntroduction>());
}

void StatusHintsTest::theHintOfTheControlUnderThePointerStays_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("hint");
    const QList<std::array<const char*, 3>> rows = {
        {"frmIntroduction", "frmIntroduction", "Introduction"},
        {"frmIntroduction", "lblUnit", "Select Unit"},
        {"frmIntroduction", "cmdCommand(0)", "Exit introduction"},
        {"frmIntroduction", "cmdCommand(3)", "Go to next page"},
        {"frmIntroduction", "cmdCommand(4)", "Go to next unit"},
        {"frmIntroduction", "cmdCommand(6)", "Go to Unit and/or Page"},
        {"frmIntroduction", "cmdCommand(7)", "Define collision parameters"},
        {"frmCollisionOptions", "fraCollisionData", "Παράμετροι κρούσης"},
        {"frmCollisionOptions", "lblm(0)", "Μάζα 1ου σώματος"},
        {"frmCollisionOptions", "lblUnits(7)", "Ακτίνα 2ου σώματος (σε m)"},
        {"frmCollisionOptions", "txtux(1)", "Εισαγωγή ταχύτητας 2ου σώματος στον x-άξονα [-100,100]"},
        // The side view's y boxes are disabled: the frame beneath takes the moves.
        {"frmCollisionOptions", "txty(0)", "Παράμετροι κρούσης"},
        {"frmCollisionOptions", "chkGraphS", "Έλεγχος γραφικής παράστασης μετατοπίσεων"},
        {"frmCollisionOptions", "chkShowForces", "Έλεγχος απεικόνισης δυνάμεων"},
        {"frmCollisionOptions", "optModel(1)", "Συνέχεια Συνάρτησης Ταχύτητας"},
        {"frmCollisionOptions", "fraColors", "Επιλογές Χρωματικής Απεικόνισης"},
        {"frmCollisionOptions", "lblColorSelection(2)", "Επιλογή χρώματος διανυσμάτων ταχύτητας"},
        {"frmCollisionOptions", "cmdColorSelection(0)", "Επιλογή χρώματος 1ου σώματος"},
        {"frmCollisionOptions", "lblCurrentColor(3)", "Τρέχον χρώμα διανυσμάτων δύναμης"},
        {"frmLGOptions", "frmLGOptions", "Επιλογές Απεικόνισης Μορίων Ρευστών"},
        {"frmLGOptions", "lblTitle(0)", "Πλήθος σειρών μορίων"},
        {"frmLGOptions", "lblCurrentColor(1)", "Τρέχον χρώμα 2ης ομάδας μορίων"},
        {"frmLGOptions", "cmdCommand(0)", "Accept parameter values and exit"},
        {"frmLGOptions", "cmdCommand(1)", "Cancel changes and exit"},
        {"frmLGOptions", "cmdCommand(2)", "Default values for all parameters"},
    };
    for (const auto& [window, control, hint] : rows)
        QTest::addRow("%s %s", window, control) << window << control << QString::fromUtf8(hint);
}

void StatusHintsTest::theHintOfTheControlUnderThePointerStays()
{
    QFETCH(QString, window);
    QFETCH(QString, control);
    QFETCH(QString, hint);
    QWidget* form = open(window);
    QVERIFY(QTest::qWaitForWindowExposed(form->window()));
    QWidget* target = control == window ? form : form->findChild<QWidget*>(control);
    QVERIFY(target && target->isVisible());
    QCOMPARE(hintsAlongTheWay(form, target), QStringList(5, hint));
}

QTEST_MAIN(StatusHintsTest)
#include "tst_statushints.moc"
