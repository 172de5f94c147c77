#include "ModalAnswerer.h"
#include "WindowChecks.h"

#include "widgets/CanvasWidget.h"
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

// Spins the event loop, so that the 1 ms timer is not starved as by qWait; true if
// done in time.
bool spinUntil(const std::function<bool()>& done, int timeoutMs = 3000)
{
    QElapsedTimer clock;
    clock.start();
    while (!done() && clock.elapsed() < timeoutMs)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    return done();
}

// Whether the three samples all satisfy a condition.
bool allSamples(const std::function<bool(const Gas&)>& condition)
{
    return condition(*view().sample(0)) && condition(*view().sample(1)) && condition(*view().sample(2));
}

} // namespace

class MicroViewTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void opensPausedWithTheStartValues();
    void simulatePauseRestartClearAndFault();
    void controlsReachEverySample();
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
    QStringList labels;
    for (const char* name : {"lblMass", "lblRadius", "lblTemp", "lbldt", "lblNoOfMolecules(0)", "lblNoOfMolecules(1)"})
        labels << text(name);
    QCOMPARE(labels, QStringList({"m=10", "R=70", "T=293", "dt=0.1", "Nx=3", "Ny=3"}));
    QCOMPARE(control<QLabel>("lblTemp")->palette().color(QPalette::WindowText), QColor(255, 0, 0));
    QCOMPARE(control<QCheckBox>("ChkRandomDrawColor")->text(), QString("Random Draw  Color"));

    const std::array<float, 3> wallCoords = {635, 1270, 595};
    for (int i = 0; i < 3; ++i) {
        // Wall, wall position, molecules, temperature, equilibrium, mass and radius.
        const Gas& gas = *view().sample(i);
        QCOMPARE(QList<float>({float(gas.Wall()), gas.WallCoord(), float(gas.NoOfMolecules()), float(gas.Temperature()),
                     float(gas.EquilibriumTemperature()), gas.Molecule(9).mass(), float(gas.Molecule(9).radius())}),
            QList<float>({float(i), wallCoords[i], 9, 293, 165, 10, 70}));
    }

    // Paused: nothing moves and nothing is counted.
    CanvasWidget* picture = control<CanvasWidget>("picDraw(2)");
    const QImage drawn = picture->canvas().image();
    QTest::qWait(50);
    QCOMPARE(picture->canvas().image(), drawn);
    QCOMPARE(view().statistics().TickCount(), int64_t(0));

    // A covered picture is redrawn from its sample.
    picture->canvas().setDrawMode(13);
    picture->canvas().Box(0, 0, 900, 900, 0);
    picture->canvas().setDrawMode(7);
    QVERIFY(picture->canvas().image() != drawn);
    picture->repaintFromOwner();
    QCOMPARE(picture->canvas().image(), drawn);
}

