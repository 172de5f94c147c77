#pragma once

#include "Canvas.h"

#include <QImage>

#include <functional>
#include <utility>
#include <vector>

// The drawing surface on a QImage (RGB32), antialiasing off. Figures are
// rasterised here row span by row span, straight into the image's pixels, so that
// each pixel of one figure is combined with the picture exactly once: copied in
// DrawMode 13, exclusive-or'ed in DrawMode 7.
class ImageCanvas : public Canvas
{
public:
    // A surface of the given size in device pixels, cleared to white, scale twips.
    ImageCanvas(int32_t width = 1, int32_t height = 1);

    // Gives the surface a new size in device pixels; the picture is cleared.
    void resize(int32_t width, int32_t height);

    // The background picture that Cls clears to (top-left, natural size), or none.
    void setPicture(const QImage& picture);
    bool hasPicture() const { return !m_picture.isNull(); }

    // The pixels drawn so far.
    const QImage& image() const { return m_image; }
    // The colour number of one device pixel.
    int32_t pixelColor(int32_t x, int32_t y) const;

    // Called once after the picture changes, until markClean(): lets a widget
    // schedule one repaint however many figures a handler draws.
    void setChangeListener(std::function<void()> listener) { m_changeListener = std::move(listener); }
    void markClean() { m_changed = false; }

protected:
    void clearDevice() override;
    void segment(int32_t x1, int32_t y1, int32_t x2, int32_t y2, int32_t color) override;
    void box(int32_t x1, int32_t y1, int32_t x2, int32_t y2, int32_t outline) override;
    void disc(double cx, double cy, double radius, int32_t outline) override;
    void dot(int32_t x, int32_t y, int32_t color) override;
    void polygon(const std::vector<DevicePoint>& points, int32_t outline) override;

private:
    void beginFigure();
    void endFigure();
    // Combines the pixels x1..x2 of row y with the colour, clipped to the image.
    void span(int32_t y, int32_t x1, int32_t x2, QRgb rgb)
    {
        if (y < 0 || y >= m_height)
            return;
        if (x1 < 0)
            x1 = 0;
        if (x2 >= m_width)
            x2 = m_width - 1;
        if (x1 > x2)
            return;
        QRgb* row = m_bits + y * m_stride;
        if (m_xor) {
            const QRgb bits = rgb & 0x00FFFFFFu;
            for (int32_t x = x1; x <= x2; ++x)
                row[x] ^= bits;
        } else {
            for (int32_t x = x1; x <= x2; ++x)
                row[x] = rgb;
        }
    }
    void thinSegment(int32_t x1, int32_t y1, int32_t x2, int32_t y2, QRgb rgb);
    void wideSegment(int32_t x1, int32_t y1, int32_t x2, int32_t y2, QRgb rgb);
    void discRow(int32_t y, double cx, double outerHalf, double innerHalf, QRgb outline, QRgb fill);

    QImage m_image;
    QImage m_picture;
    std::function<void()> m_changeListener;
    bool m_changed = false;

    // The image's pixels while a figure is drawn, and its geometry.
    QRgb* m_bits = nullptr;
    qsizetype m_stride = 0;
    int32_t m_width = 0;
    int32_t m_height = 0;
    bool m_xor = false;

    // Row runs of a wide pen, kept between figures to spare an allocation each.
    std::vector<std::pair<int32_t, int32_t>> m_runs;
};
