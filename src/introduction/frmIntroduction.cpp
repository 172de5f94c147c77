#include "frmIntroduction.h"

frmIntroduction::frmIntroduction()
{
    setObjectName("frmIntroduction");
    setWindowTitle("Introduction");
    resize(480, 320);
}
