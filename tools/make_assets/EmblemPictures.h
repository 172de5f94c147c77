#pragma once

#include <QImage>
#include <QString>

class QPainter;

// The program's own pictures: its icon and the tall banner of the title panel in
// the splash and About box.
class EmblemPictures
{
public:
    // The program icon: the balloon on a night-blue tile, size x size pixels.
    static QImage icon(int size);

    // The same icon as a scalable SVG drawing of 64 x 64 units, written to path.
    static bool writeIconSvg(const QString& path);

    // The banner beside the title texts: the balloon rising over the roofs at dusk,
    // 103 x 189 pixels.
    // pixelRatio draws it that many times finer, for high-density screens.
    static QImage banner(int pixelRatio = 1);

private:
    static void drawIcon(QPainter& painter, double size);
};
