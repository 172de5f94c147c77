#pragma once

#include "Particle.h"

#include "core/Geometry.h"
#include "core/Numeric.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdlib>

// Whether two molecules of a sample touch: the distance of their centres, each
// rounded to whole units, is at most the reach (twice the sample's radius). Every
// pair is tested in every step, so these stay inline.
namespace MoleculeContact {

// Numeric::toInt32's rounding (to nearest, halves to even) without a library call:
// adding and taking away 1.5 x 2^52 rounds a double in the default rounding mode.
// Out of the safe range Numeric::toInt32 decides, and throws where it must.
inline int32_t RoundCentre(double value)
{
    constexpr double shifter = 6755399441055744.0;
    if (std::fabs(value) < 1e9)
        return static_cast<int32_t>((value + shifter) - shifter);
    return Numeric::toInt32(value);
}

// Whether a molecule whose centre rounds to (xi, yi) touches the other one.
inline bool WithinReach(int32_t xi, int32_t yi, const Particle& other, int32_t reach)
{
    const int32_t xj = RoundCentre(other.Xcoord());
    const int32_t yj = RoundCentre(other.Ycoord());
    // A pair further apart than the reach along either axis is apart whatever the
    // rounding of the distance; the distance itself is needed only near contact.
    const int64_t dx = int64_t(xi) - xj;
    const int64_t dy = int64_t(yi) - yj;
    const bool differencesFit = std::max(std::llabs(dx), std::llabs(dy)) <= INT32_MAX;
    if (differencesFit && (std::llabs(dx) > reach || std::llabs(dy) > reach))
        return false;
    return PointDistance(xi, xj, yi, yj) <= float(reach);
}

} // namespace MoleculeContact
