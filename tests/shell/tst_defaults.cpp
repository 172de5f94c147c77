#include "WindowChecks.h"

#include "canvas/Rgb.h"
#include "introduction/frmIntroduction.h"
#include "model/CollisionSetup.h"
#include "shell/Defaults.h"
#include "model/FluidParameters.h"
#include "shell/Forms.h"
#include "shell/ProgramRecords.h"

#include <QtTest>

class DefaultsTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void fluidDefaults();
    void collisionDefaultsAreMadeAgainstThePicture();
};

void DefaultsTest::cleanup()
{
    closeLeftoverWindows();
}

void DefaultsTest::fluidDefaults()
{
    FluidParameters& fluid = ProgramRecords::instance().Fluid;
    fluid = FluidParameters{1, 2, {0, 7, 7}, {0, 7, 7}, false};
    ResetFluidDefaults();
    QCOMPARE(fluid.FluidRows, int16_t(6));
    QCOMPARE(fluid.FluidColumns, int16_t(5));
    QCOMPARE(fluid.FluidGroupColor[1], 255.0f);
    QCOMPARE(fluid.FluidGroupColor[2], 16711680.0f);
    QCOMPARE(fluid.DefaultFluidGroupColor[2], 16711680.0f);
    QVERIFY(fluid.LiquidSurface3D);
}

void DefaultsTest::collisionDefaultsAreMadeAgainstThePicture()
{
    CollisionSetup& setup = ProgramRecords::instance().Collision;
    setup.Mass[2] = 1;
    setup.BodyColor[1] = 5;
    ProgramRecords::instance().Fluid.FluidRows = 1;
    QVERIFY(!IsLoaded<frmIntroduction>());
    RestoreAllDefaults();
    // The introduction is loaded to read its picture's background.
    QVERIFY(IsLoaded<frmIntroduction>());
    const int32_t background = Form<frmIntroduction>().PictureBackColor();
    QCOMPARE(setup.Mass[2], int16_t(15));
    QCOMPARE(ProgramRecords::instance().Fluid.FluidRows, int16_t(6));
    QCOMPARE(setup.DefaultBodyColor[1], float(Rgb::RGB(80, 255, 80) ^ background));
    QCOMPARE(setup.DefaultForceColor, float(Rgb::RGB(255, 0, 0) ^ background));

    setup.BodyColor[1] = 5;
    setup.X[1] = 40;
    RestoreAllDefaults(Rgb::RGB(0, 0, 0));
    QCOMPARE(setup.X[1], 0.0f);
    QCOMPARE(setup.DefaultBodyColor[2], float(Rgb::RGB(255, 255, 80)));
    QCOMPARE(setup.DefaultVelocityColor, float(Rgb::RGB(255, 255, 175)));
    QCOMPARE(setup.BodyColor[1], 5.0f);
    Unload<frmIntroduction>();
}

QTEST_MAIN(DefaultsTest)
#include "tst_defaults.moc"
