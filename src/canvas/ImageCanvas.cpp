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

// Floor and ceiling to an integer. The library's, without SSE4.1, take a dozen
// instructions; truncating and correcting by one gives the same integer for any
// value that fits, and the rasteriser takes four of them per row of a disc.
int32_t floorToInt(double value)
{
    if (!(std::fabs(value) < 1e9))
        return int32_t(std::floor(value));
    const int32_t truncated = int32_t(value);
    return truncated - (double(truncated) > value ? 1 : 0);
}

int32_t ceilToInt(double value)
{
    if (!(std::fabs(value) < 1e9))
        return int32_t(std::ceil(value));
    const int32_t truncated = int32_t(value);
    return truncated + (double(truncated) < value ? 1 : 0);
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
    m_width = m_image.width();
    m_height = m_image.height();
    m_stride = m_image.bytesPerLine() / qsizetype(sizeof(QRgb));
    setDeviceSize(m_width, m_height);
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

// Every figure writes through the image's own pixel pointer, taken once per
// figure: taking it detaches the image from any copy a caller keeps.
void ImageCanvas::beginFigure()
{
    m_bits = reinterpret_cast<QRgb*>(m_image.bits());
    m_xor = DrawMode() == XorPen;
}

void ImageCanvas::endFigure()
{
    if (m_changed)
        return;
    m_changed = true;
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
    endFigure();
}

void ImageCanvas::segment(int32_t x1, int32_t y1, int32_t x2, int32_t y2, int32_t color)
{
    beginFigure();
    const QRgb rgb = Rgb::toQRgb(color);
    if (penWidth() <= 1)
        thinSegment(x1, y1, x2, y2, rgb);
    else
        wideSegment(x1, y1, x2, y2, rgb);
    endFigure();
}

void ImageCanvas::thinSegment(int32_t x1, int32_t y1, int32_t x2, int32_t y2, QRgb rgb)
{
    // The end pixel is left out, so that a line drawn on from the current point
    // does not combine the shared pixel twice; a segment of no length is one pixel.
    if (y1 == y2) {
        if (x1 == x2)
            span(y1, x1, x1, rgb);
        else if (x1 < x2)
            span(y1, x1, x2 - 1, rgb);
        else
            span(y1, x2 + 1, x1, rgb);
        return;
    }
    if (x1 == x2) {
        const int32_t step = y1 < y2 ? 1 : -1;
        for (int32_t y = std::clamp(y1, -1, m_height); y != std::clamp(y2, -1, m_height); y += step)
            span(y, x1, x1, rgb);
        return;
    }
    forEachLinePixel(x1, y1, x2, y2, false, [&](int32_t x, int32_t y) { span(y, x, x, rgb); });
}

void ImageCanvas::wideSegment(int32_t x1, int32_t y1, int32_t x2, int32_t y2, QRgb rgb)
{
    // A square pen stamped along the line covers one unbroken run of pixels on each
    // row, so the runs are gathered first and each pixel is combined once.
    const int32_t pen = penWidth();
    if (x1 == x2 || y1 == y2) {
        // Along an axis the stamps make one rectangle.
        const int32_t left = penStart(std::min(x1, x2), pen);
        const int32_t right = penStart(std::max(x1, x2), pen) + pen - 1;
        const int32_t top = std::max(penStart(std::min(y1, y2), pen), 0);
        const int32_t bottom = std::min(penStart(std::max(y1, y2), pen) + pen - 1, m_height - 1);
        for (int32_t y = top; y <= bottom; ++y)
            span(y, left, right, rgb);
        return;
    }
    const int32_t top = std::max(std::min(y1, y2) - pen, 0);
    const int32_t bottom = std::min(std::max(y1, y2) + pen, m_height - 1);
    if (top > bottom)
        return;
    const int32_t rows = bottom - top + 1;
    m_runs.assign(size_t(rows), {INT32_MAX, INT32_MIN});
    forEachLinePixel(x1, y1, x2, y2, true, [&](int32_t x, int32_t y) {
        for (int32_t v = penStart(y, pen); v < penStart(y, pen) + pen; ++v) {
            if (v < top || v > bottom)
                continue;
            auto& run = m_runs[size_t(v - top)];
            run.first = std::min(run.first, penStart(x, pen));
            run.second = std::max(run.second, penStart(x, pen) + pen - 1);
        }
    });
    for (int32_t j = 0; j < rows; ++j)
        if (m_runs[size_t(j)].first <= m_runs[size_t(j)].second)
            span(top + j, m_runs[size_t(j)].first, m_runs[size_t(j)].second, rgb);
}

void ImageCanvas::box(int32_t x1, int32_t y1, int32_t x2, int32_t y2, int32_t outline)
{
    beginFigure();
    const int32_t left = std::min(x1, x2), right = std::max(x1, x2);
    const int32_t top = std::min(y1, y2), bottom = std::max(y1, y2);
    const int32_t pen = penWidth();
    const QRgb edge = Rgb::toQRgb(outline);
    const QRgb fill = Rgb::toQRgb(FillColor());
    const bool solid = FillStyle() == Solid;
    for (int32_t y = std::max(top, 0); y <= std::min(bottom, m_height - 1); ++y) {
        if (y < top + pen || y > bottom - pen) {
            span(y, left, right, edge);
            continue;
        }
        const int32_t innerLeft = left + pen;
        const int32_t innerRight = right - pen;
        span(y, left, std::min(innerLeft - 1, right), edge);
        if (innerLeft <= innerRight) {
            span(y, std::max(innerRight + 1, innerLeft), right, edge);
            if (solid)
                span(y, innerLeft, innerRight, fill);
        }
    }
    endFigure();
}

void ImageCanvas::discRow(int32_t y, double cx, double outerHalf, double innerHalf, QRgb outline, QRgb fill)
{
    // Pixels whose centres lie within the half-width of the row belong to the disc.
    const int32_t outerFrom = ceilToInt(cx - outerHalf - 0.5);
    const int32_t outerTo = floorToInt(cx + outerHalf - 0.5);
    if (innerHalf < 0) {
        span(y, outerFrom, outerTo, outline);
        return;
    }
    const int32_t innerFrom = std::max(outerFrom, ceilToInt(cx - innerHalf - 0.5));
    const int32_t innerTo = std::min(outerTo, floorToInt(cx + innerHalf - 0.5));
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
    beginFigure();
    const QRgb edge = Rgb::toQRgb(outline);
    const QRgb fill = Rgb::toQRgb(FillColor());
    const double inner = radius - penWidth();
    const double outerSquared = radius * radius;
    const double innerSquared = inner * inner;
    const int32_t first = std::max(int32_t(std::floor(cy - radius)), 0);
    const int32_t last = std::min(int32_t(std::ceil(cy + radius)), m_height - 1);
    bool drewAny = false;
    // The rows go in batches: the square roots of a batch are taken first, all
    // independent of each other, so that the processor overlaps them. A root of a
    // negative number (a row outside the disc or its interior) is not used.
    constexpr int32_t Batch = 16;
    double outerHalf[Batch];
    double innerHalf[Batch];
    double squared[Batch];
    for (int32_t from = first; from <= last; from += Batch) {
        const int32_t count = std::min(Batch, last - from + 1);
        for (int32_t k = 0; k < count; ++k) {
            const double dy = (from + k) + 0.5 - cy;
            squared[k] = dy * dy;
            outerHalf[k] = std::sqrt(outerSquared - squared[k]);
            innerHalf[k] = std::sqrt(innerSquared - squared[k]);
        }
        for (int32_t k = 0; k < count; ++k) {
            if (squared[k] > outerSquared)
                continue;
            const bool hasInterior = inner > 0 && squared[k] <= innerSquared;
            discRow(from + k, cx, outerHalf[k], hasInterior ? innerHalf[k] : -1, edge, fill);
            drewAny = true;
        }
    }
    // A circle smaller than a pixel still shows as its centre pixel.
    if (!drewAny && radius < 1)
        span(int32_t(std::floor(cy)), int32_t(std::floor(cx)), int32_t(std::floor(cx)), edge);
    endFigure();
}

void ImageCanvas::dot(int32_t x, int32_t y, int32_t color)
{
    beginFigure();
    const int32_t pen = penWidth();
    const QRgb rgb = Rgb::toQRgb(color);
    for (int32_t v = penStart(y, pen); v < penStart(y, pen) + pen; ++v)
        span(v, penStart(x, pen), penStart(x, pen) + pen - 1, rgb);
    endFigure();
}

void ImageCanvas::polygon(const std::vector<DevicePoint>& points, int32_t outline)
{
    const int32_t pen = penWidth();
    PolygonMask mask(points, pen);
    if (FillStyle() == Solid)
        mask.fillWinding(points);
    mask.outline(points, pen);
    beginFigure();
    const QRgb edge = Rgb::toQRgb(outline);
    const QRgb fill = Rgb::toQRgb(FillColor());
    for (int32_t j = 0; j < mask.height; ++j) {
        const uint8_t* row = mask.kind.data() + size_t(j) * mask.width;
        for (int32_t i = 0; i < mask.width;) {
            const uint8_t k = row[i];
            int32_t end = i + 1;
            while (end < mask.width && row[end] == k)
                ++end;
            if (k != Empty)
                span(mask.top + j, mask.left + i, mask.left + end - 1, k == Outline ? edge : fill);
            i = end;
        }
    }
    endFigure();
}
