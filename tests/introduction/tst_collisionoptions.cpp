#include "ModalAnswerer.h"
#include "WindowChecks.h"

#include "canvas/Rgb.h"
#include "introduction/OptionsWidgets.h"
#include "introduction/frmCollisionOptions.h"
#include "model/CollisionSetup.h"
#include "shell/Forms.h"
#include "shell/MDIMain.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

using OptionsWidgets::indexedName;

namespace {

frmCollisionOptions& dialog()
{
    return Form<frmCollisionOptions>();
}

template <class T = QWidget>
T* control(const QString& name)
{
    return dialog().findChild<T*>(name);
}

QLineEdit* box(const char* name, int index)
{
    return control<QLineEdit>(indexedName(name, index));
}

void type(QLineEdit* edit, const QString& text)
{
    edit->selectAll();
    QTest::keyClicks(edit, text);
}

QPushButton* command(int index)
{
    return control<QPushButton>(indexedName("cmdCommand", index));
}

bool isGrey(QLineEdit* edit)
{
    return OptionsWidgets::textColor(edit) == OptionsWidgets::InvalidTextColor;
}

bool isBlue(QLineEdit* edit)
{
    return OptionsWidgets::textColor(edit) == OptionsWidgets::ValidTextColor;
}

int32_t swatch(int index)
{
    return OptionsWidgets::swatchColor(control<QLabel>(indexedName("lblCurrentColor", index)));
}

// Opens the dialog as the introduction does from a page.
void open(int16_t page)
{
    CollisionSetup::global().Page = page;
    dialog().show();
}

} // namespace

class CollisionOptionsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void loadsTheRecordWithPlainColours();
    void typedNumbersAreCheckedAgainstTheirRanges();
    void okStoresTheTypedValues();
    void eachViewShowsOnlyItsOwnControls();
    void defaultValuesThenCancelLeaveTheRecord();
    void theChooserKeepsTheColourItLastReturned();
    void hintsNameTheBodyAndTheRange();
};

void CollisionOptionsTest::init()
{
    CollisionSetup& setup = CollisionSetup::global();
    setup.resetDefaults(Rgb::RGB(255, 255, 255));
    setup.useDefaultColours();
}

void CollisionOptionsTest::cleanup()
{
    if (IsLoaded<frmCollisionOptions>())
        Unload<frmCollisionOptions>();
    closeLeftoverWindows();
    QVERIFY(!IsLoaded<frmCollisionOptions>());
}

void CollisionOptionsTest::loadsTheRecordWithPlainColours()
{
    open(2);
    QCOMPARE(dialog().windowTitle(), QString("Παράμετροι Ελαστικής Κρούσης"));
    QCOMPARE(box("txtm", 1)->text(), QString("15"));
    QCOMPARE(box("txtx", 1)->text(), QString("100"));
    QCOMPARE(swatch(0), Rgb::RGB(80, 255, 80));
    QCOMPARE(swatch(1), Rgb::RGB(255, 255, 80));
    QCOMPARE(swatch(2), Rgb::RGB(255, 255, 175));
    QCOMPARE(swatch(3), Rgb::RGB(255, 0, 0));
    QVERIFY(command(0)->isEnabled());
    Unload<frmCollisionOptions>();

    CollisionSetup::global().Radius[1] = 0.5f;
    CollisionSetup::global().X[2] = -25;
    CollisionSetup::global().ForceModel = 2;
    open(2);
    QCOMPARE(box("txtR", 0)->text(), QString("0.5"));
    QCOMPARE(box("txtx", 1)->text(), QString("-25"));
    QVERIFY(control<QRadioButton>("optModel(2)")->isChecked());
}

