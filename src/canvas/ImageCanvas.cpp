#include "ImageCanvas.h"

#include "Rgb.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace {

// Visits the pixels of a one-pixel line from (x1, y1) to (x2, y2), Bresenham's way.
template <typename Visit>
void forEachLinePixel(int32_t x1, int32_t y1, int32_t x2, int32_t y2, bool includeLast, Visit visit)
{
    const int64_t dx = std::llabs(int64_t(x2) - x1);
    const int64_t dy = -std::llabs(int64_t(y2) - y1);
    const int32_t sx = x1 < x2 ? 1 : -1;
    const int32_t sy = y1 < y2 ? 1 : -1;
    int64_t err = dx + dy;
    int32_t x = x1;
    int32_t y = y1;
    while (x != x2 || y != y2) {
        visit(x, y);
        const int64_t e2 = 2 * err;
        if (e2 >= dy) {
            err += dy;
            x += sx;
        }
        if (e2 <= dx) {
            err += dx;
            y += sy;
        }
    }
    if (includeLast)
        visit(x, y);
}

// The first pixel of a pen of the given width centred on a pixel.
int32_t penStart(int32_t at, int32_t width)
{
    return at - (width - 1) / 2;
}

enum MaskKind : uint8_t { Empty = 0, Interior = 1, Outline = 2 };

// The pixels of one polygon over its bounding box, each marked once as interior
// or outline, so that the figure can be combined with the picture in one pass.
struct PolygonMask
{
    int32_t left = 0, top = 0, width = 0, height = 0;
    std::vector<uint8_t> kind;

    PolygonMask(const std::vector<DevicePoint>& points, int32_t pen)
    {
        auto [minX, maxX] = std::minmax_element(points.begin(), points.end(),
            [](const DevicePoint& a, const DevicePoint& b) { return a.x < b.x; });
        auto [minY, maxY] = std::minmax_element(points.begin(), points.end(),
            [](const DevicePoint& a, const DevicePoint& b) { return a.y < b.y; });
        left = minX->x - pen;
        top = minY->y - pen;
        width = maxX->x - minX->x + 2 * pen + 1;
        height = maxY->y - minY->y + 2 * pen + 1;
        kind.assign(size_t(width) * size_t(height), Empty);
    }

    void mark(int32_t x, int32_t y, uint8_t k)
    {
        const int32_t i = x - left;
        const int32_t j = y - top;
        if (i >= 0 && i < width && j >= 0 && j < height)
            kind[size_t(j) * width + i] = std::max(kind[size_t(j) * width + i], k);
    }

    void fillWinding(const std::vector<DevicePoint>& points)
    {
        std::vector<std::pair<double, int>> crossings;
        for (int32_t j = 0; j < height; ++j) {
            const double yc = top + j + 0.5;
            crossings.clear();
            for (size_t e = 0; e < points.size(); ++e) {
                const DevicePoint& a = points[e];
                const DevicePoint& b = points[(e + 1) % points.size()];
                if (a.y == b.y)
                    continue;
                const bool up = a.y <= yc && yc < b.y;
                const bool down = b.y <= yc && yc < a.y;
                if (!up && !down)
                    continue;
                const double x = a.x + (yc - a.y) * double(b.x - a.x) / double(b.y - a.y);
                crossings.emplace_back(x, up ? 1 : -1);
            }
            std::sort(crossings.begin(), crossings.end());
            int winding = 0;
            for (size_t c = 0; c + 1 < crossings.size(); ++c) {
                winding += crossings[c].second;
                if (winding == 0)
                    continue;
                const int32_t from = int32_t(std::ceil(crossings[c].first - 0.5));
                const int32_t to = int32_t(std::ceil(crossings[c + 1].first - 0.5));
                for (int32_t x = from; x < to; ++x)
                    mark(x, top + j, Interior);
            }
        }
    }

    void outline(const std::vector<DevicePoint>& points, int32_t pen)
    {
        for (size_t e = 0; e < points.size(); ++e) {
            const DevicePoint& a = points[e];
            const DevicePoint& b = points[(e + 1) % points.size()];
            forEachLinePixel(a.x, a.y, b.x, b.y, true, [&](int32_t x, int32_t y) {
                for (int32_t v = penStart(y, pen); v < penStart(y, pen) + pen; ++v)
                    for (int32_t u = penStart(x, pen); u < penStart(x, pen) + pen; ++u)
                        mark(u, v, Outline);
            });
        }
    }
};

} // namespace

