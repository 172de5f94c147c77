#include "BalloonFilm.h"

#include "PaperBalloon.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <random>

namespace {

// How far the roofs sink below the frame while the camera follows the balloon.
constexpr double GroundTravel = 270;
constexpr double GroundStart = 176;

double easeInOut(double x)
{
    return x * x * (3 - 2 * x);
}

} // namespace

BalloonFilm::BalloonFilm()
{
    // A fixed seed: the film comes out the same at every rebuild.
    std::mt19937 random(1957);
    std::uniform_real_distribution<double> unit(0, 1);
    for (int i = 0; i < 70; ++i)
        m_stars.emplace_back(unit(random) * Width, unit(random) * Height * 1.6 - Height * 0.9);
    for (double x = -10; x < Width + 10;) {
        House house{x, 22 + unit(random) * 26, 16 + unit(random) * 18, 8 + unit(random) * 8,
            unit(random) < 0.12, 1 + int(unit(random) * 3)};
        m_houses.push_back(house);
        x += house.width + unit(random) * 6;
    }
    for (int i = 0; i < frameCount(); ++i)
        m_flicker.push_back(0.85 + 0.3 * unit(random));
}

QImage BalloonFilm::frame(int index) const
{
    const double progress = double(index) / (frameCount() - 1);
    const double seconds = double(index) / FramesPerSecond;
    const double tilt = GroundTravel * easeInOut(progress);

    QImage image(Width, Height, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawSky(painter, tilt);
    drawStars(painter, tilt, progress);
    drawFarBalloons(painter, progress, tilt);
    drawHills(painter, tilt);

    // The balloon climbs faster than the camera tilts, and shrinks as it goes away.
    PaperBalloon balloon;
    balloon.radius = 17 * (1 - 0.4 * progress);
    balloon.centre = QPointF(150 + 22 * progress + 10 * std::sin(0.7 * seconds),
        118 - 62 * easeInOut(progress) - 14 * progress);
    balloon.turn = 0.25 * seconds;
    balloon.flame = m_flicker[std::size_t(index)];
    balloon.draw(painter);

    drawVillage(painter, GroundStart + tilt);
    return image;
}

void BalloonFilm::drawSky(QPainter& painter, double tilt) const
{
    // The horizon sinks with the tilt, and the darker sky above it fills the frame.
    const double horizon = 168 + 0.5 * tilt;
    QLinearGradient sky(0, horizon - 420, 0, horizon);
    sky.setColorAt(0, QColor(8, 12, 40));
    sky.setColorAt(0.55, QColor(34, 44, 102));
    sky.setColorAt(0.82, QColor(122, 82, 130));
    sky.setColorAt(0.94, QColor(232, 132, 86));
    sky.setColorAt(1, QColor(252, 196, 110));
    painter.fillRect(0, 0, Width, Height, sky);
}

void BalloonFilm::drawStars(QPainter& painter, double tilt, double dusk) const
{
    painter.setPen(Qt::NoPen);
    for (std::size_t i = 0; i < m_stars.size(); ++i) {
        const QPointF at = m_stars[i] + QPointF(0, 0.45 * tilt);
        if (at.y() < -2 || at.y() > Height * 0.7)
            continue;
        const int alpha = int(std::clamp(60 + 180 * dusk - 0.8 * at.y(), 0.0, 255.0));
        painter.setBrush(QColor(255, 250, 230, alpha));
        const double size = i % 7 == 0 ? 1.3 : 0.7;
        painter.drawEllipse(at, size, size);
    }
}

void BalloonFilm::drawHills(QPainter& painter, double tilt) const
{
    const double base = 174 + 0.5 * tilt;
    QPainterPath hills;
    hills.moveTo(0, Height + tilt);
    for (int x = 0; x <= Width; x += 4)
        hills.lineTo(x, base - 10 - 8 * std::sin(x / 37.0) - 5 * std::sin(x / 13.0 + 1));
    hills.lineTo(Width, Height + tilt);
    hills.closeSubpath();
    painter.fillPath(hills, QColor(48, 40, 72));
}

void BalloonFilm::drawVillage(QPainter& painter, double ground) const
{
    if (ground - 60 > Height)
        return;
    const QColor wall(22, 18, 34);
    const QColor lit(255, 206, 110);
    painter.fillRect(QRectF(0, ground, Width, Height), QColor(16, 14, 24));
    for (const House& house : m_houses) {
        const double top = ground - house.height;
        painter.fillRect(QRectF(house.left, top, house.width, house.height), wall);
        QPolygonF roof;
        roof << QPointF(house.left - 2, top) << QPointF(house.left + house.width / 2, top - house.roof)
             << QPointF(house.left + house.width + 2, top);
        painter.setPen(Qt::NoPen);
        painter.setBrush(wall);
        painter.drawPolygon(roof);
        if (house.tower) {
            const double x = house.left + house.width / 2 - 4;
            painter.fillRect(QRectF(x, top - house.roof - 26, 8, 26 + house.roof), wall);
            QPolygonF spire;
            spire << QPointF(x - 1, top - house.roof - 26) << QPointF(x + 4, top - house.roof - 42)
                  << QPointF(x + 9, top - house.roof - 26);
            painter.drawPolygon(spire);
        }
        for (int w = 0; w < house.windows; ++w) {
            const double x = house.left + (w + 0.5) * house.width / house.windows - 2;
            painter.fillRect(QRectF(x, top + house.height * 0.35, 4, 5), lit);
        }
    }
}

void BalloonFilm::drawFarBalloons(QPainter& painter, double progress, double tilt) const
{
    // Two balloons let go earlier drift high up, far away; they come into view as
    // the camera tilts up.
    const QPointF starts[] = {QPointF(60, -40), QPointF(250, -110)};
    for (int i = 0; i < 2; ++i) {
        PaperBalloon far;
        far.radius = 3.2 - i * 0.8;
        far.centre = starts[i] + QPointF(8 * progress, 0.55 * tilt - 30 * progress);
        far.turn = progress * (i + 1);
        far.flame = 0.9 + 0.1 * std::sin(progress * 40 + i);
        far.draw(painter);
    }
}
