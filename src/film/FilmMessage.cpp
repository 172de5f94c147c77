#include "FilmMessage.h"

namespace {

QByteArray stateWord(FilmMessage::Kind kind)
{
    switch (kind) {
    case FilmMessage::Playing:
        return "playing";
    case FilmMessage::Paused:
        return "paused";
    default:
        return "stopped";
    }
}

QByteArray frameMessage(const QImage& frame)
{
    const QImage pixels = frame.convertToFormat(QImage::Format_RGB32);
    const qsizetype rowBytes = qsizetype(pixels.width()) * 4;
    QByteArray wire = "frame " + QByteArray::number(pixels.width()) + ' ' + QByteArray::number(pixels.height())
        + '\n';
    wire.reserve(wire.size() + rowBytes * pixels.height());
    for (int y = 0; y < pixels.height(); ++y)
        wire.append(reinterpret_cast<const char*>(pixels.constScanLine(y)), rowBytes);
    return wire;
}

} // namespace

QByteArray FilmMessage::encoded() const
{
    switch (kind) {
    case Duration:
        return "duration " + QByteArray::number(milliseconds) + '\n';
    case Position:
        return "position " + QByteArray::number(milliseconds) + '\n';
    case Error:
        // One line on the wire, however the player worded it.
        return "error " + text.simplified().toUtf8() + '\n';
    case Frame:
        return frameMessage(frame);
    default:
        return "state " + stateWord(kind) + '\n';
    }
}
