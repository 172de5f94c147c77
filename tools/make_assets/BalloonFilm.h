#pragma once

#include <QImage>
#include <QPointF>

#include <vector>

// The film of the movie view: at dusk a paper balloon rises from a village, the
// camera tilting up after it until the roofs sink out of sight and two more
// balloons glow in the distance.
class BalloonFilm
{
public:
    static constexpr int Width = 320;
    static constexpr int Height = 224;
    static constexpr int FramesPerSecond = 15;
    static constexpr int Seconds = 10;

    BalloonFilm();

    // Number of frames in the film.
    int frameCount() const { return FramesPerSecond * Seconds; }

    // One frame of the film.
    QImage frame(int index) const;

private:
    struct House
    {
        double left, width, height, roof;
        bool tower;
        int windows;
    };

    void drawSky(QPainter& painter, double tilt) const;
    void drawStars(QPainter& painter, double tilt, double dusk) const;
    void drawHills(QPainter& painter, double tilt) const;
    void drawVillage(QPainter& painter, double ground) const;
    void drawFarBalloons(QPainter& painter, double progress, double tilt) const;

    std::vector<QPointF> m_stars;
    std::vector<House> m_houses;
    std::vector<double> m_flicker;
};
