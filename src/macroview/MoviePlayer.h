#pragma once

#include "film/FilmMessageReader.h"

#include <QImage>
#include <QObject>
#include <QString>

class QProcess;

// The player of the balloon film as the movie view sees it. The film itself plays
// in a program of its own, floatrix-film, started when the view loads the film and
// ended when the view closes: everything the media back end takes (its libraries,
// threads and buffers, many times the rest of the program) goes back to the system
// then, and a back end that hangs can never freeze the program's windows. Frames
// and news arrive over the player program's output; commands go to its input.
// One of these serves every opening of the view.
class MoviePlayer : public QObject
{
    Q_OBJECT

public:
    // A player holding no film yet.
    explicit MoviePlayer(QObject* parent = nullptr);

    // Gives the player the film at path, ready to play from its start; a film it
    // already holds is kept as it stands.
    void load(const QString& path);

    // Plays the film from where it stands.
    void play();

    // Holds the film where it stands.
    void pause();

    // Ends the film's player program; the next load starts the film afresh.
    void stop();

    // The film held, empty when none is.
    QString source() const { return m_source; }

    // The film's length and where it stands, in milliseconds; 0 until known.
    qint64 duration() const { return m_duration; }
    qint64 position() const { return m_position; }

    // Whether the film is running.
    bool isPlaying() const { return m_playing; }

    // The frame last shown, as an image; null before the first frame.
    QImage currentFrame() const { return m_frame; }

    // Why the film cannot be played; empty while it can.
    QString errorString() const { return m_error; }

    // The player program while it runs, else null.
    const QProcess* playerProgram() const { return m_program; }

signals:
    // A new frame of the film is ready to be shown.
    void frameChanged(const QImage& frame);

    // The film turned out to be unplayable.
    void failed(const QString& error);

private:
    void startPlayerProgram();
    void send(const QByteArray& command);
    void readPlayerProgram();
    void take(const FilmMessage& message);
    void playerProgramEnded();
    void fail(const QString& error);

    QProcess* m_program = nullptr;
    FilmMessageReader m_reader;
    QString m_source;
    qint64 m_duration = 0;
    qint64 m_position = 0;
    bool m_playing = false;
    QImage m_frame;
    QString m_error;
};
