#pragma once

#include <QCoreApplication>
#include <QImage>
#include <QString>

// A background picture read from a file, with what is wrong when it cannot be
// shown: the file is missing, or it is there but cannot be read (empty, garbled,
// or a BMP cut short, whose rows would be made up as black).
class PictureFile
{
    Q_DECLARE_TR_FUNCTIONS(PictureFile)

public:
    enum class Status
    {
        Read,
        Missing,
        Unreadable
    };

    // Reads the picture at path; the image stays null unless the status is Read.
    explicit PictureFile(const QString& path);

    Status status() const { return m_status; }
    const QImage& image() const { return m_image; }

    // The picture as a screen with ratio device pixels to a pixel shows it, in device
    // pixels: its finer drawing (name@2x.png, name@3x.png beside it) brought to the
    // picture's size times the ratio, or the picture itself enlarged when there is
    // no finer one. The picture itself at ratio 1.
    QImage atPixelRatio(double ratio) const;

    // What is wrong, to follow the picture's name in a message: "is missing" or
    // "cannot be read"; empty for a picture that was read.
    QString problem() const;

private:
    static bool bmpComplete(const QString& path);

    QString m_path;
    Status m_status = Status::Missing;
    QImage m_image;
};