ImageCanvas::ImageCanvas(int32_t width, int32_t height)
{
    resize(width, height);
}

void ImageCanvas::resize(int32_t width, int32_t height)
{
    m_image = QImage(std::max(1, width), std::max(1, height), QImage::Format_RGB32);
    deviceResized();
    clearDevice();
}

void ImageCanvas::setPicture(const QImage& picture)
{
    m_picture = picture.isNull() ? QImage() : picture.convertToFormat(QImage::Format_RGB32);
}

int32_t ImageCanvas::pixelColor(int32_t x, int32_t y) const
{
    return Rgb::fromQRgb(m_image.pixel(x, y));
}

void ImageCanvas::changed()
{
    if (m_dirty)
        return;
    m_dirty = true;
    if (m_changeListener)
        m_changeListener();
}

void ImageCanvas::clearDevice()
{
    m_image.fill(Rgb::toQRgb(BackColor()));
    if (!m_picture.isNull()) {
        QPainter painter(&m_image);
        painter.drawImage(0, 0, m_picture);
    }
    changed();
}

void ImageCanvas::span(int32_t y, int32_t x1, int32_t x2, QRgb rgb)
{
    if (y < 0 || y >= m_image.height())
        return;
    x1 = std::max(x1, 0);
    x2 = std::min(x2, m_image.width() - 1);
    if (x1 > x2)
        return;
    QRgb* row = reinterpret_cast<QRgb*>(m_image.scanLine(y));
    if (DrawMode() == XorPen) {
        const QRgb bits = rgb & 0x00FFFFFFu;
        for (int32_t x = x1; x <= x2; ++x)
            row[x] ^= bits;
    } else {
        std::fill(row + x1, row + x2 + 1, rgb);
    }
}

void ImageCanvas::segment(int32_t x1, int32_t y1, int32_t x2, int32_t y2, int32_t color)
{
    const QRgb rgb = Rgb::toQRgb(color);
    if (DrawWidth() <= 1)
        thinSegment(x1, y1, x2, y2, rgb);
    else
        wideSegment(x1, y1, x2, y2, rgb);
    changed();
}

void ImageCanvas::thinSegment(int32_t x1, int32_t y1, int32_t x2, int32_t y2, QRgb rgb)
{
    // The end pixel is left out, so that a line drawn on from the current point
    // does not combine the shared pixel twice; a segment of no length is one pixel.
    const bool single = x1 == x2 && y1 == y2;
    forEachLinePixel(x1, y1, x2, y2, single, [&](int32_t x, int32_t y) { span(y, x, x, rgb); });
}

void ImageCanvas::wideSegment(int32_t x1, int32_t y1, int32_t x2, int32_t y2, QRgb rgb)
{
    // A square pen stamped along the line covers one unbroken run of pixels on each
    // row, so the runs are gathered first and each pixel is combined once.
    const int32_t pen = DrawWidth();
    const int32_t top = std::max(std::min(y1, y2) - pen, 0);
    const int32_t bottom = std::min(std::max(y1, y2) + pen, m_image.height() - 1);
    if (top > bottom)
        return;
    const int32_t rows = bottom - top + 1;
    std::vector<std::pair<int32_t, int32_t>> runs(size_t(rows), {INT32_MAX, INT32_MIN});
    forEachLinePixel(x1, y1, x2, y2, true, [&](int32_t x, int32_t y) {
        for (int32_t v = penStart(y, pen); v < penStart(y, pen) + pen; ++v) {
            if (v < top || v > bottom)
                continue;
            auto& run = runs[size_t(v - top)];
            run.first = std::min(run.first, penStart(x, pen));
            run.second = std::max(run.second, penStart(x, pen) + pen - 1);
        }
    });
    for (int32_t j = 0; j < rows; ++j)
        if (runs[size_t(j)].first <= runs[size_t(j)].second)
            span(top + j, runs[size_t(j)].first, runs[size_t(j)].second, rgb);
}