void CollisionOptionsTest::typedNumbersAreCheckedAgainstTheirRanges()
{
    open(1);
    QLineEdit* radius = box("txtR", 0);
    type(radius, "101");
    QVERIFY(isGrey(radius));
    QVERIFY(!command(0)->isEnabled());
    type(box("txtux", 1), "-101");
    QCOMPARE(box("txtux", 1)->text(), QString("-10"));
    type(box("txtm", 0), "0");
    QVERIFY(isGrey(box("txtm", 0)));
    type(radius, "100");
    QVERIFY(isBlue(radius));
    QVERIFY(!command(0)->isEnabled()); // the mass is still refused
    type(box("txtm", 0), "0.4");
    QVERIFY(isGrey(box("txtm", 0)));
    type(box("txtm", 0), "0.6");
    QVERIFY(isBlue(box("txtm", 0)));
    QVERIFY(command(0)->isEnabled());

    struct Case
    {
        const char* name;
        const char* text;
        bool valid;
    };
    const Case cases[] = {
        {"txtR", "-5", false}, {"txtx", "-5", true}, {"txtx", "0", true}, {"txtR", "0", false},
        {"txtuy", "1.5", true}, {"txtm", "1..", false}, {"txtux", "5-", false}, {"txtx", "", false},
    };
    for (const Case& c : cases) {
        QLineEdit* edit = box(c.name, 1);
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Backspace);
        QTest::keyClicks(edit, c.text);
        const QString what = QString("%1 %2").arg(c.name, c.text);
        QVERIFY2((c.valid ? isBlue(edit) : isGrey(edit)), qPrintable(what));
        QVERIFY2(command(0)->isEnabled() == c.valid, qPrintable(what));
        type(edit, "1");
    }
    type(box("txtx", 0), "1000");
    QCOMPARE(box("txtx", 0)->text(), QString("100"));
}

void CollisionOptionsTest::okStoresTheTypedValues()
{
    open(1);
    type(box("txtm", 0), "2.5");
    type(box("txtm", 1), "3.5");
    type(box("txtR", 0), "7.5");
    type(box("txty", 1), "-40");
    type(box("txtuy", 0), "30");
    control<QCheckBox>("chkShowForces")->setChecked(false);
    control<QRadioButton>("optModel(1)")->setChecked(true);
    command(0)->click();
    QVERIFY(!IsLoaded<frmCollisionOptions>());
    const CollisionSetup& setup = CollisionSetup::global();
    QCOMPARE(setup.Mass[1], int16_t(2));
    QCOMPARE(setup.Mass[2], int16_t(4));
    QCOMPARE(setup.Radius[1], 7.5f);
    QCOMPARE(setup.Y[2], -40.0f);
    QCOMPARE(setup.Uy[1], 30.0f);
    QCOMPARE(setup.ShowForces, int16_t(0));
    QCOMPARE(setup.ShowVelocities, int16_t(1));
    QCOMPARE(setup.ForceModel, int16_t(1));
    QCOMPARE(setup.BodyColor[1], float(Rgb::RGB(80, 255, 80) ^ Rgb::RGB(255, 255, 255)));
}

void CollisionOptionsTest::eachViewShowsOnlyItsOwnControls()
{
    // The view from above hides the graph switches but keeps their values.
    CollisionSetup& setup = CollisionSetup::global();
    setup.GraphVelocity = 0;
    open(1);
    for (const char* name : {"chkGraphS", "chkGraphU", "chkGraphF", "chkProportional"})
        QVERIFY(control(name)->isHidden());
    QCOMPARE(control<QGroupBox>("fraGraphs")->title(), QString("Κατηγοριοποίηση Κρούσεων"));
    QVERIFY(!control("picCollType1")->isHidden() && box("txty", 0)->isEnabled());
    command(0)->click();
    QCOMPARE(setup.GraphVelocity, int16_t(0));

    // The side view shows its y values locked, and still stores what they show.
    setup.Uy[2] = 20;
    open(2);
    for (int i = 0; i < 2; ++i)
        for (const char* name : {"txty", "txtuy"}) {
            QVERIFY(!box(name, i)->isEnabled());
            QCOMPARE(OptionsWidgets::textColor(box(name, i)), Rgb::RGB(110, 110, 110));
        }
    QCOMPARE(box("txtuy", 1)->text(), QString("20"));
    QVERIFY(control("picCollType1")->isHidden() && control("picCollType2")->isHidden());
    QVERIFY(!control("chkGraphS")->isHidden());
    command(2)->click();
    QCOMPARE(box("txtuy", 1)->text(), QString("0"));
    QCOMPARE(OptionsWidgets::textColor(box("txtuy", 1)), Rgb::RGB(110, 110, 110));
    command(0)->click();
    QCOMPARE(setup.Uy[2], 0.0f);
}

