#pragma once

#include <QWidget>

// The "Introduction" child window of the main frame.
class frmIntroduction : public QWidget
{
    Q_OBJECT

public:
    frmIntroduction();
};
