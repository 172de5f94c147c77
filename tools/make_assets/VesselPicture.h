#pragma once

#include <QImage>

// The background of the introduction's two liquid pages: a glass vessel of liquid on
// a laboratory bench, drawn to the page picture's scale of 4575 x 4935 twips
// (15 twips to a pixel). The vessel's inside runs from x 1000 to 3480 with its
// bottom at 4425, where the page draws its partition and surface lines.
class VesselPicture
{
public:
    static constexpr int WidthTwips = 4575;
    static constexpr int HeightTwips = 4935;
    static constexpr int InnerLeft = 1000;
    static constexpr int InnerRight = 3480;
    static constexpr int InnerBottom = 4425;

    // The picture with the liquid's surface at the given height in twips; a
    // three-dimensional vessel shows the round rim and the surface as ellipses.
    // pixelRatio draws it that many times finer, for a screen with as many device
    // pixels to a pixel.
    static QImage draw(int liquidLevel, bool threeDimensional, int pixelRatio = 1);

private:
    static void drawRoom(QPainter& painter, int benchTop);
    static void drawLiquid(QPainter& painter, int liquidLevel, bool threeDimensional);
    static void drawGlass(QPainter& painter, bool threeDimensional);
    static void drawScale(QPainter& painter);
};
