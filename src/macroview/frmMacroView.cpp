#include "frmMacroView.h"

frmMacroView::frmMacroView()
{
    setObjectName("frmMacroView");
    setWindowTitle("Macroscopic View");
    resize(480, 320);
}
