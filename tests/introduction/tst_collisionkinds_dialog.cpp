#include "ModalAnswerer.h"
#include "TestWindow.h"
#include "WindowChecks.h"

#include "canvas/Rgb.h"
#include "introduction/frmCollisionOptions.h"
#include "model/CollisionSetup.h"
#include "widgets/OptionsWidgets.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

using namespace OptionsWidgets;
using Direction = CollisionSetup::Direction;
using Elasticity = CollisionSetup::Elasticity;

namespace {

constexpr int32_t White = Rgb::RGB(255, 255, 255);

CollisionSetup& testSetup()
{
    static CollisionSetup record;
    return record;
}

TestWindow<frmCollisionOptions>& window()
{
    static TestWindow<frmCollisionOptions> options([] { return new frmCollisionOptions(testSetup(), White); });
    return options;
}

template <class T = QWidget>
T* control(const QString& name)
{
    return window().get().findChild<T*>(name);
}

void click(const QString& name)
{
    QWidget* widget = control(name);
    QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(8, widget->height() / 2));
}

void open(int16_t page)
{
    testSetup().Page = page;
    window().get().show();
    QVERIFY(QTest::qWaitForWindowExposed(&window().get()));
}

bool checked(const QString& name)
{
    return control<QAbstractButton>(name)->isChecked();
}

} // namespace

class CollisionKindsDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        testSetup().resetDefaults(White);
        testSetup().useDefaultColours();
    }

    void cleanup()
    {
        window().unload();
        closeLeftoverWindows();
        QVERIFY(!window().loaded());
    }

    void momentumAndCollisionTypesAreStoredAndRestored()
    {
        CollisionSetup& setup = testSetup();
        open(1);
        QVERIFY(!checked("chkShowMomenta") && checked("OptType1(0)") && checked("OptType2(0)"));
        QCOMPARE(swatchColor(control<QLabel>("lblCurrentColor(4)")), Rgb::RGB(128, 0, 160));
        click("chkShowMomenta");
        click("OptType1(1)");
        click("OptType2(1)");
        click("cmdCommand(0)");
        QVERIFY(!window().loaded());
        QCOMPARE(setup.ShowMomenta, int16_t(1));
        QVERIFY(setup.CollisionDirection == Direction::Oblique);
        QVERIFY(setup.CollisionElasticity == Elasticity::Plastic);

        // Reopened: shown as stored; "Default values" then "Cancel" keeps them.
        open(1);
        QVERIFY(checked("chkShowMomenta") && checked("OptType1(1)") && checked("OptType2(1)"));
        click("cmdCommand(2)");
        QVERIFY(!checked("chkShowMomenta") && checked("OptType1(0)") && checked("OptType2(0)"));
        click("cmdCommand(1)");
        QVERIFY(setup.CollisionElasticity == Elasticity::Plastic);

        // "Default values" then "Ok" stores the defaults.
        open(1);
        click("cmdCommand(2)");
        click("cmdCommand(0)");
        QCOMPARE(setup.ShowMomenta, int16_t(0));
        QVERIFY(setup.CollisionDirection == Direction::Central);
        QVERIFY(setup.CollisionElasticity == Elasticity::Elastic);
    }

    void sideViewOffersPlasticBesideTheGraphSwitches()
    {
        CollisionSetup& setup = testSetup();
        setup.CollisionDirection = Direction::Oblique; // chosen from above, kept by the side view
        open(2);
        QVERIFY(control("picCollType2")->isHidden());
        QVERIFY(!control("chkPlastic")->isHidden() && !checked("chkPlastic"));
        click("chkPlastic");
        click("cmdCommand(0)");
        QVERIFY(setup.CollisionElasticity == Elasticity::Plastic);
        QVERIFY(setup.CollisionDirection == Direction::Oblique);
        open(2);
        QVERIFY(checked("chkPlastic"));
        window().unload();
        open(1);
        QVERIFY(control("chkPlastic")->isHidden());
    }

    void fifthSwatchTakesTheChosenMomentumColour()
    {
        const int32_t chosen = Rgb::RGB(0, 128, 64);
        open(1);
        ModalAnswerer answer([chosen](QWidget* modal) {
            auto* colours = qobject_cast<QColorDialog*>(modal);
            QVERIFY(colours);
            colours->setCurrentColor(QColor(0, 128, 64));
            colours->accept();
        });
        click("cmdColorSelection(4)");
        QTRY_COMPARE(swatchColor(control<QLabel>("lblCurrentColor(4)")), chosen);
        click("cmdCommand(0)");
        QCOMPARE(testSetup().MomentumColor, float(chosen ^ White));
    }
};

QTEST_MAIN(CollisionKindsDialogTest)
#include "tst_collisionkinds_dialog.moc"
