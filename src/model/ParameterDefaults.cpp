#include "ParameterDefaults.h"

#include "CollisionSetup.h"
#include "FluidParameters.h"

void ResetCollisionDefaults(CollisionSetup& setup, int32_t background)
{
    setup.resetDefaults(background);
}

void ResetFluidDefaults(FluidParameters& fluid)
{
    fluid.resetDefaults();
}

void RestoreAllDefaults(CollisionSetup& setup, FluidParameters& fluid, int32_t background)
{
    ResetCollisionDefaults(setup, background);
    ResetFluidDefaults(fluid);
}
