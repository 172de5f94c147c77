#include "ModalAnswerer.h"
#include "WindowChecks.h"

#include "canvas/CanvasWidget.h"
#include "core/ScopedRandomSequence.h"
#include "microview/TickDriver.h"
#include "microview/frmMicroView.h"
#include "model/Gas.h"
#include "shell/Forms.h"

#include <QCheckBox>
#include <QEventLoop>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
#include <QtTest>

#include <memory>
#include <vector>

namespace {

frmMicroView& view()
{
    return Form<frmMicroView>();
}

template <class T>
T* control(const char* name)
{
    T* found = view().findChild<T*>(name);
    if (!found)
        qFatal("no control %s", name);
    return found;
}

QString text(const char* label)
{
    return control<QLabel>(label)->text();
}

QPushButton* button(int index)
{
    return control<QPushButton>(QString("cmdCommand(%1)").arg(index).toLatin1().constData());
}

void click(QWidget* widget)
{
    QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(8, widget->height() / 2));
}

// Spins the event loop, so that the 1 ms timer is not starved as by qWait.
void spinUntil(const std::function<bool()>& done, int timeoutMs = 3000)
{
    QElapsedTimer clock;
    clock.start();
    while (!done() && clock.elapsed() < timeoutMs)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
}

std::vector<QPointF> positions(const Gas& gas)
{
    std::vector<QPointF> result;
    for (int16_t i = 1; i <= gas.NoOfMolecules(); ++i)
        result.emplace_back(gas.Molecule(i).Xcoord(), gas.Molecule(i).Ycoord());
    return result;
}

// Whether the three samples all satisfy a condition.
bool allSamples(const std::function<bool(const Gas&)>& condition)
{
    return condition(*view().sample(0)) && condition(*view().sample(1)) && condition(*view().sample(2));
}

// A number in a force label, after its prefix.
QString figure(const char* label)
{
    return text(label).section(" = ", 1);
}

} // namespace

class MicroViewTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void opensPausedWithTheStartValues();
    void simulatePauseAndRestart();
    void clearHistoryDuringARun();
    void barsReachEverySample();
    void checkBoxesReachEverySample();
    void coveredPictureIsRedrawnFromItsSample();
    void faultInATickStopsTheRun();
    void exitWhileRunning();

private:
    std::unique_ptr<ScopedRandomSequence> m_random;
};

void MicroViewTest::init()
{
    QLocale::setDefault(QLocale::c());
    m_random = std::make_unique<ScopedRandomSequence>(1.0);
    view().show();
    QVERIFY(QTest::qWaitForWindowExposed(&view()));
}

void MicroViewTest::cleanup()
{
    Unload<frmMicroView>();
    m_random.reset();
    QCOMPARE(closeLeftoverWindows(), 0);
}

void MicroViewTest::opensPausedWithTheStartValues()
{
    QCOMPARE(view().windowTitle(), QString("Microscopic View of Gas"));
    QCOMPARE(button(1)->text(), QString("Simulate"));
    QVERIFY(button(1)->toolTip().isEmpty());
    QVERIFY(!view().simulationTimer().Enabled());
    QCOMPARE(text("lblMass"), QString("m=10"));
    QCOMPARE(text("lblRadius"), QString("R=70"));
    QCOMPARE(text("lblTemp"), QString("T=293"));
    QCOMPARE(control<QLabel>("lblTemp")->palette().color(QPalette::WindowText), QColor(255, 0, 0));
    QCOMPARE(text("lbldt"), QString("dt=0.1"));
    QCOMPARE(text("lblNoOfMolecules(0)"), QString("Nx=3"));
    QCOMPARE(text("lblNoOfMolecules(1)"), QString("Ny=3"));
    QCOMPARE(control<QCheckBox>("ChkRandomDrawColor")->text(), QString("Random Draw  Color"));

    const std::array<float, 3> wallCoords = {635, 1270, 595};
    for (int i = 0; i < 3; ++i) {
        const Gas& gas = *view().sample(i);
        QCOMPARE(gas.Wall(), int16_t(i));
        QCOMPARE(gas.WallCoord(), wallCoords[i]);
        QCOMPARE(gas.NoOfMolecules(), int16_t(9));
        QCOMPARE(gas.Temperature(), int16_t(293));
        QCOMPARE(gas.EquilibriumTemperature(), int16_t(165));
        QCOMPARE(gas.Molecule(9).mass(), 10.0F);
        QCOMPARE(gas.Molecule(9).radius(), int16_t(70));
    }

    // Paused: nothing moves and nothing is counted.
    const auto before = positions(*view().sample(2));
    const QImage picture = control<CanvasWidget>("picDraw(2)")->canvas().image();
    QTest::qWait(50);
    QCOMPARE(positions(*view().sample(2)), before);
    QCOMPARE(control<CanvasWidget>("picDraw(2)")->canvas().image(), picture);
    QCOMPARE(view().statistics().TickCount(), int64_t(0));
}

