#include "AviWriter.h"

#include <QFile>
#include <QtEndian>

namespace {

constexpr quint32 AviHasIndex = 0x10;
constexpr quint32 KeyFrame = 0x10;

void putU32(QByteArray& out, quint32 value)
{
    char bytes[4];
    qToLittleEndian(value, bytes);
    out.append(bytes, 4);
}

void putU16(QByteArray& out, quint16 value)
{
    char bytes[2];
    qToLittleEndian(value, bytes);
    out.append(bytes, 2);
}

// A chunk: its four-letter code, its length, its data and a pad byte to keep the
// next chunk on an even offset.
QByteArray chunk(const char* fourCC, const QByteArray& data)
{
    QByteArray out(fourCC, 4);
    putU32(out, quint32(data.size()));
    out.append(data);
    if (data.size() % 2)
        out.append('\0');
    return out;
}

QByteArray list(const char* type, const QByteArray& content)
{
    return chunk("LIST", QByteArray(type, 4) + content);
}

} // namespace

AviWriter::AviWriter(int width, int height, int framesPerSecond)
    : m_width(width), m_height(height), m_framesPerSecond(framesPerSecond)
{
}

void AviWriter::addFrame(const QByteArray& jpeg)
{
    m_frames.push_back(jpeg);
}

quint32 AviWriter::largestFrame() const
{
    qsizetype largest = 0;
    for (const QByteArray& frame : m_frames)
        largest = std::max(largest, frame.size());
    return quint32(largest);
}

QByteArray AviWriter::headerList() const
{
    const quint32 frames = quint32(m_frames.size());
    QByteArray avih;
    putU32(avih, quint32(1000000 / m_framesPerSecond));
    putU32(avih, largestFrame() * quint32(m_framesPerSecond));
    putU32(avih, 0); // padding granularity
    putU32(avih, AviHasIndex);
    putU32(avih, frames);
    putU32(avih, 0); // initial frames
    putU32(avih, 1); // streams
    putU32(avih, largestFrame());
    putU32(avih, quint32(m_width));
    putU32(avih, quint32(m_height));
    for (int i = 0; i < 4; ++i)
        putU32(avih, 0);

    QByteArray strh("vidsMJPG", 8);
    putU32(strh, 0); // flags
    putU16(strh, 0); // priority
    putU16(strh, 0); // language
    putU32(strh, 0); // initial frames
    putU32(strh, 1); // scale: the rate is in frames per second
    putU32(strh, quint32(m_framesPerSecond));
    putU32(strh, 0); // start
    putU32(strh, frames);
    putU32(strh, largestFrame());
    putU32(strh, 0xFFFFFFFF); // default quality
    putU32(strh, 0); // sample size: frames vary
    putU16(strh, 0);
    putU16(strh, 0);
    putU16(strh, quint16(m_width));
    putU16(strh, quint16(m_height));

    QByteArray strf;
    putU32(strf, 40);
    putU32(strf, quint32(m_width));
    putU32(strf, quint32(m_height));
    putU16(strf, 1);  // planes
    putU16(strf, 24); // bits per pixel once decoded
    strf.append("MJPG", 4);
    putU32(strf, quint32(m_width * m_height * 3));
    for (int i = 0; i < 4; ++i)
        putU32(strf, 0);

    const QByteArray strl = list("strl", chunk("strh", strh) + chunk("strf", strf));
    return list("hdrl", chunk("avih", avih) + strl);
}

QByteArray AviWriter::moviList() const
{
    QByteArray content;
    for (const QByteArray& frame : m_frames)
        content.append(chunk("00dc", frame));
    return list("movi", content);
}

QByteArray AviWriter::index() const
{
    // Offsets count from the "movi" code, so the first frame's chunk sits at 4.
    QByteArray entries;
    quint32 offset = 4;
    for (const QByteArray& frame : m_frames) {
        entries.append("00dc", 4);
        putU32(entries, KeyFrame);
        putU32(entries, offset);
        putU32(entries, quint32(frame.size()));
        offset += 8 + quint32(frame.size() + frame.size() % 2);
    }
    return chunk("idx1", entries);
}

QByteArray AviWriter::bytes() const
{
    const QByteArray body = QByteArray("AVI ", 4) + headerList() + moviList() + index();
    return chunk("RIFF", body);
}

bool AviWriter::save(const QString& path) const
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    const QByteArray data = bytes();
    return file.write(data) == data.size();
}
