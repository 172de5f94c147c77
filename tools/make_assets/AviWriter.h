#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

// Collects JPEG frames and writes them as an AVI file with one MJPEG video stream
// and no sound: the form that GStreamer's AVI demuxer and JPEG decoder play.
class AviWriter
{
public:
    // A film of the given frame size and rate.
    AviWriter(int width, int height, int framesPerSecond);

    // Appends one frame, a complete JPEG image of the film's size.
    void addFrame(const QByteArray& jpeg);

    // The whole file: the RIFF header lists, the frames and the index.
    QByteArray bytes() const;

    // Writes the file; false when it cannot be written.
    bool save(const QString& path) const;

private:
    QByteArray headerList() const;
    QByteArray moviList() const;
    QByteArray index() const;
    quint32 largestFrame() const;

    int m_width;
    int m_height;
    int m_framesPerSecond;
    std::vector<QByteArray> m_frames;
};
