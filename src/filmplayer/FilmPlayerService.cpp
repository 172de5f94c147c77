#include "FilmPlayerService.h"

#include "MovieFrameImage.h"

#include "film/FilmMessage.h"

#include <QIODevice>
#include <QMediaPlayer>
#include <QUrl>
#include <QVideoSink>

FilmPlayerService::FilmPlayerService(QIODevice& out, QObject* parent)
    : QObject(parent), m_out(out), m_player(new QMediaPlayer(this)), m_sink(new QVideoSink(this))
{
    m_player->setVideoSink(m_sink);
    // Frames come from the streaming thread; they are converted and sent on this one.
    connect(m_sink, &QVideoSink::videoFrameChanged, this, &FilmPlayerService::sendFrame, Qt::QueuedConnection);
    connect(m_player, &QMediaPlayer::durationChanged, this,
        [this](qint64 duration) { send({FilmMessage::Duration, duration, {}, {}}); });
    connect(m_player, &QMediaPlayer::positionChanged, this,
        [this](qint64 position) { send({FilmMessage::Position, position, {}, {}}); });
    connect(m_player, &QMediaPlayer::playbackStateChanged, this, &FilmPlayerService::sendState);
    connect(m_player, &QMediaPlayer::errorOccurred, this,
        [this](QMediaPlayer::Error, const QString& error) { send({FilmMessage::Error, 0, error, {}}); });
}

void FilmPlayerService::load(const QString& path)
{
    m_player->setSource(QUrl::fromLocalFile(path));
}

void FilmPlayerService::command(const QByteArray& line)
{
    if (line == "play")
        m_player->play();
    else if (line == "pause")
        m_player->pause();
}

void FilmPlayerService::send(const FilmMessage& message)
{
    m_out.write(message.encoded());
}

void FilmPlayerService::sendState()
{
    switch (m_player->playbackState()) {
    case QMediaPlayer::PlayingState:
        send({FilmMessage::Playing, 0, {}, {}});
        break;
    case QMediaPlayer::PausedState:
        send({FilmMessage::Paused, 0, {}, {}});
        break;
    default:
        send({FilmMessage::Stopped, 0, {}, {}});
        break;
    }
}

void FilmPlayerService::sendFrame(const QVideoFrame& frame)
{
    const QImage image = MovieFrameImage::fromFrame(frame);
    if (!image.isNull())
        send({FilmMessage::Frame, 0, {}, image});
}
