#include "FilmMessageReader.h"

#include <QList>

#include <cstring>

namespace {

bool fitsAFrame(int side)
{
    return side > 0 && side <= FilmMessage::LargestSide;
}

} // namespace

void FilmMessageReader::feed(const QByteArray& bytes)
{
    if (m_damaged)
        return;
    // What was read already is dropped before more is kept.
    m_pending.remove(0, m_read);
    m_read = 0;
    m_pending.append(bytes);
}

std::optional<FilmMessage> FilmMessageReader::next()
{
    while (!m_damaged) {
        if (m_frameWidth > 0)
            return takeFrame();
        const qsizetype end = m_pending.indexOf('\n', m_read);
        if (end < 0) {
            m_damaged = m_pending.size() - m_read > LongestLine;
            return std::nullopt;
        }
        const QByteArray line = m_pending.mid(m_read, end - m_read);
        m_read = end + 1;
        if (line.size() > LongestLine) {
            m_damaged = true;
            return std::nullopt;
        }
        if (std::optional<FilmMessage> message = parseLine(line))
            return message;
    }
    return std::nullopt;
}

std::optional<FilmMessage> FilmMessageReader::parseLine(const QByteArray& line)
{
    const qsizetype space = line.indexOf(' ');
    const QByteArray kind = space < 0 ? line : line.left(space);
    const QByteArray value = space < 0 ? QByteArray() : line.mid(space + 1);
    FilmMessage message;
    if (kind == "duration" || kind == "position") {
        message.kind = kind == "duration" ? FilmMessage::Duration : FilmMessage::Position;
        message.milliseconds = value.toLongLong();
    } else if (kind == "state") {
        message.kind = value == "playing" ? FilmMessage::Playing
            : value == "paused"           ? FilmMessage::Paused
                                          : FilmMessage::Stopped;
    } else if (kind == "error") {
        message.kind = FilmMessage::Error;
        message.text = QString::fromUtf8(value);
    } else if (kind == "frame") {
        const QList<QByteArray> size = value.split(' ');
        const int width = size.value(0).toInt();
        const int height = size.value(1).toInt();
        m_damaged = size.size() != 2 || !fitsAFrame(width) || !fitsAFrame(height);
        if (!m_damaged) {
            m_frameWidth = width;
            m_frameHeight = height;
            return takeFrame();
        }
        return std::nullopt;
    } else {
        return std::nullopt;
    }
    return message;
}

std::optional<FilmMessage> FilmMessageReader::takeFrame()
{
    const qsizetype rowBytes = qsizetype(m_frameWidth) * 4;
    const qsizetype bytes = rowBytes * m_frameHeight;
    if (m_pending.size() - m_read < bytes)
        return std::nullopt;
    FilmMessage message;
    message.kind = FilmMessage::Frame;
    message.frame = QImage(m_frameWidth, m_frameHeight, QImage::Format_RGB32);
    for (int y = 0; y < m_frameHeight; ++y)
        std::memcpy(message.frame.scanLine(y), m_pending.constData() + m_read + y * rowBytes, size_t(rowBytes));
    m_read += bytes;
    m_frameWidth = 0;
    m_frameHeight = 0;
    return message;
}
