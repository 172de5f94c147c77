#include "MovieFrameImage.h"

#include <QVideoFrame>
#include <QVideoFrameFormat>

#include <algorithm>
#include <optional>

namespace {

// Where one component of a pixel sits: the row of pixel (x, y) starts at
// bits + (y >> yShift) * stride, and the sample at (x >> xShift) * step in it.
struct Samples
{
    const uchar* bits = nullptr;
    int stride = 0;
    int step = 1;
    int xShift = 0;
    int yShift = 0;

    int at(int x, int y) const
    {
        return bits ? bits[(y >> yShift) * stride + (x >> xShift) * step] : 128;
    }
};

struct YuvLayout
{
    Samples y, u, v;
};

// The components of the luma and chroma layouts the player hands over.
std::optional<YuvLayout> yuvLayout(const QVideoFrame& frame)
{
    auto plane = [&frame](int index) { return frame.bits(index); };
    auto line = [&frame](int index) { return frame.bytesPerLine(index); };
    switch (frame.pixelFormat()) {
    case QVideoFrameFormat::Format_YUV420P:
        return YuvLayout{{plane(0), line(0)}, {plane(1), line(1), 1, 1, 1}, {plane(2), line(2), 1, 1, 1}};
    case QVideoFrameFormat::Format_YV12:
        return YuvLayout{{plane(0), line(0)}, {plane(2), line(2), 1, 1, 1}, {plane(1), line(1), 1, 1, 1}};
    case QVideoFrameFormat::Format_YUV422P:
        return YuvLayout{{plane(0), line(0)}, {plane(1), line(1), 1, 1, 0}, {plane(2), line(2), 1, 1, 0}};
    case QVideoFrameFormat::Format_NV12:
        return YuvLayout{{plane(0), line(0)}, {plane(1), line(1), 2, 1, 1}, {plane(1) + 1, line(1), 2, 1, 1}};
    case QVideoFrameFormat::Format_NV21:
        return YuvLayout{{plane(0), line(0)}, {plane(1) + 1, line(1), 2, 1, 1}, {plane(1), line(1), 2, 1, 1}};
    case QVideoFrameFormat::Format_UYVY:
        return YuvLayout{{plane(0) + 1, line(0), 2}, {plane(0), line(0), 4, 1, 0}, {plane(0) + 2, line(0), 4, 1, 0}};
    case QVideoFrameFormat::Format_YUYV:
        return YuvLayout{{plane(0), line(0), 2}, {plane(0) + 1, line(0), 4, 1, 0}, {plane(0) + 3, line(0), 4, 1, 0}};
    case QVideoFrameFormat::Format_Y8:
        return YuvLayout{{plane(0), line(0)}, {}, {}};
    default:
        return std::nullopt;
    }
}

// Fixed-point factors (scaled by 2^16) that turn luma and centred chroma into
// red, green and blue for the frame's colour matrix and range.
struct YuvToRgb
{
    int yOffset, yScale, vToR, uToG, vToG, uToB;

    static YuvToRgb forFormat(const QVideoFrameFormat& format)
    {
        const bool bt709 = format.colorSpace() == QVideoFrameFormat::ColorSpace_BT709;
        const double kr = bt709 ? 0.2126 : 0.299;
        const double kb = bt709 ? 0.0722 : 0.114;
        const double kg = 1.0 - kr - kb;
        // Only a frame marked full-range (as JPEG pictures are) uses all 256 levels;
        // video range keeps luma within 16..235 and chroma within 16..240.
        const bool full = format.colorRange() == QVideoFrameFormat::ColorRange_Full;
        const double ys = full ? 1.0 : 255.0 / 219.0;
        const double cs = full ? 1.0 : 255.0 / 224.0;
        auto fixed = [](double value) { return int(value * 65536.0 + (value < 0 ? -0.5 : 0.5)); };
        return {full ? 0 : 16, fixed(ys), fixed(2 * (1 - kr) * cs), fixed(2 * kb * (1 - kb) / kg * cs),
            fixed(2 * kr * (1 - kr) / kg * cs), fixed(2 * (1 - kb) * cs)};
    }

    QRgb rgb(int y, int u, int v) const
    {
        const int luma = (y - yOffset) * yScale + (1 << 15);
        u -= 128;
        v -= 128;
        auto clamp = [](int value) { return std::clamp(value >> 16, 0, 255); };
        return qRgb(clamp(luma + vToR * v), clamp(luma - uToG * u - vToG * v), clamp(luma + uToB * u));
    }
};

QImage fromYuv(const QVideoFrame& frame, const YuvLayout& layout)
{
    const YuvToRgb convert = YuvToRgb::forFormat(frame.surfaceFormat());
    QImage image(frame.width(), frame.height(), QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            row[x] = convert.rgb(layout.y.at(x, y), layout.u.at(x, y), layout.v.at(x, y));
    }
    return image;
}

} // namespace

QImage MovieFrameImage::fromFrame(const QVideoFrame& frame)
{
    QVideoFrame mapped(frame);
    if (!mapped.isValid() || !mapped.map(QVideoFrame::ReadOnly))
        return {};
    QImage image;
    const QImage::Format rgbFormat = QVideoFrameFormat::imageFormatFromPixelFormat(mapped.pixelFormat());
    if (rgbFormat != QImage::Format_Invalid) {
        // The wrapper only borrows the mapped bits: the copy must own its pixels.
        const QImage borrowed(mapped.bits(0), mapped.width(), mapped.height(), mapped.bytesPerLine(0),
            rgbFormat);
        image = borrowed.format() == QImage::Format_RGB32 ? borrowed.copy()
                                                          : borrowed.convertToFormat(QImage::Format_RGB32);
    } else if (const std::optional<YuvLayout> layout = yuvLayout(mapped)) {
        image = fromYuv(mapped, *layout);
    }
    mapped.unmap();
    return image;
}
