#pragma once

#include <cstdint>

class CollisionSetup;
struct FluidParameters;

// The routines that put every parameter of the two experiments back to its default.

// Writes the collision defaults, the default colours made against the background
// of the picture they are drawn on. The current colours are left as they are.
void ResetCollisionDefaults(CollisionSetup& setup, int32_t background);

// Writes the fluid defaults: 6 rows, 5 columns, red and blue groups, and the
// three-dimensional liquid surface on.
void ResetFluidDefaults(FluidParameters& fluid);

// Both of the above.
void RestoreAllDefaults(CollisionSetup& setup, FluidParameters& fluid, int32_t background);
