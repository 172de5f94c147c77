#include "ModalAnswerer.h"
#include "TestWindow.h"
#include "WindowChecks.h"

#include "canvas/Rgb.h"
#include "core/Twips.h"
#include "widgets/OptionsWidgets.h"
#include "microview/frmLGOptions.h"
#include "model/FluidParameters.h"
#include "model/ParameterDefaults.h"

#include <QColorDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using OptionsWidgets::indexedName;

namespace {

FluidParameters& testFluid()
{
    static FluidParameters values;
    return values;
}

// The page the dialog is opened from.
int16_t openedPage = 6;

TestWindow<frmLGOptions>& window()
{
    static TestWindow<frmLGOptions> options([] { return new frmLGOptions(testFluid(), openedPage); });
    return options;
}

frmLGOptions& dialog()
{
    return window().get();
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

QString text(const char* name)
{
    return control<QLineEdit>(name)->text();
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
    openedPage = page;
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
    void okStoresRowsAndColumnsWithinTheirLimitsAndTheChosenColours();
    void pageEightMovesTheButtonsUp();
};

void LGOptionsTest::init()
{
    ResetFluidDefaults(testFluid());
}

void LGOptionsTest::cleanup()
{
    window().unload();
    closeLeftoverWindows();
    QVERIFY(!window().loaded());
}

void LGOptionsTest::okStoresRowsAndColumnsWithinTheirLimitsAndTheChosenColours()
{
    // Default values refill the controls only: Cancel leaves the record as it was.
    FluidParameters& fluid = testFluid();
    fluid.FluidRows = 2;
    fluid.FluidGroupColor[2] = Rgb::RGB(0, 255, 0);
    open(6);
    QCOMPARE(text("txtNoOfRows") + text("txtNoOfColumns"), QString("25"));
    QCOMPARE(swatch(1), Rgb::RGB(0, 255, 0));
    type("txtNoOfColumns", "9");
    command(2)->click();
    QCOMPARE(text("txtNoOfRows") + text("txtNoOfColumns"), QString("65"));
    QCOMPARE(textColor("txtNoOfColumns"), Blue);
    QVERIFY(command(0)->isEnabled());
    QCOMPARE(swatch(0), Rgb::RGB(255, 0, 0));
    QCOMPARE(swatch(1), Rgb::RGB(0, 0, 255));
    command(1)->click();
    QCOMPARE(fluid.FluidRows, int16_t(2));
    QCOMPARE(fluid.FluidGroupColor[2], float(Rgb::RGB(0, 255, 0)));

    open(6);
    // Typed one after another: the box's colour, then whether Ok can be clicked.
    const std::tuple<const char*, const char*, int32_t, bool> typed[] = {{"txtNoOfRows", "7", Grey, false},
        {"txtNoOfColumns", "12", Grey, false}, {"txtNoOfRows", "6", Blue, false}, // the columns are still refused
        {"txtNoOfColumns", "0", Blue, true}, {"txtNoOfColumns", "-1", Grey, false},
        {"txtNoOfColumns", "2.", Grey, false}, {"txtNoOfColumns", "x", Grey, false},
        {"txtNoOfColumns", "1234", Grey, false}};
    for (const auto& [name, typedText, colour, ok] : typed) {
        type(name, typedText);
        QVERIFY2(textColor(name) == colour && command(0)->isEnabled() == ok, typedText);
    }
    QCOMPARE(text("txtNoOfColumns"), QString("123"));
    QVERIFY(command(1)->isEnabled() && command(2)->isEnabled());

    // The chooser keeps the colour it last returned, also when it is cancelled.
    bool choose = true;
    QStringList choosers;
    ModalAnswerer answerer([&](QWidget* modal) {
        choosers << modal->objectName() + ":" + modal->windowTitle();
        auto* chooser = static_cast<QColorDialog*>(modal);
        chooser->setCurrentColor(choose ? QColor(0, 200, 0) : QColor(9, 9, 9));
        choose ? chooser->accept() : chooser->reject();
    });
    control<QPushButton>("cmdColorSelection(0)")->click();
    QCOMPARE(swatch(0), Rgb::RGB(0, 200, 0));
    choose = false;
    QTest::mouseClick(control("lblColorSelection(1)"), Qt::LeftButton);
    QCOMPARE(swatch(1), Rgb::RGB(0, 200, 0));
    QCOMPARE(choosers, QStringList(2, "CMDColors:ABC Color Selection"));

    type("txtNoOfRows", "3");
    type("txtNoOfColumns", " 4");
    command(0)->click();
    QVERIFY(!window().loaded());
    QCOMPARE(fluid.FluidRows, int16_t(3));
    QCOMPARE(fluid.FluidColumns, int16_t(4));
    QCOMPARE(fluid.FluidGroupColor[1], float(Rgb::RGB(0, 200, 0)));
    QCOMPARE(fluid.FluidGroupColor[2], float(Rgb::RGB(0, 200, 0)));
    QVERIFY(fluid.LiquidSurface3D);
}

void LGOptionsTest::pageEightMovesTheButtonsUp()
{
    // Ok, Cancel and Default values go up by the switch's place, and the window with them.
    auto heights = [] { return QList<int>{command(0)->y(), command(1)->y(), command(2)->y(), dialog().height()}; };
    open(6);
    QList<int> lifted = heights();
    window().unload();
    open(8);
    for (int& height : lifted)
        height -= Twips::toPixels(480);
    QCOMPARE(heights(), lifted);
    const QRect surfaceSwitch = control("chk3DLiquidSurface")->geometry().translated(control("fraOptions")->pos());
    QVERIFY(command(2)->geometry().intersects(surfaceSwitch));
}

QTEST_MAIN(LGOptionsTest)
#include "tst_lgoptions.moc"
