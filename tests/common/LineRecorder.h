#pragma once

#include "canvas/Canvas.h"

#include <cstdint>
#include <cstdlib>
#include <vector>

// A picture one device unit per twip of the introduction's picture that keeps the
// lines drawn on it, so that arrows can be read back exactly.
class LineRecorder : public Canvas
{
public:
    struct Segment
    {
        int32_t x1, y1, x2, y2;
    };

    LineRecorder()
    {
        setDeviceSize(4575, 4935);
        setScale(0, 0, 4575, 4935);
    }

    std::vector<Segment> lines;

    // The shaft of the arrow from (cx, cy) along x (component 1) or up (component 2),
    // as a signed length; 0 when there is none.
    float shaft(float cx, float cy, int16_t component) const
    {
        for (const Segment& l : lines)
            if (std::abs(l.x1 - int(cx)) <= 1 && std::abs(l.y1 - int(cy)) <= 1
                && (component == 1 ? l.y2 == l.y1 && l.x2 != l.x1 : l.x2 == l.x1 && l.y2 != l.y1))
                return component == 1 ? float(l.x2 - l.x1) : float(l.y1 - l.y2);
        return 0;
    }

protected:
    void clearDevice() override { lines.clear(); }
    void segment(int32_t x1, int32_t y1, int32_t x2, int32_t y2, int32_t) override { lines.push_back({x1, y1, x2, y2}); }
    void box(int32_t, int32_t, int32_t, int32_t, int32_t) override {}
    void disc(double, double, double, int32_t) override {}
    void dot(int32_t, int32_t, int32_t) override {}
    void polygon(const std::vector<DevicePoint>&, int32_t) override {}
};
