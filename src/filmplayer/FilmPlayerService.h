#pragma once

#include <QObject>
#include <QString>

class QIODevice;
class QMediaPlayer;
class QVideoFrame;
class QVideoSink;
struct FilmMessage;

// Plays one film and reports on it: its length, where it stands, whether it runs,
// what went wrong, and every frame as an RGB32 picture converted without a
// graphics context. The reports are written to a device, normally the program's
// standard output, which the movie view reads.
class FilmPlayerService : public QObject
{
    Q_OBJECT

public:
    // Reports go to out, which must stay open while the service lives.
    explicit FilmPlayerService(QIODevice& out, QObject* parent = nullptr);

    // Opens the film at path, ready to play from its start.
    void load(const QString& path);

    // Carries out one command line from the movie view: "play" or "pause".
    // Anything else is ignored.
    void command(const QByteArray& line);

private:
    void send(const FilmMessage& message);
    void sendState();
    void sendFrame(const QVideoFrame& frame);

    QIODevice& m_out;
    QMediaPlayer* m_player = nullptr;
    QVideoSink* m_sink = nullptr;
};
