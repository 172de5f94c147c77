#pragma once

#include <QObject>
#include <QString>

class QWidget;

// Status-line hints: moving the mouse over a control writes its hint into the main
// frame's status line, where it stays until the next hint. The hint of the control
// under the pointer stays while the pointer moves over it; a form's or frame's own
// hint shows only over the form or frame itself, and a disabled control leaves the
// moves over it to the form or frame beneath.
class StatusHints : public QObject
{
    Q_OBJECT

public:
    // Gives a control its hint, which is also its tooltip (a window's own hint is not).
    static void install(QWidget* control, const QString& hint);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static StatusHints& instance();
};
