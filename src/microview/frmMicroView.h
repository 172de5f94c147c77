#pragma once

#include <QWidget>

// The "Microscopic View of Gas" child window of the main frame.
class frmMicroView : public QWidget
{
    Q_OBJECT

public:
    frmMicroView();
};
