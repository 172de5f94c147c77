#pragma once

#include <QColor>
#include <QRgb>

#include <cstdint>

// The program keeps colours as whole RGB numbers r + 256 g + 65536 b; these turn
// them into Qt's colours and back at the toolkit boundary.
namespace Rgb {

// The whole number of a colour from its three components, each 0 to 255.
constexpr int32_t RGB(int r, int g, int b)
{
    return (r & 0xFF) | ((g & 0xFF) << 8) | ((b & 0xFF) << 16);
}

// The opaque QRgb of a whole colour number.
constexpr QRgb toQRgb(int32_t color)
{
    return 0xFF000000u | (uint32_t(color & 0xFF) << 16) | (uint32_t(color & 0xFF00))
        | (uint32_t(color >> 16) & 0xFFu);
}

// The whole colour number of a QRgb (alpha ignored).
constexpr int32_t fromQRgb(QRgb rgb)
{
    return RGB(qRed(rgb), qGreen(rgb), qBlue(rgb));
}

inline QColor toQColor(int32_t color)
{
    return QColor::fromRgb(toQRgb(color));
}

inline int32_t fromQColor(const QColor& color)
{
    return RGB(color.red(), color.green(), color.blue());
}

} // namespace Rgb