void MicroViewTest::simulatePauseAndRestart()
{
    const auto before = positions(*view().sample(0));
    click(button(1));
    QCOMPARE(button(1)->text(), QString("Pause"));
    QCOMPARE(button(1)->toolTip(), QString("Click to pause simulation"));
    QVERIFY(view().simulationTimer().Enabled());
    spinUntil([] { return view().statistics().TickCount() >= 200; });
    QVERIFY(view().statistics().TickCount() >= 200);
    QVERIFY(positions(*view().sample(0)) != before);

    click(button(1));
    QCOMPARE(button(1)->text(), QString("Simulate"));
    QCOMPARE(button(1)->toolTip(), QString("Click to begin simulation"));
    const int64_t ticks = view().statistics().TickCount();
    const QString mean = text("lblMeanFx(0)");
    const float scaleX = view().panel().IndicatorScaleX();
    const float offsetY = view().panel().GridOffsetY();
    spinUntil([] { return false; }, 30);
    QCOMPARE(view().statistics().TickCount(), ticks);
    QCOMPARE(text("lblMeanFx(0)"), mean);

    // Simulate again restarts the means but keeps the scales and the grid.
    click(button(1));
    QCOMPARE(view().statistics().TickCount(), int64_t(0));
    QCOMPARE(view().statistics().SumTop(), 0.0);
    QCOMPARE(view().panel().IndicatorScaleX(), scaleX);
    QCOMPARE(view().panel().GridOffsetY(), offsetY);
    QCOMPARE(text("lblMeanFx(0)"), mean);
    click(button(1));
}

void MicroViewTest::clearHistoryDuringARun()
{
    click(button(1));
    spinUntil([] { return view().statistics().TickCount() >= 100; });
    click(button(2));
    QCOMPARE(view().statistics().TickCount(), int64_t(0));
    QCOMPARE(view().panel().IndicatorScaleX(), 0.0F);
    QCOMPARE(view().panel().IndicatorScaleY(), 0.0F);
    QVERIFY(view().simulationTimer().Enabled());
    click(button(1));

    // Tick by hand: each label gets its own figure, the first tick's means are its
    // current values, and the horizontal indicator (blanked here, so that any new
    // drawing of it shows) stays as it is until its total is non-zero.
    ImageCanvas& indicatorX = control<CanvasWidget>("picForceXIndicator")->canvas();
    indicatorX.Cls();
    const QImage frozenX = indicatorX.image();
    view().SimulationTimer_Timer();
    const std::vector<std::pair<const char*, QString>> prefixes = {{"lblCurrentFx(0)", "  Fleft"},
        {"lblCurrentFx(1)", "  Fright"}, {"lblCurrentFy", "  Ftop"}, {"lblMeanFx(0)", "<Fleft>"},
        {"lblMeanFx(1)", "<Fright>"}, {"lblMeanFy", "<Ftop>"}, {"lblFxMeanTotal", "<Fhorizontal>"},
        {"lblFyMeanTotal", "<Fvertical>"}};
    for (const auto& [label, prefix] : prefixes)
        QCOMPARE(text(label).section(" = ", 0, 0), prefix);
    QCOMPARE(figure("lblMeanFx(0)"), figure("lblCurrentFx(0)"));
    QCOMPARE(figure("lblMeanFx(1)"), figure("lblCurrentFx(1)"));
    QCOMPARE(figure("lblMeanFy"), figure("lblCurrentFy"));
    QCOMPARE(figure("lblFyMeanTotal"), figure("lblCurrentFy"));

    // Each sample reports its own wall only: the left and top impulses are never
    // positive, the right ones never negative.
    bool drawn = false;
    for (int i = 0; i < 3000; ++i) {
        const ForceStatistics& statistics = view().statistics();
        const float H = float(statistics.SumLeft() + statistics.SumRight());
        const QImage image = indicatorX.image();
        if (!drawn && H != 0) {
            QCOMPARE(view().panel().IndicatorScaleX(), 2 * std::fabs(H));
            QVERIFY(image != frozenX);
            drawn = true;
        }
        QVERIFY(drawn || image == frozenX);
        QVERIFY(statistics.SumLeft() <= 0 && statistics.SumRight() >= 0 && statistics.SumTop() <= 0);
        if (drawn && statistics.SumLeft() < 0 && statistics.SumRight() > 0 && statistics.SumTop() < 0)
            return;
        view().SimulationTimer_Timer();
    }
    QFAIL("a wall was never struck");
}

