// floatrix-film <film>: plays the film for Floatrix's movie view. Commands come in
// on standard input, one a line ("play", "pause"); news and frames go out on
// standard output. The program ends when its standard input closes, which is
// also what happens when the movie view's program goes away.

#include "filmplayer/FilmPlayerService.h"

#include <QCoreApplication>
#include <QFile>
#include <QSocketNotifier>

#include <cstdio>
#include <cstdlib>
#include <unistd.h>

#ifdef __linux__
#include <sys/prctl.h>
#include <csignal>
#endif

namespace {

// Keeps standard output for the channel alone: anything a library prints there
// would break the frames, so the rest of the program's output goes to standard
// error from here on.
int takeChannel()
{
    const int channel = dup(STDOUT_FILENO);
    dup2(STDERR_FILENO, STDOUT_FILENO);
    return channel;
}

// Reads command lines from standard input as they come and hands each to the
// service; the end of input ends the program at once, since nothing in it needs
// saving.
void listenForCommands(FilmPlayerService& service, QObject* owner)
{
    auto* notifier = new QSocketNotifier(STDIN_FILENO, QSocketNotifier::Read, owner);
    QObject::connect(notifier, &QSocketNotifier::activated, owner, [&service, pending = QByteArray()]() mutable {
        char buffer[256];
        const ssize_t got = ::read(STDIN_FILENO, buffer, sizeof buffer);
        if (got <= 0)
            std::_Exit(0);
        pending.append(buffer, qsizetype(got));
        for (qsizetype end = pending.indexOf('\n'); end >= 0; end = pending.indexOf('\n')) {
            service.command(pending.left(end).trimmed());
            pending.remove(0, end + 1);
        }
    });
}

} // namespace

int main(int argc, char* argv[])
{
#ifdef __linux__
    // Ends with the program that started it, even if that one was killed.
    prctl(PR_SET_PDEATHSIG, SIGKILL);
#endif
    const int channel = takeChannel();
    QCoreApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: floatrix-film <film>\n");
        return 2;
    }
    QFile out;
    if (channel < 0 || !out.open(channel, QIODevice::WriteOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle))
        return 1;
    FilmPlayerService service(out);
    listenForCommands(service, &app);
    service.load(QString::fromLocal8Bit(argv[1]));
    return app.exec();
}
