#pragma once

#include <QPointF>

class QPainter;

// The Floatrixon: a paper hot-air balloon of coloured tissue gores, lit from inside
// by the small flame that hangs in its mouth. The film, the icon and the title
// picture all draw it.
struct PaperBalloon
{
    QPointF centre;      // centre of the round top
    double radius = 20;  // radius of the round top, in pixels
    double turn = 0;     // how far the gores have turned, in radians
    double flame = 1;    // size of the flame, 1 for a steady one
    double glow = 1;     // 0 unlit, 1 fully lit from inside

    // Draws the balloon with antialiasing on.
    void draw(QPainter& painter) const;

    // How far below the centre the flame's tip hangs, in pixels.
    double depth() const;

private:
    void drawGores(QPainter& painter) const;
    void drawShading(QPainter& painter) const;
    void drawMouth(QPainter& painter) const;
};
