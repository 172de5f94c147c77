#include "PictureFile.h"

#include "core/ProgramFiles.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <array>
#include <cstdlib>

namespace {

// The fields of a BMP's file and information headers that size its pixel data.
constexpr qint64 FileHeaderSize = 14;
constexpr qint64 InfoHeaderSize = 40;
constexpr quint32 Uncompressed = 0;
constexpr quint32 BitFields = 3;

using BmpHeader = std::array<unsigned char, FileHeaderSize + InfoHeaderSize>;

// A little-endian field of the header, read byte by byte from a buffer whose
// size is fixed, so no read can run past it.
quint32 readField(const BmpHeader& header, std::size_t offset, std::size_t bytes)
{
    quint32 value = 0;
    for (std::size_t i = bytes; i-- > 0;)
        value = (value << 8) | header.at(offset + i);
    return value;
}

quint32 readU32(const BmpHeader& header, std::size_t offset)
{
    return readField(header, offset, 4);
}

} // namespace

PictureFile::PictureFile(const QString& path) : m_path(path)
{
    if (!QFileInfo(path).isFile())
        return;
    m_status = Status::Unreadable;
    QImageReader reader(path);
    const QByteArray format = reader.format(); // known only before the read
    QImage image = reader.read();
    if (image.isNull())
        return;
    if (format == "bmp" && !bmpComplete(path))
        return;
    m_image = std::move(image);
    m_status = Status::Read;
}

QImage PictureFile::atPixelRatio(double ratio) const
{
    if (m_status != Status::Read || ratio <= 1.01)
        return m_image;
    const QSize shown = m_image.size() * ratio;
    const ProgramFiles::SharperPicture sharper = ProgramFiles::sharperPicture(m_path, ratio);
    QImage picture = m_image;
    if (!sharper.path.isEmpty()) {
        // A finer drawing of another picture's size is not this picture's.
        const PictureFile finer(sharper.path);
        if (finer.status() == Status::Read && finer.image().size() == m_image.size() * sharper.factor)
            picture = finer.image();
    }
    return picture.size() == shown ? picture : picture.scaled(shown, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QString PictureFile::problem() const
{
    switch (m_status) {
    case Status::Missing:
        return tr("is missing");
    case Status::Unreadable:
        return tr("cannot be read");
    default:
        return QString();
    }
}

bool PictureFile::bmpComplete(const QString& path)
{
    // A BMP cut short still reads: the reader makes up the missing rows, which
    // show black. Its headers say how many bytes the rows take.
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    BmpHeader header{};
    if (file.read(reinterpret_cast<char*>(header.data()), qint64(header.size())) < qint64(header.size()))
        return false;
    const quint32 pixelOffset = readU32(header, 10);
    const quint32 infoSize = readU32(header, 14);
    if (infoSize < InfoHeaderSize)
        return true; // an old OS/2 header: the reader's own checks must do
    const qint64 width = qint32(readU32(header, 18));
    const qint64 height = std::llabs(qint32(readU32(header, 22)));
    const qint64 bitsPerPixel = readField(header, 28, 2);
    const quint32 compression = readU32(header, 30);
    const qint64 imageSize = readU32(header, 34);
    qint64 pixelBytes = imageSize;
    if (compression == Uncompressed || compression == BitFields)
        pixelBytes = (width * bitsPerPixel + 31) / 32 * 4 * height;
    return file.size() >= qint64(pixelOffset) + pixelBytes;
}
