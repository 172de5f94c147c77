#include "ModalAnswerer.h"
#include "TestWindow.h"
#include "WindowChecks.h"

#include "canvas/Rgb.h"
#include "widgets/OptionsWidgets.h"
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

using namespace OptionsWidgets;

namespace {

CollisionSetup& testSetup()
{
    static CollisionSetup record;
    return record;
}

// The dialog on the test's own set-up, its colours against the picture's white.
TestWindow<frmCollisionOptions>& window()
{
    static TestWindow<frmCollisionOptions> options(
        [] { return new frmCollisionOptions(testSetup(), Rgb::RGB(255, 255, 255)); });
    return options;
}

frmCollisionOptions& dialog()
{
    return window().get();
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
    if (text.isEmpty())
        QTest::keyClick(edit, Qt::Key_Backspace);
    else
        QTest::keyClicks(edit, text);
}

QPushButton* command(int index)
{
    return control<QPushButton>(indexedName("cmdCommand", index));
}

// Every body box's text, kind by kind, the first body's before the second's.
QString boxTexts()
{
    QStringList texts;
    for (const char* name : {"txtm", "txtR", "txtx", "txty", "txtux", "txtuy"})
        for (int i = 0; i < 2; ++i)
            texts << box(name, i)->text();
    return texts.join(' ');
}

// Every body value of the record, kind by kind, the first body's before the second's.
QList<float> storedValues()
{
    const CollisionSetup& setup = testSetup();
    QList<float> values;
    for (const auto* field : {&setup.Radius, &setup.X, &setup.Y, &setup.Ux, &setup.Uy})
        values << (*field)[1] << (*field)[2];
    return values << setup.Mass[1] << setup.Mass[2];
}

int32_t swatch(int index)
{
    return swatchColor(control<QLabel>(indexedName("lblCurrentColor", index)));
}

QString hintOf(QWidget* widget)
{
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(widget, &enter);
    return Form<MDIMain>().statusLine();
}

// Opens the dialog as the introduction does from a page.
void open(int16_t page)
{
    testSetup().Page = page;
    dialog().show();
}

} // namespace

class CollisionOptionsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void loadsTheRecordWithPlainColoursAndHints();
    void typedNumbersAreCheckedAgainstTheirRanges();
    void okStoresTheTypedValuesAndChosenColours();
    void aReopenedDialogShowsAndKeepsEveryValueWhole();
    void eachViewShowsOnlyItsOwnControlsAndDefaults();
};

void CollisionOptionsTest::init()
{
    CollisionSetup& setup = testSetup();
    setup.resetDefaults(Rgb::RGB(255, 255, 255));
    setup.useDefaultColours();
}

void CollisionOptionsTest::cleanup()
{
    window().unload();
    closeLeftoverWindows();
    QVERIFY(!window().loaded());
}

void CollisionOptionsTest::loadsTheRecordWithPlainColoursAndHints()
{
    open(2);
    QCOMPARE(boxTexts(), QString("10 15 10 10 0 100 0 0 100 50 0 0"));
    const int32_t plain[] = {
        Rgb::RGB(80, 255, 80), Rgb::RGB(255, 255, 80), Rgb::RGB(255, 255, 175), Rgb::RGB(255, 0, 0)};
    for (int i = 0; i < 4; ++i)
        QCOMPARE(swatch(i), plain[i]);
    QVERIFY(command(0)->isEnabled());
    // The hints name the body and the range.
    QCOMPARE(hintOf(box("txtux", 1)), QString("Εισαγωγή ταχύτητας 2ου σώματος στον x-άξονα [-100,100]"));
    QCOMPARE(hintOf(control("lblUnits(8)")), QString("Αρχική θέση (x-άξονας)2ου σώματος (σε m)"));
    QCOMPARE(hintOf(command(2)), QString("Default values for all parameters"));
    window().unload();

    testSetup().Radius[1] = 0.5f;
    testSetup().X[2] = -25;
    testSetup().ForceModel = 2;
    open(2);
    QCOMPARE(boxTexts(), QString("10 15 0.5 10 0 -25 0 0 100 50 0 0"));
    QVERIFY(control<QRadioButton>("optModel(2)")->isChecked());
}

