#include "FluidParameters.h"

FluidParameters& FluidParameters::shared()
{
    static FluidParameters values;
    return values;
}
