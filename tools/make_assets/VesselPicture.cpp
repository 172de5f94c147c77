#include "VesselPicture.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int Wall = 90;
constexpr int RimTop = 900;
constexpr int EllipseHalfHeight = 170;
constexpr double Centre = (VesselPicture::InnerLeft + VesselPicture::InnerRight) / 2.0;
constexpr double HalfWidth = (VesselPicture::InnerRight - VesselPicture::InnerLeft) / 2.0;

QRectF ellipseAround(double y, double halfWidth)
{
    return QRectF(Centre - halfWidth, y - EllipseHalfHeight, 2 * halfWidth, 2 * EllipseHalfHeight);
}

} // namespace

QImage VesselPicture::draw(int liquidLevel, bool threeDimensional, int pixelRatio)
{
    QImage image(WidthTwips / 15 * pixelRatio, HeightTwips / 15 * pixelRatio, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixelRatio / 15.0, pixelRatio / 15.0);
    // The flat vessel stands on the bench's front edge; the round one, seen from a
    // little above, stands on the bench's top, whose back edge lies behind it.
    drawRoom(painter, threeDimensional ? InnerBottom - 100 : InnerBottom + Wall);
    drawLiquid(painter, liquidLevel, threeDimensional);
    drawGlass(painter, threeDimensional);
    drawScale(painter);
    return image;
}

void VesselPicture::drawRoom(QPainter& painter, int benchTop)
{
    QLinearGradient wall(0, 0, 0, benchTop);
    wall.setColorAt(0, QColor(236, 240, 244));
    wall.setColorAt(1, QColor(214, 222, 230));
    painter.fillRect(QRectF(0, 0, WidthTwips, benchTop), wall);
    QLinearGradient bench(0, benchTop, 0, HeightTwips);
    bench.setColorAt(0, QColor(164, 120, 78));
    bench.setColorAt(1, QColor(120, 84, 52));
    painter.fillRect(QRectF(0, benchTop, WidthTwips, HeightTwips - benchTop), bench);
    painter.fillRect(QRectF(0, benchTop, WidthTwips, 30), QColor(196, 154, 108));
}

void VesselPicture::drawLiquid(QPainter& painter, int liquidLevel, bool threeDimensional)
{
    QLinearGradient water(0, liquidLevel, 0, InnerBottom);
    water.setColorAt(0, QColor(96, 160, 214));
    water.setColorAt(1, QColor(58, 118, 184));
    QPainterPath body;
    body.setFillRule(Qt::WindingFill);
    body.addRect(QRectF(InnerLeft, liquidLevel, InnerRight - InnerLeft, InnerBottom - liquidLevel));
    if (threeDimensional)
        body.addEllipse(ellipseAround(InnerBottom, HalfWidth));
    painter.fillPath(body.simplified(), water);
    if (!threeDimensional)
        return;
    // Seen from a little above, the surface is an ellipse whose long axis lies at
    // the liquid's level.
    painter.setPen(QPen(QColor(70, 130, 190), 20));
    painter.setBrush(QColor(150, 196, 232));
    painter.drawEllipse(ellipseAround(liquidLevel, HalfWidth));
}

void VesselPicture::drawGlass(QPainter& painter, bool threeDimensional)
{
    const QColor edge(88, 112, 132);
    const QColor glass(196, 222, 236, 170);
    painter.setPen(QPen(edge, 15));
    painter.setBrush(glass);
    const double left = InnerLeft - Wall;
    if (!threeDimensional) {
        painter.drawRect(QRectF(left, RimTop, Wall, InnerBottom + Wall - RimTop));
        painter.drawRect(QRectF(InnerRight, RimTop, Wall, InnerBottom + Wall - RimTop));
        painter.drawRect(QRectF(InnerLeft, InnerBottom, InnerRight - InnerLeft, Wall));
        painter.drawRect(QRectF(left - 60, RimTop - 40, Wall + 60, 40));
        painter.drawRect(QRectF(InnerRight, RimTop - 40, Wall + 60, 40));
    } else {
        painter.drawRect(QRectF(left, RimTop, Wall, InnerBottom - RimTop));
        painter.drawRect(QRectF(InnerRight, RimTop, Wall, InnerBottom - RimTop));
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(edge, 30));
        painter.drawArc(ellipseAround(InnerBottom, HalfWidth + Wall / 2.0), 180 * 16, 180 * 16);
        painter.setPen(QPen(edge, 20));
        painter.drawEllipse(ellipseAround(RimTop, HalfWidth + Wall / 2.0));
    }
    // A highlight down the left wall, where the window's light falls on the glass.
    painter.fillRect(QRectF(left + 20, RimTop + 200, 25, InnerBottom - RimTop - 500), QColor(255, 255, 255, 150));
}

void VesselPicture::drawScale(QPainter& painter)
{
    // Graduation marks on the outside of the right wall, every 250 twips upwards
    // from the bottom, longer every 1000.
    painter.setPen(QPen(QColor(60, 70, 80), 15));
    const double x = InnerRight + Wall;
    for (int y = InnerBottom; y > RimTop + 200; y -= 250) {
        const bool major = (InnerBottom - y) % 1000 == 0;
        painter.drawLine(QPointF(x, y), QPointF(x + (major ? 150 : 80), y));
    }
}
