#include "Defaults.h"

#include "Forms.h"
#include "ProgramRecords.h"

#include "introduction/frmIntroduction.h"
#include "model/ParameterDefaults.h"

void ResetCollisionDefaults()
{
    ResetCollisionDefaults(Form<frmIntroduction>().PictureBackColor());
}

void ResetCollisionDefaults(int32_t background)
{
    ResetCollisionDefaults(ProgramRecords::instance().Collision, background);
}

void ResetFluidDefaults()
{
    ResetFluidDefaults(ProgramRecords::instance().Fluid);
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