void CollisionOptionsTest::typedNumbersAreCheckedAgainstTheirRanges()
{
    open(1);
    // Typed one after another: the box shown valid or not, then whether Ok can be clicked.
    const std::tuple<const char*, int, const char*, bool, bool> cases[] = {
        {"txtR", 0, "101", false, false}, {"txtm", 0, "0", false, false},
        {"txtR", 0, "100", true, false}, // the mass is still refused
        {"txtm", 0, "0.4", false, false}, {"txtm", 0, "0.6", true, true}, {"txtR", 1, "-5", false, false},
        {"txtR", 1, "1", true, true}, {"txtx", 1, "-5", true, true}, {"txtx", 1, "0", true, true},
        {"txtR", 1, "0", false, false}, {"txtR", 1, "1", true, true}, {"txtuy", 1, "1.5", true, true},
        {"txtm", 1, "1..", false, false}, {"txtm", 1, "1", true, true}, {"txtux", 1, "5-", false, false},
        {"txtux", 1, "1", true, true}, {"txtx", 1, "", false, false},
    };
    for (const auto& [name, index, text, valid, ok] : cases) {
        QLineEdit* edit = box(name, index);
        type(edit, text);
        const QString what = QString("%1(%2) %3").arg(name).arg(index).arg(text);
        QVERIFY2(textColor(edit) == (valid ? ValidTextColor : InvalidTextColor), qPrintable(what));
        QVERIFY2(command(0)->isEnabled() == ok, qPrintable(what));
    }
    // Three characters at most.
    type(box("txtux", 1), "-101");
    QCOMPARE(box("txtux", 1)->text(), QString("-10"));
    type(box("txtx", 0), "1000");
    QCOMPARE(box("txtx", 0)->text(), QString("100"));
}

void CollisionOptionsTest::okStoresTheTypedValuesAndChosenColours()
{
    open(1);
    for (const auto& [name, index, text] : {std::tuple{"txtm", 0, "2.5"}, {"txtm", 1, "3.5"}, {"txtR", 0, "7.5"},
             {"txty", 1, "-40"}, {"txtuy", 0, "30"}})
        type(box(name, index), text);
    control<QCheckBox>("chkShowForces")->setChecked(false);
    control<QRadioButton>("optModel(1)")->setChecked(true);
    // The chooser opens on the colour it last returned, also when it is cancelled.
    QStringList titles;
    QList<QColor> opened;
    bool choose = true;
    ModalAnswerer answerer([&](QWidget* modal) {
        auto* chooser = qobject_cast<QColorDialog*>(modal);
        QVERIFY(chooser);
        titles << chooser->windowTitle();
        opened << chooser->currentColor();
        chooser->setCurrentColor(choose ? QColor(0, 200, 0) : QColor(9, 9, 9));
        choose ? chooser->accept() : chooser->reject();
    });
    control<QPushButton>("cmdColorSelection(0)")->click();
    QCOMPARE(swatch(0), Rgb::RGB(0, 200, 0));
    choose = false;
    QTest::mouseClick(control("lblCurrentColor(3)"), Qt::LeftButton);
    QCOMPARE(swatch(3), Rgb::RGB(0, 200, 0));
    QCOMPARE(titles, QStringList({"ABC Color Selection", "ABC Color Selection"}));
    QCOMPARE(opened, QList<QColor>({QColor(0, 0, 0), QColor(0, 200, 0)}));

    command(0)->click();
    QVERIFY(!window().loaded());
    const CollisionSetup& setup = testSetup();
    QCOMPARE(setup.Mass[1], int16_t(2));
    QCOMPARE(setup.Mass[2], int16_t(4));
    QCOMPARE(setup.Radius[1], 7.5f);
    QCOMPARE(setup.Y[2], -40.0f);
    QCOMPARE(setup.Uy[1], 30.0f);
    QCOMPARE(setup.ShowForces, int16_t(0));
    QCOMPARE(setup.ShowVelocities, int16_t(1));
    QCOMPARE(setup.ForceModel, int16_t(1));
    // Colours are stored combined with the picture's white background.
    QCOMPARE(setup.BodyColor[1], float(Rgb::RGB(0, 200, 0) ^ Rgb::RGB(255, 255, 255)));
    QCOMPARE(setup.ForceColor, float(Rgb::RGB(0, 200, 0) ^ Rgb::RGB(255, 255, 255)));
}

