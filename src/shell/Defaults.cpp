#include "Defaults.h"

#include "FluidParameters.h"
#include "Forms.h"

#include "canvas/Rgb.h"
#include "introduction/frmIntroduction.h"
#include "model/CollisionSetup.h"

void ResetCollisionDefaults()
{
    ResetCollisionDefaults(Form<frmIntroduction>().PictureBackColor());
}

void ResetCollisionDefaults(int32_t background)
{
    CollisionSetup::global().resetDefaults(background);
}

void ResetFluidDefaults()
{
    FluidParameters& fluid = FluidParameters::shared();
    fluid.DefaultFluidGroupColor[1] = Rgb::RGB(255, 0, 0);
    fluid.DefaultFluidGroupColor[2] = Rgb::RGB(0, 0, 255);
    fluid.FluidGroupColor[1] = fluid.DefaultFluidGroupColor[1];
    fluid.FluidGroupColor[2] = fluid.DefaultFluidGroupColor[2];
    fluid.FluidRows = 6;
    fluid.FluidColumns = 5;
    fluid.LiquidSurface3D = true;
}

void RestoreAllDefaults()
{
    ResetCollisionDefaults();
    ResetFluidDefaults();
}

void RestoreAllDefaults(int32_t background)
{
    ResetCollisionDefaults(background);
    ResetFluidDefaults();
}
