#pragma once

#include <cstdint>

class Canvas;

// Draws what surrounds a sample's molecules on its picture: the measured wall, a
// grey solid box with its black face towards the gas, and the grid of lines through
// the molecules' centres across the gas side of the wall. The sample keeps the
// molecules; this class knows only the picture and where the wall stands.
class SamplePainter
{
public:
    // The measured wall: a vertical wall with the gas to its right or left, or a
    // horizontal wall with the gas below.
    enum Wall : int16_t { LeftWall = 0, RightWall = 1, TopWall = 2 };

    // The colour of the wall's solid side.
    static constexpr int32_t WallColor = 200 + 256 * 200 + 65536 * 200;

    // Paints on canvas for a wall (0 left, 1 right, 2 top) at wallCoord.
    SamplePainter(Canvas& canvas, int16_t wall, float wallCoord);

    // Draws the wall with the exclusive-or pen, its colours combined with the
    // background so that it shows as designed.
    void DrawWall() const;

    // Draws the grid lines through one molecule's centre in plain black, copying
    // over what is there; between BeginGrid and EndGrid, which restores the
    // exclusive-or pen.
    void BeginGrid() const;
    void DrawGridLines(float xCenter, float yCenter) const;
    void EndGrid() const;

private:
    Canvas& m_canvas;
    int16_t m_wall;
    float m_wallCoord;
    // The gas side of the wall that the grid spans.
    float m_gridLeft = 0;
    float m_gridRight = 0;
    float m_gridTop = 0;
    float m_gridBottom = 0;
};