void MicroViewTest::barsReachEverySample()
{
    click(button(1));
    spinUntil([] { return view().statistics().TickCount() >= 20; });
    const int64_t ticks = view().statistics().TickCount();
    auto* rows = control<QScrollBar>("HScrNoOfMolecules(1)");
    auto* columns = control<QScrollBar>("HScrNoOfMolecules(0)");
    rows->setValue(5);
    QCOMPARE(text("lblNoOfMolecules(1)"), QString("Ny=5"));
    QVERIFY(allSamples([](const Gas& gas) { return gas.NoOfMolecules() == 15; }));
    columns->setValue(5);
    QVERIFY(allSamples([](const Gas& gas) { return gas.NoOfMolecules() == 25; }));
    columns->setValue(1);
    QCOMPARE(text("lblNoOfMolecules(0)"), QString("Nx=1"));
    QVERIFY(allSamples([](const Gas& gas) { return gas.NoOfMolecules() == 5 && gas.Molecule(5).Column() == 1; }));
    QVERIFY(view().statistics().TickCount() >= ticks);

    // The temperature applies while its thumb is dragged; the mass only when let go.
    auto* temperature = control<QScrollBar>("HScrTemp");
    temperature->setSliderDown(true);
    temperature->setValue(320);
    QCOMPARE(text("lblTemp"), QString("T=320"));
    QCOMPARE(control<QLabel>("lblTemp")->palette().color(QPalette::WindowText), QColor(255, 0, 0));
    QVERIFY(allSamples([](const Gas& gas) { return gas.Temperature() == 320 && gas.MaxV() == 321; }));
    temperature->setSliderDown(false);
    auto* mass = control<QScrollBar>("HScrMass");
    mass->setSliderDown(true);
    mass->setValue(250);
    QCOMPARE(view().sample(1)->MoleculesMass(), int16_t(10));
    mass->setSliderDown(false);
    QCOMPARE(text("lblMass"), QString("m=250"));
    QVERIFY(allSamples([](const Gas& gas) { return gas.Molecule(1).mass() == 250.0F; }));

    auto* radius = control<QScrollBar>("HScrRadius");
    radius->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    QCOMPARE(text("lblRadius"), QString("R=71"));
    QVERIFY(allSamples([](const Gas& gas) { return gas.Molecule(5).radius() == 71; }));
    auto* dt = control<QScrollBar>("HScrdt");
    dt->setValue(dt->minimum());
    QCOMPARE(text("lbldt"), QString("dt=0.01"));
    dt->setValue(dt->maximum());
    QCOMPARE(text("lbldt"), QString("dt=0.5"));
    QVERIFY(allSamples([](const Gas& gas) { return gas.TimeStep() == 0.5F; }));
    click(button(1));
}

