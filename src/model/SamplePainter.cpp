#include "SamplePainter.h"

#include "canvas/Canvas.h"
#include "canvas/Rgb.h"

namespace {
constexpr int32_t Black = Rgb::RGB(0, 0, 0);
}

SamplePainter::SamplePainter(Canvas& canvas, int16_t wall, float wallCoord)
    : m_canvas(canvas), m_wall(wall), m_wallCoord(wallCoord)
{
    const float left = canvas.ScaleLeft();
    const float top = canvas.ScaleTop();
    m_gridLeft = m_wall == LeftWall ? wallCoord : left;
    m_gridRight = m_wall == RightWall ? wallCoord : left + canvas.ScaleWidth();
    m_gridTop = m_wall == TopWall ? wallCoord : top;
    m_gridBottom = top + canvas.ScaleHeight();
}

void SamplePainter::DrawWall() const
{
    Canvas& surface = m_canvas;
    const float SL = surface.ScaleLeft();
    const float ST = surface.ScaleTop();
    const float SW = surface.ScaleWidth();
    const float SH = surface.ScaleHeight();
    const float WC = m_wallCoord;
    const int32_t B = surface.BackColor();
    const auto greyPen = [&] {
        surface.setFillStyle(Canvas::Solid);
        surface.setFillColor(B ^ WallColor);
        surface.setForeColor(surface.FillColor());
    };
    // Each wall is drawn in the order that gives its look where the grey box and
    // the face line cross, both being exclusive-or figures.
    switch (m_wall) {
    case TopWall:
        greyPen();
        surface.Box(SL, ST, SL + SW, WC);
        surface.setFillStyle(Canvas::Transparent);
        surface.LineStep(SL, WC, SW, 0, B ^ Black);
        break;
    case RightWall:
        greyPen();
        surface.Box(WC, ST, SL + SW, ST + SH);
        surface.setFillStyle(Canvas::Transparent);
        surface.LineStep(WC, ST, 0, SH, B ^ Black);
        break;
    case LeftWall:
        surface.LineStep(WC, ST, 0, SH, B ^ Black);
        greyPen();
        surface.Box(SL, ST, WC, ST + SH);
        surface.setFillStyle(Canvas::Transparent);
        break;
    default:
        break;
    }
}

void SamplePainter::BeginGrid() const
{
    m_canvas.setDrawMode(Canvas::CopyPen);
}

void SamplePainter::DrawGridLines(float xCenter, float yCenter) const
{
    m_canvas.Line(xCenter, m_gridTop, xCenter, m_gridBottom, Black);
    m_canvas.Line(m_gridLeft, yCenter, m_gridRight, yCenter, Black);
}

void SamplePainter::EndGrid() const
{
    m_canvas.setDrawMode(Canvas::XorPen);
}