void MicroViewTest::simulatePauseRestartClearAndFault()
{
    const QImage before = control<CanvasWidget>("picDraw(0)")->canvas().image();
    click(button(1));
    QCOMPARE(button(1)->text(), QString("Pause"));
    QCOMPARE(button(1)->toolTip(), QString("Click to pause simulation"));
    QVERIFY(spinUntil([] { return view().statistics().TickCount() >= 200; }));
    QVERIFY(control<CanvasWidget>("picDraw(0)")->canvas().image() != before);

    click(button(1));
    QCOMPARE(button(1)->text(), QString("Simulate"));
    QCOMPARE(button(1)->toolTip(), QString("Click to begin simulation"));
    const int64_t ticks = view().statistics().TickCount();
    const QString mean = text("lblMeanFx(0)");
    const float scaleX = view().panel().IndicatorScaleX();
    const float offsetY = view().panel().GridOffsetY();
    spinUntil([] { return false; }, 30);
    QCOMPARE(view().statistics().TickCount(), ticks);

    // Simulate again restarts the means but keeps the scales, the grid and the labels.
    click(button(1));
    QCOMPARE(view().statistics().TickCount(), int64_t(0));
    QCOMPARE(view().panel().IndicatorScaleX(), scaleX);
    QCOMPARE(view().panel().GridOffsetY(), offsetY);
    QCOMPARE(text("lblMeanFx(0)"), mean);

    // Clear History empties the counters and the scales and lets the run go on.
    spinUntil([] { return view().statistics().TickCount() >= 20; });
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
    for (const auto& [mean, current] : {std::pair("lblMeanFx(0)", "lblCurrentFx(0)"),
             std::pair("lblMeanFx(1)", "lblCurrentFx(1)"), std::pair("lblMeanFy", "lblCurrentFy"),
             std::pair("lblFyMeanTotal", "lblCurrentFy")})
        QCOMPARE(text(mean).section(" = ", 1), text(current).section(" = ", 1));

    // Each sample reports its own wall only: the left and top impulses are never
    // positive, the right ones never negative.
    bool drawn = false;
    int tick = 0;
    for (; tick < 3000; ++tick) {
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
            break;
        view().SimulationTimer_Timer();
    }
    QVERIFY2(tick < 3000, "a wall was never struck");

    // A tick that faults stops the run as Pause would: here a radius whose contact
    // distance overflows 16 bits.
    view().sample(2)->setRadius(20000);
    click(button(1));
    ModalAnswerer answerer;
    QVERIFY(spinUntil([&] { return answerer.count() > 0 && !view().simulationTimer().Enabled(); }));
    QCOMPARE(answerer.count(), 1);
    QCOMPARE(answerer.title(), QString("Floatrix"));
    QCOMPARE(answerer.icon(), QMessageBox::Critical);
    QCOMPARE(button(1)->text(), QString("Simulate"));
}

void MicroViewTest::controlsReachEverySample()
{
    // The molecule bars rebuild every sample without touching the counters.
    click(button(1));
    spinUntil([] { return view().statistics().TickCount() >= 20; });
    const int64_t ticks = view().statistics().TickCount();
    control<QScrollBar>("HScrNoOfMolecules(1)")->setValue(5);
    QCOMPARE(text("lblNoOfMolecules(1)"), QString("Ny=5"));
    QVERIFY(allSamples([](const Gas& gas) { return gas.NoOfMolecules() == 15; }));
    control<QScrollBar>("HScrNoOfMolecules(0)")->setValue(1);
    QCOMPARE(text("lblNoOfMolecules(0)"), QString("Nx=1"));
    QVERIFY(allSamples([](const Gas& gas) { return gas.NoOfMolecules() == 5 && gas.Molecule(5).Column() == 1; }));
    QVERIFY(view().statistics().TickCount() >= ticks);

    // The temperature applies while its thumb is dragged; the mass only when let go.
    auto* temperature = control<QScrollBar>("HScrTemp");
    temperature->setSliderDown(true);
    temperature->setValue(320);
    QCOMPARE(text("lblTemp"), QString("T=320"));
    QVERIFY(allSamples([](const Gas& gas) { return gas.Temperature() == 320 && gas.MaxV() == 321; }));
    auto* mass = control<QScrollBar>("HScrMass");
    mass->setSliderDown(true);
    mass->setValue(250);
    QCOMPARE(view().sample(1)->MoleculesMass(), int16_t(10));
    mass->setSliderDown(false);
    QCOMPARE(text("lblMass"), QString("m=250"));
    QVERIFY(allSamples([](const Gas& gas) { return gas.Molecule(1).mass() == 250.0F; }));

    control<QScrollBar>("HScrRadius")->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    QCOMPARE(text("lblRadius"), QString("R=71"));
    QVERIFY(allSamples([](const Gas& gas) { return gas.Molecule(5).radius() == 71; }));
    auto* dt = control<QScrollBar>("HScrdt");
    dt->setValue(dt->minimum());
    QCOMPARE(text("lbldt"), QString("dt=0.01"));
    dt->setValue(dt->maximum());
    QCOMPARE(text("lbldt"), QString("dt=0.5"));
    QVERIFY(allSamples([](const Gas& gas) { return gas.TimeStep() == 0.5F; }));
    click(button(1));

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
    auto* random = control<QCheckBox>("ChkRandomDrawColor");
    click(random);

    // Observing one molecule locks the two style boxes, keeping their states.
    auto* observe = control<QCheckBox>("ChkObserveSingleMolecule");
    auto* filled = control<QCheckBox>("chkFilledMolecules");
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
