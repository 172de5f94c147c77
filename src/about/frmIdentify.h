#pragma once

#include <QDialog>

// The splash window, which is also the About box.
class frmIdentify : public QDialog
{
    Q_OBJECT

public:
    frmIdentify();

    // Shows the window modally as the About box; returns when it is closed.
    void ShowAbout();
};
