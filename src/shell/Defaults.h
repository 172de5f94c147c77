#pragma once

#include <cstdint>

// The routines that put every parameter of the two experiments back to its
// default: the collision experiment's record and the liquid pages' fluid values.

// Writes the collision defaults, the default colours made against the current
// background of the introduction's picture (the introduction is loaded if it is
// not). The current colours are left as they are.
void ResetCollisionDefaults();
// The same against a background the caller already knows: the introduction passes
// its own while it loads, when it cannot yet be looked up as loaded.
void ResetCollisionDefaults(int32_t background);

// Writes the fluid defaults: 6 rows, 5 columns, red and blue groups, and the
// three-dimensional liquid surface on.
void ResetFluidDefaults();

// Both of the above.
void RestoreAllDefaults();
void RestoreAllDefaults(int32_t background);
