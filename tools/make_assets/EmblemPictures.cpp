#include "EmblemPictures.h"

#include "PaperBalloon.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QSvgGenerator>

QImage EmblemPictures::icon(int size)
{
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawIcon(painter, size);
    return image;
}

bool EmblemPictures::writeIconSvg(const QString& path)
{
    constexpr int Size = 64;
    QSvgGenerator svg;
    svg.setFileName(path);
    svg.setSize(QSize(Size, Size));
    svg.setViewBox(QRect(0, 0, Size, Size));
    svg.setTitle(QStringLiteral("Floatrix"));
    svg.setDescription(QStringLiteral("A paper hot-air balloon on a night-blue tile"));
    QPainter painter;
    if (!painter.begin(&svg))
        return false;
    drawIcon(painter, Size);
    return painter.end();
}

void EmblemPictures::drawIcon(QPainter& painter, double size)
{
    painter.setRenderHint(QPainter::Antialiasing);
    const double s = size / 64.0;
    QLinearGradient night(0, 0, 0, size);
    night.setColorAt(0, QColor(20, 30, 86));
    night.setColorAt(1, QColor(226, 120, 70));
    painter.setPen(Qt::NoPen);
    painter.setBrush(night);
    painter.drawRoundedRect(QRectF(2 * s, 2 * s, 60 * s, 60 * s), 12 * s, 12 * s);

    PaperBalloon balloon;
    balloon.radius = 16 * s;
    balloon.centre = QPointF(32 * s, 21 * s);
    balloon.turn = 0.1;
    balloon.draw(painter);
}

QImage EmblemPictures::banner(int pixelRatio)
{
    constexpr int Width = 103;
    constexpr int Height = 189;
    QImage image(Width * pixelRatio, Height * pixelRatio, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixelRatio, pixelRatio);
    QLinearGradient sky(0, 0, 0, Height);
    sky.setColorAt(0, QColor(12, 18, 58));
    sky.setColorAt(0.6, QColor(70, 62, 124));
    sky.setColorAt(0.88, QColor(236, 136, 88));
    sky.setColorAt(1, QColor(252, 200, 116));
    painter.fillRect(QRectF(0, 0, Width, Height), sky);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 250, 230, 200));
    const QPointF stars[] = {{12, 14}, {84, 22}, {30, 40}, {92, 58}, {8, 76}, {70, 8}, {50, 20}};
    for (const QPointF& star : stars)
        painter.drawEllipse(star, 0.8, 0.8);

    PaperBalloon balloon;
    balloon.radius = 30;
    balloon.centre = QPointF(52, 62);
    balloon.turn = 0.15;
    balloon.draw(painter);

    // Roofs along the bottom edge.
    QPainterPath roofs;
    roofs.moveTo(0, Height);
    const double outline[][2] = {{0, 170}, {10, 162}, {22, 170}, {22, 166}, {36, 154}, {50, 166},
        {50, 160}, {56, 160}, {56, 140}, {60, 132}, {64, 140}, {64, 160}, {72, 168}, {84, 158},
        {96, 168}, {103, 164}};
    for (const auto& point : outline)
        roofs.lineTo(point[0], point[1]);
    roofs.lineTo(Width, Height);
    roofs.closeSubpath();
    painter.fillPath(roofs, QColor(22, 18, 34));
    painter.fillRect(QRectF(40, 168, 3, 4), QColor(255, 206, 110));
    painter.fillRect(QRectF(86, 170, 3, 4), QColor(255, 206, 110));
    return image;
}
