#pragma once

#include "core/SharedRandom.h"
#include "model/CollisionSetup.h"

#include <array>

// Both bodies at once: x, y, ux, uy of body 1, then of body 2.
inline void place(CollisionSetup& setup, std::array<float, 4> a, std::array<float, 4> b)
{
    setup.X = {a[0], b[0]};
    setup.Y = {a[1], b[1]};
    setup.Ux = {a[2], b[2]};
    setup.Uy = {a[3], b[3]};
}

// A number drawn evenly from [low, high) with the program's shared random generator.
inline float uniform(float low, float high)
{
    return low + (high - low) * SharedRandom::next();
}
