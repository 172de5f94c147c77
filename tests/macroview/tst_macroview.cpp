#include "WindowChecks.h"

#include "core/Twips.h"
#include "macroview/MoviePlayer.h"
#include "macroview/frmMacroView.h"
#include "shell/Forms.h"
#include "shell/GlobDef.h"
#include "shell/MDIMain.h"

#include <QFile>
#include <QMdiSubWindow>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <csignal>
#include <chrono>
#include <cstdio>
#include <thread>

namespace {

frmMacroView& openView()
{
    ShowMainWindow();
    Form<MDIMain>().mnuContentsItem_Click(1);
    return Form<frmMacroView>();
}

QWidget* control(const QString& name)
{
    return Form<frmMacroView>().findChild<QWidget*>(name);
}

MoviePlayer& player()
{
    return *Form<frmMacroView>().player();
}

// Lets the event loop run for a while without QTest::qWait's 10 ms sleeps.
void spin(int ms)
{
    QElapsedTimer clock;
    clock.start();
    do {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    } while (clock.elapsed() < ms);
}

// Aborts the process with a message when the user-interface thread stops turning:
// a timer on that thread counts turns, a thread of its own watches the count.
class Watchdog
{
public:
    Watchdog(int seconds, const std::atomic<int>& progress) : m_progress(progress)
    {
        QObject::connect(&m_beat, &QTimer::timeout, [this] { ++m_turns; });
        m_beat.start(20);
        m_thread = std::thread([this, seconds] { watch(seconds); });
    }
    ~Watchdog()
    {
        m_done = true;
        m_thread.join();
    }

private:
    void watch(int seconds)
    {
        using Clock = std::chrono::steady_clock;
        int last = m_turns;
        Clock::time_point since = Clock::now();
        while (!m_done) {
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
            if (m_turns != last) {
                last = m_turns;
                since = Clock::now();
            } else if (Clock::now() - since > std::chrono::seconds(seconds)) {
                std::fprintf(stderr, "watchdog: the user-interface thread froze for %d s in opening %d "
                                     "of the movie view\n", seconds, m_progress.load());
                std::abort();
            }
        }
    }

    const std::atomic<int>& m_progress;
    QTimer m_beat;
    std::atomic<int> m_turns{0};
    std::atomic<bool> m_done{false};
    std::thread m_thread;
};

} // namespace

class MacroViewTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void layoutFollowsTheOuterSize();
    void playGoesOnFromWhereTheFilmStandsAndExitUnloads();
    void fastOpeningsNeverFreezeTheProgram();
    void missingOrUnreadableFilmLeavesAMessage();
    void aPlayerThatDiesLeavesAMessageAndTheNextOpeningPlays();
};

void MacroViewTest::cleanup()
{
    frmMacroView::setMovieFolder(QString());
    QCOMPARE(closeLeftoverWindows(), 1); // the main frame each test opened
}

void MacroViewTest::layoutFollowsTheOuterSize()
{
    openView();
    auto* frame = qobject_cast<QMdiSubWindow*>(Form<frmMacroView>().parentWidget());
    QVERIFY(frame);
    // A roomy window, and one smaller than the picture, where positions go negative.
    for (const QSize outer : {QSize(520, 420), QSize(200, 150)}) {
        frame->resize(outer);
        const double width = Twips::fromPixels(outer.width());
        const double height = Twips::fromPixels(outer.height());
        const QRect picture = control("picMovie")->geometry();
        const QRect exit = control("cmdCommand(0)")->geometry();
        const QRect play = control("cmdCommand(1)")->geometry();
        QCOMPARE(picture, QRect(Twips::toPixels((width - 4815) / 2), Twips::toPixels((height - 3375) / 3),
                              Twips::toPixels(4815), Twips::toPixels(3375)));
        QCOMPARE(exit.size(), QSize(Twips::toPixels(1095), Twips::toPixels(375)));
        QCOMPARE(play.size(), exit.size());
        QVERIFY(qAbs(exit.right() - picture.right()) <= 1);
        QVERIFY(qAbs(exit.top() - Twips::toPixels((height - 3375) / 3 + 3375 + 125)) <= 1);
        QCOMPARE(play.top(), exit.top());
        QVERIFY(qAbs(exit.left() - play.right() - 1 - Twips::toPixels(250)) <= 1);
    }
}

