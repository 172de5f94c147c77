#pragma once

#include <cstdint>
#include <vector>

// A point in device pixels, for the polygon fill.
struct DevicePoint
{
    int32_t x;
    int32_t y;
};

// The drawing surface every picture of the program is drawn on. It carries a user
// coordinate system, colours, fill and pen state and a current point, and offers
// Cls, Line (with its variants and the box form), Circle, PSet and a winding-filled
// polygon. Coordinates are user units; colours are whole RGB numbers
// r + 256 g + 65536 b. In DrawMode 7 every pixel of one figure is combined with
// the picture exactly once, so drawing a figure twice leaves the picture as it was.
//
// This class keeps the state and maps user units to device pixels; an
// implementation only sets device pixels (ImageCanvas) or nothing at all.
class Canvas
{
public:
    // DrawMode values: the pen's colour replaces the pixel, or is combined with it
    // by exclusive-or.
    static constexpr int16_t CopyPen = 13;
    static constexpr int16_t XorPen = 7;
    // FillStyle values.
    static constexpr int16_t Solid = 0;
    static constexpr int16_t Transparent = 1;

    virtual ~Canvas() = default;

    // The user coordinates of the top-left corner and the extent of the drawable
    // area. Writing any of them makes the scale the caller's own.
    float ScaleLeft() const { return m_ScaleLeft; }
    float ScaleTop() const { return m_ScaleTop; }
    float ScaleWidth() const { return m_ScaleWidth; }
    float ScaleHeight() const { return m_ScaleHeight; }
    void setScaleLeft(float value);
    void setScaleTop(float value);
    void setScaleWidth(float value);
    void setScaleHeight(float value);
    // Sets all four at once.
    void setScale(float left, float top, float width, float height);
    // Makes the scale twips again (15 per logical pixel), following the size.
    void setScaleTwips();
    // Makes the scale device pixels, following the size.
    void setScalePixels();

    // Colours and pen state; each takes effect for the next operation.
    int32_t BackColor() const { return m_BackColor; }
    void setBackColor(int32_t value) { m_BackColor = value; }
    int32_t ForeColor() const { return m_ForeColor; }
    void setForeColor(int32_t value) { m_ForeColor = value; }
    int32_t FillColor() const { return m_FillColor; }
    void setFillColor(int32_t value) { m_FillColor = value; }
    int16_t FillStyle() const { return m_FillStyle; }
    void setFillStyle(int16_t value) { m_FillStyle = value; }
    int16_t DrawMode() const { return m_DrawMode; }
    void setDrawMode(int16_t value) { m_DrawMode = value; }
    int16_t DrawWidth() const { return m_DrawWidth; }
    void setDrawWidth(int16_t value);

    // The current point: where the last Line ended or the last PSet or Circle was.
    float CurrentX() const { return m_CurrentX; }
    float CurrentY() const { return m_CurrentY; }
    void setCurrentX(float value) { m_CurrentX = value; }
    void setCurrentY(float value) { m_CurrentY = value; }

    // Clears the whole area to the background and resets the current point.
    void Cls();

    // A segment from (x1, y1) to (x2, y2) in ForeColor or the given colour.
    void Line(float x1, float y1, float x2, float y2);
    void Line(float x1, float y1, float x2, float y2, int32_t color);
    // A segment from the current point to (x2, y2).
    void LineTo(float x2, float y2);
    void LineTo(float x2, float y2, int32_t color);
    // A segment from (x1, y1) to (x1 + dx, y1 + dy).
    void LineStep(float x1, float y1, float dx, float dy);
    void LineStep(float x1, float y1, float dx, float dy, int32_t color);
    // A segment from the current point to the current point plus (dx, dy).
    void LineToStep(float dx, float dy, int32_t color);
    // The box with opposite corners (x1, y1) and (x2, y2), outlined in ForeColor or
    // the given colour and, while FillStyle is 0, filled with FillColor.
    void Box(float x1, float y1, float x2, float y2);
    void Box(float x1, float y1, float x2, float y2, int32_t color);
    // A box with a relative second corner.
    void BoxStep(float x1, float y1, float dx, float dy, int32_t color);

    // A full circle outlined in the colour and, while FillStyle is 0, filled with
    // FillColor; the radius is in horizontal user units.
    void Circle(float x, float y, float radius, int32_t color);

    // One point of DrawWidth pixels.
    void PSet(float x, float y, int32_t color);

    // A polygon given in device pixels, filled by the winding rule: outlined in
    // ForeColor and, while FillStyle is 0, filled with FillColor.
    void Polygon(const std::vector<DevicePoint>& points);

    // The device size in pixels.
    int32_t DeviceWidth() const { return m_deviceWidth; }
    int32_t DeviceHeight() const { return m_deviceHeight; }

    // Device pixels per pixel of the program's drawing (1 on an ordinary screen, 2
    // on a double-density one). Pen widths and polygon points are given in the
    // program's pixels and drawn this many times larger, so a picture shows the
    // same figures, only finer, at every density; a twip or pixel scale follows.
    double PixelRatio() const { return m_pixelRatio; }
    void setPixelRatio(double value);

    // User units to device pixels, unrounded.
    double toDeviceX(double x) const;
    double toDeviceY(double y) const;

protected:
    // Takes a new device size: a twip or pixel scale takes the new extent.
    void setDeviceSize(int32_t width, int32_t height);
    // The pen width in device pixels: DrawWidth at the pixel ratio, at least 1.
    int32_t penWidth() const { return m_penWidth; }

    // The figures in device pixels, for an implementation to set.
    virtual void clearDevice() = 0;
    virtual void segment(int32_t x1, int32_t y1, int32_t x2, int32_t y2, int32_t color) = 0;
    virtual void box(int32_t x1, int32_t y1, int32_t x2, int32_t y2, int32_t outline) = 0;
    virtual void disc(double cx, double cy, double radius, int32_t outline) = 0;
    virtual void dot(int32_t x, int32_t y, int32_t color) = 0;
    virtual void polygon(const std::vector<DevicePoint>& points, int32_t outline) = 0;

private:
    enum class ScaleMode { Twips, Pixels, User };

    void deviceResized();
    int32_t pixelX(double x) const;
    int32_t pixelY(double y) const;
    void drawSegment(float x1, float y1, float x2, float y2, int32_t color);
    void drawBox(float x1, float y1, float x2, float y2, int32_t color);

    ScaleMode m_scaleMode = ScaleMode::Twips;
    float m_ScaleLeft = 0;
    float m_ScaleTop = 0;
    float m_ScaleWidth = 1;
    float m_ScaleHeight = 1;
    int32_t m_BackColor = 0xFFFFFF;
    int32_t m_ForeColor = 0;
    int32_t m_FillColor = 0;
    int16_t m_FillStyle = Transparent;
    int16_t m_DrawMode = CopyPen;
    int16_t m_DrawWidth = 1;
    float m_CurrentX = 0;
    float m_CurrentY = 0;
    int32_t m_deviceWidth = 1;
    int32_t m_deviceHeight = 1;
    double m_pixelRatio = 1;
    int32_t m_penWidth = 1;
};
