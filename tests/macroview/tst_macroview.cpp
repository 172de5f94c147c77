#include "WindowChecks.h"

#include "core/Twips.h"
#include "macroview/frmMacroView.h"
#include "shell/Forms.h"
#include "shell/GlobDef.h"
#include "shell/MDIMain.h"

#include <QFile>
#include <QMdiSubWindow>
#include <QMediaPlayer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

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

QMediaPlayer& player()
{
    return *Form<frmMacroView>().player();
}

} // namespace

class MacroViewTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void layoutFollowsTheOuterSize();
    void playGoesOnFromWhereTheFilmStandsAndExitUnloads();
    void missingOrUnreadableFilmLeavesAMessage();
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
    QTRY_COMPARE_WITH_TIMEOUT(player().mediaStatus(), QMediaPlayer::LoadedMedia, 5000);
    QVERIFY(player().duration() > 0);

    QTest::mouseClick(control("cmdCommand(1)"), Qt::LeftButton);
    QTRY_COMPARE_WITH_TIMEOUT(player().playbackState(), QMediaPlayer::PlayingState, 5000);
    QTRY_VERIFY_WITH_TIMEOUT(player().position() > 0, 5000);
    player().pause();
    const qint64 stoppedAt = player().position();

    // Play again goes on from there rather than from the start, and so does Play
    // pressed while the film is running.
    QTest::mouseClick(control("cmdCommand(1)"), Qt::LeftButton);
    QTest::mouseClick(control("cmdCommand(1)"), Qt::LeftButton);
    QTRY_COMPARE_WITH_TIMEOUT(player().playbackState(), QMediaPlayer::PlayingState, 5000);
    QVERIFY(player().position() >= stoppedAt);
    QCOMPARE(player().error(), QMediaPlayer::NoError);

    // Exit unloads the view with its player; the next opening embeds the film afresh.
    QPointer<QMediaPlayer> first = &player();
    QTest::mouseClick(control("cmdCommand(0)"), Qt::LeftButton);
    QVERIFY(!IsLoaded<frmMacroView>());
    QTRY_VERIFY(first.isNull());
    QVERIFY(Form<MDIMain>().isVisible());

    openView();
    QCOMPARE(player().source().toLocalFile(), QCoreApplication::applicationDirPath() + "/floatrixo.avi");
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

QTEST_MAIN(MacroViewTest)
#include "tst_macroview.moc"
