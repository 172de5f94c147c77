#include "MoviePlayer.h"

#include "core/ProgramFiles.h"

#include <QFileInfo>
#include <QProcess>

namespace {

constexpr auto PlayerProgramName = "floatrix-film";

} // namespace

MoviePlayer::MoviePlayer(QObject* parent) : QObject(parent) {}

void MoviePlayer::load(const QString& path)
{
    if (m_program && m_source == path)
        return;
    stop();
    m_source = path;
    m_duration = 0;
    m_position = 0;
    m_error.clear();
    startPlayerProgram();
}

void MoviePlayer::startPlayerProgram()
{
    const QString program = ProgramFiles::helperProgram(QString::fromLatin1(PlayerProgramName));
    if (!QFileInfo(program).isExecutable()) {
        fail(tr("The film player is missing:\n%1").arg(program));
        return;
    }
    m_reader = FilmMessageReader();
    m_program = new QProcess(this);
    // The player's own warnings belong on the program's error output.
    m_program->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(m_program, &QProcess::readyReadStandardOutput, this, &MoviePlayer::readPlayerProgram);
    connect(m_program, &QProcess::finished, this, &MoviePlayer::playerProgramEnded);
    connect(m_program, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            playerProgramEnded();
    });
    m_program->start(program, {m_source});
}

void MoviePlayer::play()
{
    send("play\n");
}

void MoviePlayer::pause()
{
    send("pause\n");
}

void MoviePlayer::send(const QByteArray& command)
{
    if (m_program)
        m_program->write(command);
}

void MoviePlayer::stop()
{
    m_playing = false;
    // The next opening starts the film afresh, not on the frame this one left.
    m_frame = QImage();
    if (!m_program)
        return;
    QProcess* ending = m_program;
    m_program = nullptr;
    disconnect(ending, nullptr, this, nullptr);
    // Nothing in the player needs saving; it is ended outright and reaped later,
    // so that closing the view never waits on it.
    if (ending->state() == QProcess::NotRunning) {
        ending->deleteLater();
        return;
    }
    connect(ending, &QProcess::stateChanged, ending, [ending](QProcess::ProcessState state) {
        if (state == QProcess::NotRunning)
            ending->deleteLater();
    });
    ending->kill();
}

void MoviePlayer::readPlayerProgram()
{
    m_reader.feed(m_program->readAllStandardOutput());
    // A message may end the player (an error does), and with it the reading.
    const QProcess* reading = m_program;
    while (m_program == reading) {
        const std::optional<FilmMessage> message = m_reader.next();
        if (!message)
            break;
        take(*message);
    }
    if (m_program == reading && m_reader.damaged())
        fail(tr("The film player stopped working."));
}

void MoviePlayer::take(const FilmMessage& message)
{
    switch (message.kind) {
    case FilmMessage::Duration:
        m_duration = message.milliseconds;
        break;
    case FilmMessage::Position:
        m_position = message.milliseconds;
        break;
    case FilmMessage::Playing:
    case FilmMessage::Paused:
    case FilmMessage::Stopped:
        m_playing = message.kind == FilmMessage::Playing;
        break;
    case FilmMessage::Error:
        fail(message.text);
        break;
    case FilmMessage::Frame:
        m_frame = message.frame;
        emit frameChanged(m_frame);
        break;
    }
}

void MoviePlayer::playerProgramEnded()
{
    // The player ends only when told to; ending of its own accord is a failure.
    fail(tr("The film player stopped working."));
}

void MoviePlayer::fail(const QString& error)
{
    if (!m_error.isEmpty())
        return;
    m_error = error;
    stop();
    emit failed(error);
}
