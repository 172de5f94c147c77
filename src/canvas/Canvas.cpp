#include "Canvas.h"

#include "core/Twips.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

int32_t clampToPixel(double value)
{
    // Far-off points are clamped so that a figure reaching out of the picture
    // is still drawn along its visible part.
    constexpr double limit = 1 << 20;
    if (std::isnan(value))
        return 0;
    if (value > limit)
        value = limit;
    if (value < -limit)
        value = -limit;
    return static_cast<int32_t>(std::floor(value));
}

} // namespace

void Canvas::setScaleLeft(float value)
{
    m_ScaleLeft = value;
    m_scaleMode = ScaleMode::User;
}

void Canvas::setScaleTop(float value)
{
    m_ScaleTop = value;
    m_scaleMode = ScaleMode::User;
}

void Canvas::setScaleWidth(float value)
{
    m_ScaleWidth = value;
    m_scaleMode = ScaleMode::User;
}

void Canvas::setScaleHeight(float value)
{
    m_ScaleHeight = value;
    m_scaleMode = ScaleMode::User;
}

void Canvas::setScale(float left, float top, float width, float height)
{
    m_ScaleLeft = left;
    m_ScaleTop = top;
    m_ScaleWidth = width;
    m_ScaleHeight = height;
    m_scaleMode = ScaleMode::User;
}

void Canvas::setScaleTwips()
{
    m_scaleMode = ScaleMode::Twips;
    deviceResized();
}

void Canvas::setScalePixels()
{
    m_scaleMode = ScaleMode::Pixels;
    deviceResized();
}

void Canvas::setDeviceSize(int32_t width, int32_t height)
{
    m_deviceWidth = width;
    m_deviceHeight = height;
    deviceResized();
}

void Canvas::setPixelRatio(double value)
{
    m_pixelRatio = value > 0 ? value : 1.0;
    setDrawWidth(m_DrawWidth);
    deviceResized();
}

void Canvas::setDrawWidth(int16_t value)
{
    m_DrawWidth = value < 1 ? 1 : value;
    m_penWidth = m_pixelRatio == 1.0 ? m_DrawWidth : std::max(1, int32_t(std::lround(m_DrawWidth * m_pixelRatio)));
}

void Canvas::deviceResized()
{
    if (m_scaleMode == ScaleMode::User)
        return;
    const double factor = (m_scaleMode == ScaleMode::Twips ? double(Twips::PerPixel) : 1.0) / m_pixelRatio;
    m_ScaleLeft = 0;
    m_ScaleTop = 0;
    m_ScaleWidth = static_cast<float>(DeviceWidth() * factor);
    m_ScaleHeight = static_cast<float>(DeviceHeight() * factor);
}

double Canvas::toDeviceX(double x) const
{
    if (m_ScaleWidth == 0)
        return 0;
    return (x - m_ScaleLeft) * DeviceWidth() / m_ScaleWidth;
}

double Canvas::toDeviceY(double y) const
{
    if (m_ScaleHeight == 0)
        return 0;
    return (y - m_ScaleTop) * DeviceHeight() / m_ScaleHeight;
}

int32_t Canvas::pixelX(double x) const
{
    return clampToPixel(toDeviceX(x));
}

int32_t Canvas::pixelY(double y) const
{
    return clampToPixel(toDeviceY(y));
}

void Canvas::Cls()
{
    clearDevice();
    m_CurrentX = m_ScaleLeft;
    m_CurrentY = m_ScaleTop;
}

void Canvas::drawSegment(float x1, float y1, float x2, float y2, int32_t color)
{
    segment(pixelX(x1), pixelY(y1), pixelX(x2), pixelY(y2), color);
    m_CurrentX = x2;
    m_CurrentY = y2;
}

void Canvas::drawBox(float x1, float y1, float x2, float y2, int32_t color)
{
    box(pixelX(x1), pixelY(y1), pixelX(x2), pixelY(y2), color);
    m_CurrentX = x2;
    m_CurrentY = y2;
}

void Canvas::Line(float x1, float y1, float x2, float y2)
{
    drawSegment(x1, y1, x2, y2, m_ForeColor);
}

void Canvas::Line(float x1, float y1, float x2, float y2, int32_t color)
{
    drawSegment(x1, y1, x2, y2, color);
}

void Canvas::LineTo(float x2, float y2)
{
    drawSegment(m_CurrentX, m_CurrentY, x2, y2, m_ForeColor);
}

void Canvas::LineTo(float x2, float y2, int32_t color)
{
    drawSegment(m_CurrentX, m_CurrentY, x2, y2, color);
}

void Canvas::LineStep(float x1, float y1, float dx, float dy)
{
    drawSegment(x1, y1, x1 + dx, y1 + dy, m_ForeColor);
}

void Canvas::LineStep(float x1, float y1, float dx, float dy, int32_t color)
{
    drawSegment(x1, y1, x1 + dx, y1 + dy, color);
}

void Canvas::LineToStep(float dx, float dy, int32_t color)
{
    drawSegment(m_CurrentX, m_CurrentY, m_CurrentX + dx, m_CurrentY + dy, color);
}

void Canvas::Box(float x1, float y1, float x2, float y2)
{
    drawBox(x1, y1, x2, y2, m_ForeColor);
}

void Canvas::Box(float x1, float y1, float x2, float y2, int32_t color)
{
    drawBox(x1, y1, x2, y2, color);
}

void Canvas::BoxStep(float x1, float y1, float dx, float dy, int32_t color)
{
    drawBox(x1, y1, x1 + dx, y1 + dy, color);
}

void Canvas::Circle(float x, float y, float radius, int32_t color)
{
    const double scale = m_ScaleWidth == 0 ? 0 : DeviceWidth() / double(m_ScaleWidth);
    disc(toDeviceX(x), toDeviceY(y), std::fabs(radius * scale), color);
    m_CurrentX = x;
    m_CurrentY = y;
}

void Canvas::PSet(float x, float y, int32_t color)
{
    dot(pixelX(x), pixelY(y), color);
    m_CurrentX = x;
    m_CurrentY = y;
}

void Canvas::Polygon(const std::vector<DevicePoint>& points)
{
    if (points.empty())
        return;
    if (m_pixelRatio == 1.0) {
        polygon(points, m_ForeColor);
        return;
    }
    std::vector<DevicePoint> device(points);
    for (DevicePoint& point : device) {
        point.x = int32_t(std::lround(point.x * m_pixelRatio));
        point.y = int32_t(std::lround(point.y * m_pixelRatio));
    }
    polygon(device, m_ForeColor);
}
