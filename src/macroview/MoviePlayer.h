#pragma once

#include <QImage>
#include <QObject>
#include <QString>

class QMediaPlayer;
class QVideoFrame;
class QVideoSink;

// The player of the balloon film, made once and kept while the program runs:
// every opening of the movie view borrows it. Qt 6.4's GStreamer back end can
// deadlock the user-interface thread in setSource against its own streaming
// thread when a player is made soon after the last one went, so the film's
// pipeline is built once and only wound back between openings.
// Frames arrive as plain images, converted without a graphics context.
class MoviePlayer : public QObject
{
    Q_OBJECT

public:
    // A player holding no film yet.
    explicit MoviePlayer(QObject* parent = nullptr);

    // Gives the player the film at path; a film it already holds is kept as it is.
    void load(const QString& path);

    // Plays the film from where it stands.
    void play();

    // Winds the film back to its start and holds it there, ready for the next
    // opening.
    void rewind();

    // The underlying media player.
    QMediaPlayer* mediaPlayer() const { return m_player; }

    // The frame last shown, as an image; null before the first frame.
    QImage currentFrame() const { return m_frame; }

    // Why the film cannot be played; empty while it can.
    QString errorString() const;

signals:
    // A new frame of the film is ready to be shown.
    void frameChanged(const QImage& frame);

    // The film turned out to be unplayable.
    void failed(const QString& error);

private:
    void takeFrame(const QVideoFrame& frame);

    QMediaPlayer* m_player = nullptr;
    QVideoSink* m_sink = nullptr;
    QImage m_frame;
};
