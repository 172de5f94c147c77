#pragma once

#include "CollisionArray.h"

#include <cstdint>

class CollisionSetup;
class CollisionState;

// Momentum and kinetic energy of the collision experiment before and after the
// contact, for each body and for the two together: the figures a learner compares
// to see what a collision keeps. The side view moves along x only.
class CollisionBalance
{
public:
    // One body's (or the system's) momentum components and kinetic energy.
    struct Figures
    {
        double Px = 0; // kg m/sec
        double Py = 0;
        double Energy = 0; // J
    };

    // The system's figures sit after the two bodies'.
    static constexpr int System = 3;

    // The figures of a computed collision on a page (1 from above, 2 side view).
    CollisionBalance(const CollisionSetup& setup, const CollisionState& state, int16_t page);

    // Before and after the contact, by body 1, 2 and System.
    CollisionArray<Figures, 3> Before, After;

    // After minus before, by body 1, 2 and System.
    Figures Change(int index) const;

    // The kinetic energy a plastic contact takes: m1 m2 |du|^2 / (2 (m1 + m2)),
    // du the difference of the velocities along the line of centres.
    static double PlasticLoss(const CollisionSetup& setup, const CollisionState& state);
};