void MacroViewTest::playGoesOnFromWhereTheFilmStandsAndExitUnloads()
{
    openView();
    QCOMPARE(Form<frmMacroView>().movieMessage(), QString());
    QTRY_VERIFY_WITH_TIMEOUT(player().duration() > 0, 5000);

    QTest::mouseClick(control("cmdCommand(1)"), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(player().isPlaying(), 5000);
    QTRY_VERIFY_WITH_TIMEOUT(player().position() > 0, 5000);
    player().pause();
    QTRY_VERIFY_WITH_TIMEOUT(!player().isPlaying(), 5000);
    const qint64 stoppedAt = player().position();

    // Play again goes on from there rather than from the start, and so does Play
    // pressed while the film is running.
    QTest::mouseClick(control("cmdCommand(1)"), Qt::LeftButton);
    QTest::mouseClick(control("cmdCommand(1)"), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(player().isPlaying(), 5000);
    QVERIFY(player().position() >= stoppedAt);
    QCOMPARE(player().errorString(), QString());

    // The window shows the film's frames, drawn without a video widget.
    QTRY_COMPARE_WITH_TIMEOUT(Form<frmMacroView>().shownFrame().size(), QSize(320, 224), 5000);

    // Exit unloads the view and ends the film's player program, handing back all
    // it took; the next opening finds the film at its start, ready to play, in
    // the one player the program keeps.
    QPointer<MoviePlayer> first = &player();
    QVERIFY(player().playerProgram());
    const qint64 playerProcess = player().playerProgram()->processId();
    QTest::mouseClick(control("cmdCommand(0)"), Qt::LeftButton);
    QVERIFY(!IsLoaded<frmMacroView>());
    QVERIFY(Form<MDIMain>().isVisible());
    QVERIFY(!first->isPlaying());
    QVERIFY(!first->playerProgram());
    QTRY_VERIFY_WITH_TIMEOUT(!QFile::exists(QString("/proc/%1").arg(playerProcess)), 5000);

    openView();
    QVERIFY(Form<frmMacroView>().shownFrame().isNull());
    QCOMPARE(&player(), first.data());
    QCOMPARE(player().source(), QCoreApplication::applicationDirPath() + "/floatrixo.avi");
    QCOMPARE(player().position(), 0);
    QVERIFY(control("cmdCommand(1)")->isEnabled());
    QTest::mouseClick(control("cmdCommand(1)"), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(player().position() > 0, 5000);
}

void MacroViewTest::fastOpeningsNeverFreezeTheProgram()
{
    // Opening, playing and leaving the view as fast as a restless pupil can, with
    // pauses of varying length so that each step meets the film's streaming
    // thread at another moment.
    constexpr int Openings = 300;
    std::atomic<int> opening{0};
    Watchdog watchdog(10, opening);
    openView();
    QPointer<MoviePlayer> kept = &player();
    for (; opening < Openings; ++opening) {
        if (!IsLoaded<frmMacroView>())
            openView();
        QCOMPARE(&player(), kept.data());
        spin(opening % 23);
        QTest::mouseClick(control("cmdCommand(1)"), Qt::LeftButton);
        spin(opening % 17);
        QTest::mouseClick(control("cmdCommand(0)"), Qt::LeftButton);
        QVERIFY(!IsLoaded<frmMacroView>());
    }
    // The film still plays after all that.
    openView();
    QTest::mouseClick(control("cmdCommand(1)"), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(player().position() > 0, 5000);
    QCOMPARE(player().errorString(), QString());
}

void MacroViewTest::missingOrUnreadableFilmLeavesAMessage()
{
    QCOMPARE(frmMacroView::MoviePath("/"), QString("/floatrixo.avi"));
    QCOMPARE(frmMacroView::MoviePath("/opt/floatrix"), QString("/opt/floatrix/floatrixo.avi"));

    QTemporaryDir folder;
    frmMacroView::setMovieFolder(folder.path());
    openView();
    QVERIFY(Form<frmMacroView>().movieMessage().contains("\"floatrixo.avi\" is missing"));
    QVERIFY(!control("cmdCommand(1)")->isEnabled());
    QTest::mouseClick(control("cmdCommand(0)"), Qt::LeftButton);
    QVERIFY(!IsLoaded<frmMacroView>());

    // A file that is there but is no film is only found out by the player.
    QFile junk(folder.filePath("floatrixo.avi"));
    QVERIFY(junk.open(QIODevice::WriteOnly));
    junk.write(QByteArray(4096, 'x'));
    junk.close();
    openView();
    QTRY_VERIFY_WITH_TIMEOUT(Form<frmMacroView>().movieMessage().contains("could not be played"), 5000);
    QVERIFY(Form<MDIMain>().isVisible());
}

void MacroViewTest::aPlayerThatDiesLeavesAMessageAndTheNextOpeningPlays()
{
    openView();
    QTest::mouseClick(control("cmdCommand(1)"), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(player().position() > 0, 5000);
    ::kill(pid_t(player().playerProgram()->processId()), SIGKILL);
    QTRY_VERIFY_WITH_TIMEOUT(Form<frmMacroView>().movieMessage().contains("The film player stopped working."), 5000);
    QVERIFY(!control("cmdCommand(1)")->isEnabled());
    QVERIFY(Form<MDIMain>().isVisible());

    QTest::mouseClick(control("cmdCommand(0)"), Qt::LeftButton);
    openView();
    QCOMPARE(Form<frmMacroView>().movieMessage(), QString());
    QTest::mouseClick(control("cmdCommand(1)"), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(player().position() > 0, 5000);
}

QTEST_MAIN(MacroViewTest)
#include "tst_macroview.moc"
