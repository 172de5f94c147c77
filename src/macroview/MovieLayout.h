#pragma once

#include <QRectF>

// Where the movie view's picture and buttons go for a given outer window size: the
// picture centred across and a third of the free height down, "Exit" under its
// right edge, "Play" to the left of "Exit". All values are in twips; the sizes
// never change, only the positions, which may be negative in a small window.
struct MovieLayout
{
    // The fixed sizes of the picture and the buttons, and the gap between buttons.
    static constexpr double PictureWidth = 4815;
    static constexpr double PictureHeight = 3375;
    static constexpr double ButtonWidth = 1095;
    static constexpr double ButtonHeight = 375;
    static constexpr double ButtonGap = 250;

    // Where the picture, "Exit" and "Play" go.
    QRectF picMovie;
    QRectF exit;
    QRectF play;

    // The layout for a window whose outer width and height are given in twips.
    static MovieLayout arrange(double windowWidth, double windowHeight);
};