void CollisionOptionsTest::defaultValuesThenCancelLeaveTheRecord()
{
    CollisionSetup& setup = CollisionSetup::global();
    setup.Mass[1] = 7;
    setup.X[2] = 50;
    setup.ProportionalGraphs = 1;
    setup.BodyColor[1] = 0;
    open(2);
    type(box("txtR", 0), "101");
    command(2)->click();
    QCOMPARE(box("txtm", 0)->text(), QString("10"));
    QCOMPARE(box("txtx", 1)->text(), QString("100"));
    QCOMPARE(box("txtR", 0)->text(), QString("10"));
    QVERIFY(isBlue(box("txtR", 0)));
    QVERIFY(command(0)->isEnabled());
    QVERIFY(!control<QCheckBox>("chkProportional")->isChecked());
    QCOMPARE(swatch(0), Rgb::RGB(80, 255, 80));
    command(1)->click();
    QVERIFY(!IsLoaded<frmCollisionOptions>());
    QCOMPARE(setup.Mass[1], int16_t(7));
    QCOMPARE(setup.X[2], 50.0f);
    QCOMPARE(setup.ProportionalGraphs, int16_t(1));
    QCOMPARE(setup.BodyColor[1], 0.0f);
}

void CollisionOptionsTest::theChooserKeepsTheColourItLastReturned()
{
    open(2);
    QStringList titles;
    QList<QColor> opened;
    bool choose = true;
    ModalAnswerer answerer([&](QWidget* modal) {
        auto* chooser = qobject_cast<QColorDialog*>(modal);
        QVERIFY(chooser);
        titles << chooser->windowTitle();
        opened << chooser->currentColor();
        if (choose) {
            chooser->setCurrentColor(QColor(0, 200, 0));
            chooser->accept();
        } else {
            chooser->setCurrentColor(QColor(9, 9, 9));
            chooser->reject();
        }
    });
    control<QPushButton>("cmdColorSelection(0)")->click();
    QCOMPARE(swatch(0), Rgb::RGB(0, 200, 0));
    choose = false;
    QTest::mouseClick(control("lblCurrentColor(3)"), Qt::LeftButton);
    QCOMPARE(swatch(3), Rgb::RGB(0, 200, 0));
    QCOMPARE(titles, QStringList({"ABC Color Selection", "ABC Color Selection"}));
    QCOMPARE(opened.value(0), QColor(0, 0, 0));
    QCOMPARE(opened.value(1), QColor(0, 200, 0));
    command(0)->click();
    QCOMPARE(CollisionSetup::global().ForceColor, float(Rgb::RGB(0, 200, 0) ^ Rgb::RGB(255, 255, 255)));
}

void CollisionOptionsTest::hintsNameTheBodyAndTheRange()
{
    open(1);
    auto hintOf = [](QWidget* widget) {
        QEvent enter(QEvent::Enter);
        QCoreApplication::sendEvent(widget, &enter);
        return Form<MDIMain>().statusLine();
    };
    QCOMPARE(hintOf(box("txtux", 1)), QString("Εισαγωγή ταχύτητας 2ου σώματος στον x-άξονα [-100,100]"));
    QCOMPARE(hintOf(control("lblUnits(8)")), QString("Αρχική θέση (x-άξονας)2ου σώματος (σε m)"));
    QCOMPARE(hintOf(command(2)), QString("Default values for all parameters"));
}

QTEST_MAIN(CollisionOptionsTest)
#include "tst_collisionoptions.moc"
