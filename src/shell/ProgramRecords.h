#pragma once

#include "model/CollisionSetup.h"
#include "model/FluidParameters.h"

// The program's one collision set-up and one set of fluid values, alive from
// start-up to exit. Only the application reaches them here; it hands them to the
// windows that read or edit them.
struct ProgramRecords
{
    CollisionSetup Collision;
    FluidParameters Fluid;

    // The program's records.
    static ProgramRecords& instance();
};
