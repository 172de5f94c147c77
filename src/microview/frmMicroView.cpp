#include "frmMicroView.h"

frmMicroView::frmMicroView()
{
    setObjectName("frmMicroView");
    setWindowTitle("Microscopic View of Gas");
    resize(480, 320);
}
