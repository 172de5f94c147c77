#pragma once

#include <cstdint>

// The defaults routines on the program's own records.

// Writes the collision defaults, the default colours made against the current
// background of the introduction's picture (the introduction is loaded if it is
// not). The current colours are left as they are.
void ResetCollisionDefaults();
// The same against a background the caller already knows.
void ResetCollisionDefaults(int32_t background);

// Writes the fluid defaults.
void ResetFluidDefaults();

// Both of the above.
void RestoreAllDefaults();
void RestoreAllDefaults(int32_t background);
