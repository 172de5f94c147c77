#include "PaperBalloon.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QRadialGradient>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double Pi = 3.14159265358979;
// The body below the round top reaches this many radii down to the mouth.
constexpr double BodyLength = 1.55;
constexpr double MouthHalfWidth = 0.32;
constexpr int GoresPerHalf = 4;
constexpr int Samples = 40;

const std::array<QColor, 4> GoreColours = {
    QColor(214, 40, 48), QColor(250, 196, 40), QColor(30, 110, 190), QColor(240, 240, 228)};

// Half the width of the balloon at a height s (in radii, 0 at the centre, growing
// downwards): a half sphere on top, then a smooth taper to the mouth.
double halfWidth(double s)
{
    if (s <= 0)
        return std::sqrt(std::max(0.0, 1 - s * s));
    const double u = std::min(1.0, s / BodyLength);
    return 1 - (1 - MouthHalfWidth) * std::pow(u, 1.6);
}

double heightAt(int i)
{
    return -1 + (1 + BodyLength) * i / Samples;
}

} // namespace

double PaperBalloon::depth() const
{
    return radius * (BodyLength + 0.2 + 0.35 * flame);
}

void PaperBalloon::draw(QPainter& painter) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    drawGores(painter);
    drawShading(painter);
    drawMouth(painter);
    painter.restore();
}

void PaperBalloon::drawGores(QPainter& painter) const
{
    // Each gore lies between two meridians; only the front half of the balloon is
    // seen, so the meridians are clipped to -90..90 degrees.
    const double step = Pi / 2 / GoresPerHalf;
    const double phase = std::fmod(turn, 2 * step);
    painter.setPen(Qt::NoPen);
    for (int g = -GoresPerHalf - 2; g <= GoresPerHalf + 1; ++g) {
        const double a = std::clamp(g * step + phase, -Pi / 2, Pi / 2);
        const double b = std::clamp((g + 1) * step + phase, -Pi / 2, Pi / 2);
        if (b - a < 1e-6)
            continue;
        QPolygonF gore;
        for (int i = 0; i <= Samples; ++i)
            gore << centre + QPointF(radius * halfWidth(heightAt(i)) * std::sin(a), radius * heightAt(i));
        for (int i = Samples; i >= 0; --i)
            gore << centre + QPointF(radius * halfWidth(heightAt(i)) * std::sin(b), radius * heightAt(i));
        const int turns = int(std::floor(turn / (2 * step)));
        painter.setBrush(GoreColours[std::size_t(((g - 2 * turns) % 4 + 4) % 4)]);
        painter.drawPolygon(gore);
    }
}

void PaperBalloon::drawShading(QPainter& painter) const
{
    QPolygonF outline;
    for (int i = 0; i <= Samples; ++i)
        outline << centre + QPointF(-radius * halfWidth(heightAt(i)), radius * heightAt(i));
    for (int i = Samples; i >= 0; --i)
        outline << centre + QPointF(radius * halfWidth(heightAt(i)), radius * heightAt(i));
    QPainterPath path;
    path.addPolygon(outline);
    path.closeSubpath();

    // Light from the upper left on the outside, the flame's warm light from within.
    QRadialGradient daylight(centre + QPointF(-0.45 * radius, -0.5 * radius), 1.9 * radius);
    daylight.setColorAt(0, QColor(255, 255, 255, 110));
    daylight.setColorAt(0.45, QColor(255, 255, 255, 0));
    daylight.setColorAt(1, QColor(10, 10, 40, 150));
    painter.fillPath(path, daylight);
    const QPointF mouth = centre + QPointF(0, radius * BodyLength);
    QRadialGradient firelight(mouth, 1.6 * radius);
    firelight.setColorAt(0, QColor(255, 190, 90, int(170 * glow)));
    firelight.setColorAt(1, QColor(255, 140, 40, 0));
    painter.fillPath(path, firelight);
    painter.setPen(QPen(QColor(60, 30, 20, 160), std::max(0.6, radius / 30)));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(path);
}

void PaperBalloon::drawMouth(QPainter& painter) const
{
    const QPointF mouth = centre + QPointF(0, radius * BodyLength);
    const double rx = radius * MouthHalfWidth;
    const double ry = radius * 0.08;
    const QPointF wick = mouth + QPointF(0, radius * 0.2);
    const double line = std::max(0.6, radius / 25);

    painter.setPen(QPen(QColor(70, 50, 40), line));
    painter.drawLine(mouth + QPointF(-rx, 0), wick);
    painter.drawLine(mouth + QPointF(rx, 0), wick);
    painter.setBrush(QColor(90, 40, 20));
    painter.drawEllipse(mouth, rx, ry);

    // The flame: an orange halo, then a yellow tongue pointing up into the mouth.
    const double size = radius * 0.35 * flame;
    QRadialGradient halo(wick, size * 2.2);
    halo.setColorAt(0, QColor(255, 200, 80, 200));
    halo.setColorAt(1, QColor(255, 120, 20, 0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(halo);
    painter.drawEllipse(wick, size * 2.2, size * 2.2);
    QPainterPath tongue;
    tongue.moveTo(wick + QPointF(0, -size * 1.3));
    tongue.cubicTo(wick + QPointF(size * 0.6, -size * 0.4), wick + QPointF(size * 0.5, size * 0.5),
        wick + QPointF(0, size * 0.5));
    tongue.cubicTo(wick + QPointF(-size * 0.5, size * 0.5), wick + QPointF(-size * 0.6, -size * 0.4),
        wick + QPointF(0, -size * 1.3));
    painter.fillPath(tongue, QColor(255, 236, 150));
}
