#pragma once

#include <QWidget>

// The "Macroscopic View" child window of the main frame.
class frmMacroView : public QWidget
{
    Q_OBJECT

public:
    frmMacroView();
};
