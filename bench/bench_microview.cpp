// The microscopic view's tick: what one whole tick costs, and how many ticks per
// second the open window sustains with its 1 ms timer, at the screen's own scale
// and with the whole view at twice the size (QT_SCALE_FACTOR=2, every picture at
// twice the resolution). The program runs itself again for the second scale, as a
// scale factor holds for a whole process.

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

#include <cstdio>
#include <cstring>
#include <ctime>
#include <string>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

namespace {

// The environment variable that tells a run which scale it measures.
constexpr const char* ScaleVariable = "FLOATRIX_BENCH_SCALE";

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

double threadCpuSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) / 1e9;
}

void closeView()
{
    Unload<frmMicroView>();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void BM_WholeTick(benchmark::State& state)
{
    ScopedRandomSequence random(1.0);
    frmMicroView& view = heavyView();
    for (auto _ : state)
        view.SimulationTimer_Timer();
    state.counters["molecules"] = 75;
    state.counters["dpr"] = view.devicePixelRatioF();
    closeView();
}

void BM_SustainedTickRate(benchmark::State& state)
{
    constexpr qint64 RunMs = 5000;
    ScopedRandomSequence random(1.0);
    for (auto _ : state) {
        frmMicroView& view = heavyView();
        view.findChild<QPushButton*>("cmdCommand(1)")->click();
        QElapsedTimer clock;
        clock.start();
        const double cpuBefore = threadCpuSeconds();
        // The loop sleeps between events as the program's own does, so the
        // processor time it takes is the ticks' and the repaints' alone.
        while (clock.elapsed() < RunMs)
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        const double seconds = double(clock.nsecsElapsed()) / 1e9;
        const double ticks = double(view.statistics().TickCount());
        state.counters["ticks_per_s"] = ticks / seconds;
        state.counters["cpu_us_per_tick"] = (threadCpuSeconds() - cpuBefore) * 1e6 / ticks;
        state.counters["dropped_periods"] = double(view.simulationTimer().droppedPeriods());
        view.findChild<QPushButton*>("cmdCommand(1)")->click();
        closeView();
    }
}

void registerBenchmarks(const std::string& scale)
{
    benchmark::RegisterBenchmark(("BM_WholeTick/scale:" + scale).c_str(), BM_WholeTick)
        ->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark(("BM_SustainedTickRate/scale:" + scale).c_str(), BM_SustainedTickRate)
        ->Iterations(1)
        ->Unit(benchmark::kSecond);
}

// Runs this program again at scale 2 with the same arguments; its report follows.
int runAtDoubleScale(char** argv)
{
    std::string scaleSetting = std::string(ScaleVariable) + "=2";
    std::string factorSetting = "QT_SCALE_FACTOR=2";
    std::vector<char*> environment;
    for (char** entry = environ; *entry != nullptr; ++entry)
        if (std::strncmp(*entry, "QT_SCALE_FACTOR=", 16) != 0)
            environment.push_back(*entry);
    environment.push_back(scaleSetting.data());
    environment.push_back(factorSetting.data());
    environment.push_back(nullptr);
    std::fflush(stdout);
    const pid_t child = fork();
    if (child == 0) {
        execve("/proc/self/exe", argv, environment.data());
        _exit(127);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) < 0)
        return 1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const bool child = qEnvironmentVariableIsSet(ScaleVariable);
    const std::string scale = child ? qEnvironmentVariable(ScaleVariable).toStdString() : "1";
    std::vector<char*> arguments(argv, argv + argc);
    arguments.push_back(nullptr);
    int result = 0;
    {
        QApplication app(argc, argv);
        benchmark::Initialize(&argc, argv);
        registerBenchmarks(scale);
        benchmark::RunSpecifiedBenchmarks();
        benchmark::Shutdown();
    }
    if (!child)
        result = runAtDoubleScale(arguments.data());
    return result;
}
