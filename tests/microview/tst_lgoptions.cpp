#include "ModalAnswerer.h"
#include "WindowChecks.h"

#include "canvas/Rgb.h"
#include "core/Twips.h"
#include "introduction/OptionsWidgets.h"
#include "microview/frmLGOptions.h"
#include "model/CollisionSetup.h"
#include "shell/Defaults.h"
#include "shell/FluidParameters.h"
#include "shell/Forms.h"

#include <QColorDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using OptionsWidgets::indexedName;

namespace {

frmLGOptions& dialog()
{
    return Form<frmLGOptions>();
}

template <class T = QWidget>
T* control(const QString& name)
{
    return dialog().findChild<T*>(name);
}

QPushButton* command(int index)
{
    return control<QPushButton>(indexedName("cmdCommand", index));
}

void type(const char* name, const QString& text)
{
    auto* edit = control<QLineEdit>(name);
    edit->selectAll();
    QTest::keyClicks(edit, text);
}

int32_t textColor(const char* name)
{
    return OptionsWidgets::textColor(control<QLineEdit>(name));
}

int32_t swatch(int index)
{
    return OptionsWidgets::swatchColor(control<QLabel>(indexedName("lblCurrentColor", index)));
}

void open(int16_t page)
{
    CollisionSetup::global().Page = page;
    dialog().show();
}

constexpr int32_t Blue = Rgb::RGB(0, 0, 255);
constexpr int32_t Grey = Rgb::RGB(100, 100, 100);

} // namespace

class LGOptionsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void rowsAndColumnsAreCheckedAgainstTheirLimits();
    void okStoresTheTypedValues();
    void defaultValuesRefillTheControlsOnly();
    void pageEightMovesTheButtonsUp();
    void theChooserKeepsTheColourItLastReturned();
};

void LGOptionsTest::init()
{
    ResetFluidDefaults();
}

void LGOptionsTest::cleanup()
{
    if (IsLoaded<frmLGOptions>())
        Unload<frmLGOptions>();
    closeLeftoverWindows();
    QVERIFY(!IsLoaded<frmLGOptions>());
}

void LGOptionsTest::rowsAndColumnsAreCheckedAgainstTheirLimits()
{
    open(6);
    QCOMPARE(dialog().windowTitle(), QString("Parameters of Gas Molecules"));
    QCOMPARE(control<QLineEdit>("txtNoOfRows")->text(), QString("6"));
    QCOMPARE(textColor("txtNoOfRows"), Blue);
    type("txtNoOfRows", "7");
    QCOMPARE(textColor("txtNoOfRows"), Grey);
    QVERIFY(!command(0)->isEnabled());
    type("txtNoOfColumns", "12");
    QCOMPARE(textColor("txtNoOfColumns"), Grey);
    type("txtNoOfRows", "6");
    QCOMPARE(textColor("txtNoOfRows"), Blue);
    QVERIFY(!command(0)->isEnabled()); // the columns are still refused
    type("txtNoOfColumns", "0");
    QCOMPARE(textColor("txtNoOfColumns"), Blue);
    QVERIFY(command(0)->isEnabled());
    for (const char* refused : {"-1", "2.", "x", "1234"}) {
        type("txtNoOfColumns", refused);
        QVERIFY2(!command(0)->isEnabled(), refused);
    }
    QCOMPARE(control<QLineEdit>("txtNoOfColumns")->text(), QString("123"));
    QVERIFY(command(1)->isEnabled() && command(2)->isEnabled());
}

void LGOptionsTest::okStoresTheTypedValues()
{
    open(6);
    type("txtNoOfRows", "3");
    type("txtNoOfColumns", " 4");
    command(0)->click();
    QVERIFY(!IsLoaded<frmLGOptions>());
    QCOMPARE(FluidParameters::shared().FluidRows, int16_t(3));
    QCOMPARE(FluidParameters::shared().FluidColumns, int16_t(4));
    QCOMPARE(FluidParameters::shared().FluidGroupColor[1], float(Rgb::RGB(255, 0, 0)));
    QVERIFY(FluidParameters::shared().LiquidSurface3D);
}

void LGOptionsTest::defaultValuesRefillTheControlsOnly()
{
    FluidParameters& fluid = FluidParameters::shared();
    fluid.FluidRows = 2;
    fluid.FluidGroupColor[2] = Rgb::RGB(0, 255, 0);
    open(6);
    QCOMPARE(swatch(1), Rgb::RGB(0, 255, 0));
    type("txtNoOfColumns", "9");
    command(2)->click();
    QCOMPARE(control<QLineEdit>("txtNoOfRows")->text(), QString("6"));
    QCOMPARE(control<QLineEdit>("txtNoOfColumns")->text(), QString("5"));
    QCOMPARE(textColor("txtNoOfColumns"), Blue);
    QVERIFY(command(0)->isEnabled());
    QCOMPARE(swatch(0), Rgb::RGB(255, 0, 0));
    QCOMPARE(swatch(1), Rgb::RGB(0, 0, 255));
    command(1)->click();
    QCOMPARE(fluid.FluidRows, int16_t(2));
    QCOMPARE(fluid.FluidGroupColor[2], float(Rgb::RGB(0, 255, 0)));
}

void LGOptionsTest::pageEightMovesTheButtonsUp()
{
    open(6);
    const int okTop = command(0)->y();
    const int defaultsTop = command(2)->y();
    const int height = dialog().height();
    Unload<frmLGOptions>();
    open(8);
    const int lift = Twips::toPixels(480);
    QCOMPARE(command(0)->y(), okTop - lift);
    QCOMPARE(command(1)->y(), okTop - lift);
    QCOMPARE(command(2)->y(), defaultsTop - lift);
    QCOMPARE(dialog().height(), height - lift);
    const QRect surfaceSwitch = control("chk3DLiquidSurface")->geometry().translated(control("fraOptions")->pos());
    QVERIFY(command(2)->geometry().intersects(surfaceSwitch));
}

void LGOptionsTest::theChooserKeepsTheColourItLastReturned()
{
    open(6);
    bool choose = true;
    ModalAnswerer answerer([&](QWidget* modal) {
        auto* chooser = static_cast<QColorDialog*>(modal);
        chooser->setCurrentColor(choose ? QColor(0, 255, 0) : QColor(9, 9, 9));
        choose ? chooser->accept() : chooser->reject();
    });
    control<QPushButton>("cmdColorSelection(0)")->click();
    QCOMPARE(swatch(0), Rgb::RGB(0, 255, 0));
    choose = false;
    QTest::mouseClick(control("lblColorSelection(1)"), Qt::LeftButton);
    QCOMPARE(swatch(1), Rgb::RGB(0, 255, 0));
    command(0)->click();
    QCOMPARE(FluidParameters::shared().FluidGroupColor[2], float(Rgb::RGB(0, 255, 0)));
}

QTEST_MAIN(LGOptionsTest)
#include "tst_lgoptions.moc"