void ImageCanvas::box(int32_t x1, int32_t y1, int32_t x2, int32_t y2, int32_t outline)
{
    const int32_t left = std::min(x1, x2), right = std::max(x1, x2);
    const int32_t top = std::min(y1, y2), bottom = std::max(y1, y2);
    const int32_t pen = DrawWidth();
    const QRgb edge = Rgb::toQRgb(outline);
    const QRgb fill = Rgb::toQRgb(FillColor());
    for (int32_t y = std::max(top, 0); y <= std::min(bottom, m_image.height() - 1); ++y) {
        if (y < top + pen || y > bottom - pen) {
            span(y, left, right, edge);
            continue;
        }
        const int32_t innerLeft = left + pen;
        const int32_t innerRight = right - pen;
        span(y, left, std::min(innerLeft - 1, right), edge);
        if (innerLeft <= innerRight) {
            span(y, std::max(innerRight + 1, innerLeft), right, edge);
            if (FillStyle() == Solid)
                span(y, innerLeft, innerRight, fill);
        }
    }
    changed();
}

void ImageCanvas::discRow(int32_t y, double cx, double outerHalf, double innerHalf, QRgb outline, QRgb fill)
{
    // Pixels whose centres lie within the half-width of the row belong to the disc.
    const int32_t outerFrom = int32_t(std::ceil(cx - outerHalf - 0.5));
    const int32_t outerTo = int32_t(std::floor(cx + outerHalf - 0.5));
    if (innerHalf < 0) {
        span(y, outerFrom, outerTo, outline);
        return;
    }
    const int32_t innerFrom = std::max(outerFrom, int32_t(std::ceil(cx - innerHalf - 0.5)));
    const int32_t innerTo = std::min(outerTo, int32_t(std::floor(cx + innerHalf - 0.5)));
    if (innerFrom > innerTo) {
        span(y, outerFrom, outerTo, outline);
        return;
    }
    span(y, outerFrom, innerFrom - 1, outline);
    span(y, innerTo + 1, outerTo, outline);
    if (FillStyle() == Solid)
        span(y, innerFrom, innerTo, fill);
}

void ImageCanvas::disc(double cx, double cy, double radius, int32_t outline)
{
    const QRgb edge = Rgb::toQRgb(outline);
    const QRgb fill = Rgb::toQRgb(FillColor());
    const double inner = radius - DrawWidth();
    const int32_t first = int32_t(std::floor(cy - radius));
    const int32_t last = int32_t(std::ceil(cy + radius));
    bool drewAny = false;
    for (int32_t y = std::max(first, 0); y <= std::min(last, m_image.height() - 1); ++y) {
        const double dy = y + 0.5 - cy;
        if (dy * dy > radius * radius)
            continue;
        const double outerHalf = std::sqrt(radius * radius - dy * dy);
        const double innerHalf = (inner > 0 && dy * dy <= inner * inner) ? std::sqrt(inner * inner - dy * dy) : -1;
        discRow(y, cx, outerHalf, innerHalf, edge, fill);
        drewAny = true;
    }
    // A circle smaller than a pixel still shows as its centre pixel.
    if (!drewAny && radius < 1)
        span(int32_t(std::floor(cy)), int32_t(std::floor(cx)), int32_t(std::floor(cx)), edge);
    changed();
}

void ImageCanvas::dot(int32_t x, int32_t y, int32_t color)
{
    const int32_t pen = DrawWidth();
    const QRgb rgb = Rgb::toQRgb(color);
    for (int32_t v = penStart(y, pen); v < penStart(y, pen) + pen; ++v)
        span(v, penStart(x, pen), penStart(x, pen) + pen - 1, rgb);
    changed();
}

void ImageCanvas::polygon(const std::vector<DevicePoint>& points, int32_t outline)
{
    const int32_t pen = DrawWidth();
    PolygonMask mask(points, pen);
    if (FillStyle() == Solid)
        mask.fillWinding(points);
    mask.outline(points, pen);
    const QRgb edge = Rgb::toQRgb(outline);
    const QRgb fill = Rgb::toQRgb(FillColor());
    for (int32_t j = 0; j < mask.height; ++j)
        for (int32_t i = 0; i < mask.width; ++i) {
            const uint8_t k = mask.kind[size_t(j) * mask.width + i];
            if (k != Empty)
                span(mask.top + j, mask.left + i, mask.left + i, k == Outline ? edge : fill);
        }
    changed();
}