void MicroViewTest::checkBoxesReachEverySample()
{
    const std::vector<std::pair<const char*, std::function<bool(const Gas&)>>> boxes = {
        {"chkDrawGrid", [](const Gas& gas) { return gas.GridOn(); }},
        {"chkDrawCenterLine", [](const Gas& gas) { return gas.DrawCenterLine(); }},
        {"ChkRandomDrawColor", [](const Gas& gas) { return gas.RandomDrawColor(); }},
        {"chkFilledMolecules", [](const Gas& gas) { return gas.FilledMolecules(); }},
        {"ChkLeaveTrail", [](const Gas& gas) { return gas.LeaveTrail(); }},
        {"ChkPerturbation", [](const Gas& gas) { return gas.Perturbation(); }},
    };
    for (const auto& [name, property] : boxes) {
        click(control<QCheckBox>(name));
        QVERIFY2(allSamples(property), name);
    }
    click(control<QCheckBox>("ChkRandomDrawColor"));

    // Observing one molecule locks the two style boxes, keeping their states.
    auto* observe = control<QCheckBox>("ChkObserveSingleMolecule");
    auto* filled = control<QCheckBox>("chkFilledMolecules");
    auto* random = control<QCheckBox>("ChkRandomDrawColor");
    click(observe);
    QVERIFY(!filled->isEnabled() && !random->isEnabled());
    click(filled);
    QVERIFY(filled->isChecked());
    QVERIFY(allSamples([](const Gas& gas) {
        return gas.ObserveSingleMolecule() && gas.Molecule(1).color() == 0xFF0000 && !gas.FilledMolecules();
    }));
    click(observe);
    QVERIFY(filled->isEnabled() && random->isEnabled());
    QVERIFY(filled->isChecked() && !random->isChecked());
    QVERIFY(allSamples([](const Gas& gas) { return !gas.ObserveSingleMolecule() && gas.FilledMolecules(); }));
}

void MicroViewTest::coveredPictureIsRedrawnFromItsSample()
{
    auto* picture = control<CanvasWidget>("picDraw(1)");
    const QImage drawn = picture->canvas().image();
    picture->canvas().setDrawMode(13);
    picture->canvas().Box(0, 0, 900, 900, 0);
    picture->canvas().setDrawMode(7);
    QVERIFY(picture->canvas().image() != drawn);
    picture->repaintFromOwner();
    QCOMPARE(picture->canvas().image(), drawn);
}

void MicroViewTest::faultInATickStopsTheRun()
{
    // A radius whose contact distance overflows 16 bits faults at the first tick.
    view().sample(2)->setRadius(20000);
    click(button(1));
    ModalAnswerer answerer;
    spinUntil([&] { return answerer.count() > 0 && !view().simulationTimer().Enabled(); });
    QCOMPARE(answerer.count(), 1);
    QCOMPARE(answerer.title(), QString("Floatrix"));
    QCOMPARE(answerer.icon(), QMessageBox::Critical);
    QCOMPARE(button(1)->text(), QString("Simulate"));
    QVERIFY(!view().simulationTimer().Enabled());
}

void MicroViewTest::exitWhileRunning()
{
    click(button(1));
    spinUntil([] { return view().statistics().TickCount() >= 20; });
    QPointer<frmMicroView> closing(&view());
    click(button(0));
    QVERIFY(!IsLoaded<frmMicroView>());
    QVERIFY(!closing || !closing->sample(0));
    spinUntil([] { return false; }, 30);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(closing.isNull());

    // Shown again, the window starts afresh from its design and start values.
    view().show();
    QCOMPARE(button(1)->text(), QString("Simulate"));
    QCOMPARE(view().statistics().TickCount(), int64_t(0));
    QCOMPARE(view().sample(0)->NoOfMolecules(), int16_t(9));
    QCOMPARE(control<QCheckBox>("chkDrawGrid")->isChecked(), false);
}

QTEST_MAIN(MicroViewTest)
#include "tst_microview.moc"
