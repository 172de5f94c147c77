// The microscopic view's tick: what one whole tick costs, and how many ticks per
// second the open window sustains with its 1 ms timer.

#include "core/ScopedRandomSequence.h"
#include "microview/TickDriver.h"
#include "microview/frmMicroView.h"
#include "shell/Forms.h"

#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QPushButton>
#include <QScrollBar>

#include <benchmark/benchmark.h>

namespace {

// The heaviest set-up the controls allow: 25 molecules per sample, trails and grid.
frmMicroView& heavyView()
{
    frmMicroView& view = Form<frmMicroView>();
    view.show();
    QCoreApplication::processEvents();
    view.findChild<QScrollBar*>("HScrNoOfMolecules(0)")->setValue(5);
    view.findChild<QScrollBar*>("HScrNoOfMolecules(1)")->setValue(5);
    view.findChild<QCheckBox*>("ChkLeaveTrail")->click();
    view.findChild<QCheckBox*>("chkDrawGrid")->click();
    QCoreApplication::processEvents();
    return view;
}

void BM_WholeTick(benchmark::State& state)
{
    ScopedRandomSequence random(1.0);
    frmMicroView& view = heavyView();
    for (auto _ : state)
        view.SimulationTimer_Timer();
    state.counters["molecules"] = 75;
    Unload<frmMicroView>();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
BENCHMARK(BM_WholeTick)->Unit(benchmark::kMicrosecond);

void BM_SustainedTickRate(benchmark::State& state)
{
    constexpr qint64 RunMs = 5000;
    ScopedRandomSequence random(1.0);
    for (auto _ : state) {
        frmMicroView& view = heavyView();
        view.findChild<QPushButton*>("cmdCommand(1)")->click();
        QElapsedTimer clock;
        clock.start();
        while (clock.elapsed() < RunMs)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
        const double seconds = double(clock.nsecsElapsed()) / 1e9;
        state.counters["ticks_per_s"] = double(view.statistics().TickCount()) / seconds;
        state.counters["dropped_periods"] = double(view.simulationTimer().droppedPeriods());
        view.findChild<QPushButton*>("cmdCommand(1)")->click();
        Unload<frmMicroView>();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}
BENCHMARK(BM_SustainedTickRate)->Iterations(1)->Unit(benchmark::kSecond);

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