void CollisionOptionsTest::aReopenedDialogShowsAndKeepsEveryValueWhole()
{
    // Three typed characters can make a value whose plain text is longer.
    open(1);
    for (const auto& [name, index, text] : {std::tuple{"txtR", 0, ".25"}, {"txtR", 1, ".05"}, {"txtx", 0, "-.5"},
             {"txty", 1, "-.1"}, {"txtux", 1, "-.5"}, {"txtuy", 0, ".75"}})
        type(box(name, index), text);
    command(0)->click();
    const QList<float> stored = storedValues();
    QCOMPARE(stored[0], 0.25f);

    open(1);
    QCOMPARE(boxTexts(), QString("10 15 0.25 0.05 -0.5 100 0 -0.1 100 -0.5 0.75 0"));
    for (const char* name : {"txtR", "txtx", "txty", "txtux", "txtuy"})
        for (int i = 0; i < 2; ++i)
            QCOMPARE(textColor(box(name, i)), ValidTextColor);
    QVERIFY(command(0)->isEnabled());
    command(0)->click();
    QCOMPARE(storedValues(), stored);

    // The limit still holds for typing: a shown text grows no longer, but it can be shortened.
    open(2);
    QLineEdit* radius = box("txtR", 0);
    radius->end(false);
    QTest::keyClick(radius, Qt::Key_1);
    QCOMPARE(radius->text(), QString("0.25"));
    QTest::keyClick(radius, Qt::Key_Backspace);
    QCOMPARE(radius->text(), QString("0.2"));
    QTest::keyClick(radius, Qt::Key_3);
    QCOMPARE(radius->text(), QString("0.2"));
    // A locked y value of the side view is stored as shown, whole.
    command(0)->click();
    QCOMPARE(testSetup().Radius[1], 0.2f);
    QCOMPARE(testSetup().Y[2], -0.1f);
    QCOMPARE(testSetup().Uy[1], 0.75f);
}

void CollisionOptionsTest::eachViewShowsOnlyItsOwnControlsAndDefaults()
{
    // The view from above hides the graph switches but keeps their values.
    CollisionSetup& setup = testSetup();
    setup.GraphVelocity = 0;
    open(1);
    for (const char* name : {"chkGraphS", "chkGraphU", "chkGraphF", "chkProportional"})
        QVERIFY(control(name)->isHidden());
    QCOMPARE(control<QGroupBox>("fraGraphs")->title(), QString("Κατηγοριοποίηση Κρούσεων"));
    QVERIFY(!control("picCollType1")->isHidden() && box("txty", 0)->isEnabled());
    command(0)->click();
    QCOMPARE(setup.GraphVelocity, int16_t(0));

    // The side view shows its y values locked; Default values refills every box, and
    // Cancel leaves the record as it was.
    setup.Mass[1] = 7;
    setup.Uy[2] = 20;
    setup.ProportionalGraphs = 1;
    setup.BodyColor[1] = 0;
    open(2);
    for (int i = 0; i < 2; ++i)
        for (const char* name : {"txty", "txtuy"}) {
            QVERIFY(!box(name, i)->isEnabled());
            QCOMPARE(textColor(box(name, i)), Rgb::RGB(110, 110, 110));
        }
    QCOMPARE(boxTexts(), QString("7 15 10 10 0 100 0 0 100 50 0 20"));
    QVERIFY(control("picCollType1")->isHidden() && control("picCollType2")->isHidden());
    QVERIFY(!control("chkGraphS")->isHidden());
    type(box("txtR", 0), "101");
    command(2)->click();
    QCOMPARE(boxTexts(), QString("10 15 10 10 0 100 0 0 100 50 0 0"));
    QCOMPARE(textColor(box("txtR", 0)), ValidTextColor);
    QCOMPARE(textColor(box("txtuy", 1)), Rgb::RGB(110, 110, 110));
    QVERIFY(command(0)->isEnabled());
    QVERIFY(!control<QCheckBox>("chkProportional")->isChecked());
    QCOMPARE(swatch(0), Rgb::RGB(80, 255, 80));
    command(1)->click();
    QVERIFY(!window().loaded());
    QCOMPARE(setup.Mass[1], int16_t(7));
    QCOMPARE(setup.Uy[2], 20.0f);
    QCOMPARE(setup.ProportionalGraphs, int16_t(1));
    QCOMPARE(setup.BodyColor[1], 0.0f);
    // Ok stores the locked values as they are shown.
    open(2);
    command(2)->click();
    command(0)->click();
    QCOMPARE(setup.Uy[2], 0.0f);
}

QTEST_MAIN(CollisionOptionsTest)
#include "tst_collisionoptions.moc"
