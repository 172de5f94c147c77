#include "MoviePlayer.h"

#include "MovieFrameImage.h"

#include <QMediaPlayer>
#include <QUrl>
#include <QVideoSink>

MoviePlayer::MoviePlayer(QObject* parent)
    : QObject(parent), m_player(new QMediaPlayer(this)), m_sink(new QVideoSink(this))
{
    // A sink of our own rather than a video widget: the widget brings up an OpenGL
    // stack several times the size of the rest of the program for a small film.
    m_player->setVideoSink(m_sink);
    // Frames come from the streaming thread; they are converted on this one.
    connect(m_sink, &QVideoSink::videoFrameChanged, this, &MoviePlayer::takeFrame, Qt::QueuedConnection);
    connect(m_player, &QMediaPlayer::errorOccurred, this,
        [this](QMediaPlayer::Error, const QString& error) { emit failed(error); });
}

void MoviePlayer::load(const QString& path)
{
    const QUrl film = QUrl::fromLocalFile(path);
    if (m_player->source() == film)
        return;
    m_frame = QImage();
    m_player->setSource(film);
}

void MoviePlayer::play()
{
    m_player->play();
}

void MoviePlayer::rewind()
{
    const bool playing = m_player->playbackState() == QMediaPlayer::PlayingState;
    if (!playing && m_player->position() == 0)
        return;
    // A seek in a paused film waits on this thread for the sink, which waits on
    // this thread too, until a 300 ms timeout frees them (stop() is such a seek);
    // a seek in a running film returns at once. So the film runs, is wound back,
    // and only then pauses.
    if (!playing)
        m_player->play();
    m_player->setPosition(0);
    m_player->pause();
}

QString MoviePlayer::errorString() const
{
    return m_player->error() == QMediaPlayer::NoError ? QString() : m_player->errorString();
}

void MoviePlayer::takeFrame(const QVideoFrame& frame)
{
    const QImage image = MovieFrameImage::fromFrame(frame);
    if (image.isNull())
        return;
    m_frame = image;
    emit frameChanged(m_frame);
}
