// Start-up time and resident memory of the whole program on a desktop, printed as
// name=value lines. Run by bench/desktop_figures.sh under a virtual X server with
// the default xcb platform and its OpenGL integration, so the figures are what a
// user's desktop sees.
//
//   desktop_figures --since-ns=<realtime ns at launch> --startup-only
//       the time from launch to the first window shown, then quits;
//   desktop_figures --since-ns=<...>
//       the same, then the resident memory with the main frame, with the movie
//       view playing, after closing it, after 60 openings and closings, and with
//       every view open.
//
// The film plays in a player program of its own. What the movie view adds is the
// program's own growth plus the player's unique set: the pages only the player
// holds, which go back to the system when it ends. The libraries it shares with the
// program are counted once, in the program. The player's whole resident size, the
// shared pages counted again, is printed beside it.

#include "macroview/MoviePlayer.h"
#include "macroview/frmMacroView.h"
#include "shell/Forms.h"
#include "shell/GlobDef.h"
#include "shell/MDIMain.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QWindow>

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace {

// The sum of the fields of a /proc file whose names are listed, in MB; fields are
// "Name:   1234 kB" lines. 0 when the file cannot be read (a process that ended).
double fieldsMb(const QString& file, const QList<QByteArray>& names)
{
    QFile status(file);
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    double kb = 0;
    for (const QByteArray& line : status.readAll().split('\n')) {
        const qsizetype colon = line.indexOf(':');
        if (colon > 0 && names.contains(line.left(colon)))
            kb += line.mid(colon + 1).trimmed().split(' ').first().toDouble();
    }
    return kb / 1024.0;
}

double residentMb()
{
    return fieldsMb("/proc/self/status", {"VmRSS"});
}

// The film player program of the open movie view, 0 when none runs.
qint64 filmPlayerProcess()
{
    if (!IsLoaded<frmMacroView>())
        return 0;
    const QProcess* program = Form<frmMacroView>().player()->playerProgram();
    return program ? program->processId() : 0;
}

double filmPlayerMb(const QList<QByteArray>& names)
{
    const qint64 process = filmPlayerProcess();
    return process ? fieldsMb(QString("/proc/%1/smaps_rollup").arg(process), names) : 0;
}

// The memory in use because of the program: its own resident pages and the
// pages only its film player holds.
double inUseMb()
{
    return residentMb() + filmPlayerMb({"Private_Clean", "Private_Dirty"});
}

// Whether an OpenGL driver is mapped into the process: the platform links the
// OpenGL libraries at start, but only a context brings in the driver.
bool openGlDriverLoaded()
{
    QFile maps("/proc/self/maps");
    if (!maps.open(QIODevice::ReadOnly))
        return false;
    const QByteArray all = maps.readAll();
    return all.contains("_dri.so") || all.contains("libgallium") || all.contains("libLLVM");
}

qint64 realtimeNs()
{
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return qint64(now.tv_sec) * 1000000000 + now.tv_nsec;
}

// Lets the event loop run for a while.
void settle(int ms)
{
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < ms) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

// The most memory in use seen while the event loop runs for a while.
double peakWhile(int ms)
{
    double peak = inUseMb();
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < ms) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        peak = std::max(peak, inUseMb());
    }
    return peak;
}

void report(const char* name, double value)
{
    std::printf("%s=%.2f\n", name, value);
    std::fflush(stdout);
}

// Notes when the first window of the process is exposed on the screen.
class FirstExpose : public QObject
{
public:
    qint64 at = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (at == 0 && event->type() == QEvent::Expose && qobject_cast<QWindow*>(watched)
            && static_cast<QWindow*>(watched)->isExposed())
            at = realtimeNs();
        return false;
    }
};

void openMovieAndPlay()
{
    Form<MDIMain>().mnuContentsItem_Click(1);
    settle(300);
    Form<frmMacroView>().cmdCommand_Click(1);
}

void closeMovie()
{
    if (IsLoaded<frmMacroView>())
        Form<frmMacroView>().cmdCommand_Click(0);
}

void measureMemory()
{
    ShowMainWindow();
    settle(1500);
    const double mainFrame = residentMb();
    report("rss_main_frame_mb", mainFrame);
    std::printf("gl_driver_main_frame=%s\n", openGlDriverLoaded() ? "yes" : "no");

    openMovieAndPlay();
    int frames = 0;
    QObject::connect(Form<frmMacroView>().player(), &MoviePlayer::frameChanged, &Form<frmMacroView>(),
        [&frames] { ++frames; });
    const double playing = peakWhile(4000);
    report("movie_frames_per_s", frames / 4.0);
    report("in_use_movie_playing_mb", playing);
    report("movie_added_mb", playing - mainFrame);
    report("rss_program_movie_playing_mb", residentMb());
    report("rss_film_player_mb", filmPlayerMb({"Rss"}));
    report("pss_film_player_mb", filmPlayerMb({"Pss"}));
    report("unique_film_player_mb", filmPlayerMb({"Private_Clean", "Private_Dirty"}));
    std::printf("gl_driver_movie_playing=%s\n", openGlDriverLoaded() ? "yes" : "no");

    closeMovie();
    settle(1500);
    const double closed = inUseMb();
    report("in_use_movie_closed_mb", closed);
    report("movie_returned_pct", 100.0 * (playing - closed) / (playing - mainFrame));

    for (int i = 0; i < 60; ++i) {
        openMovieAndPlay();
        settle(100);
        closeMovie();
        settle(50);
    }
    settle(1500);
    const double cycled = inUseMb();
    report("in_use_after_60_cycles_mb", cycled);
    report("cycles_drift_mb", cycled - closed);

    for (int item : {0, 2})
        Form<MDIMain>().mnuContentsItem_Click(item);
    openMovieAndPlay();
    report("in_use_every_view_open_mb", peakWhile(3000));
}

} // namespace

int main(int argc, char* argv[])
{
    qint64 since = 0;
    bool startupOnly = false;
    for (int i = 1; i < argc; ++i) {
        const QByteArray arg(argv[i]);
        if (arg.startsWith("--since-ns="))
            since = arg.mid(11).toLongLong();
        else if (arg == "--startup-only")
            startupOnly = true;
    }
    if (since == 0)
        since = realtimeNs();

    QApplication app(argc, argv);
    QApplication::setApplicationName("Floatrix");
    QApplication::setQuitOnLastWindowClosed(false);
    FirstExpose firstExpose;
    app.installEventFilter(&firstExpose);
    StartUp();
    while (firstExpose.at == 0)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    app.removeEventFilter(&firstExpose);
    report("startup_to_first_window_s", (firstExpose.at - since) / 1e9);

    if (!startupOnly)
        measureMemory();
    // Leave without the exit question.
    std::fflush(stdout);
    std::_Exit(0);
}
