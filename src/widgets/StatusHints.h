#pragma once

#include <QObject>
#include <QString>

class QWidget;

// Status-line hints: moving the mouse over a control writes its hint into the main
// frame's status line, where it stays until the next hint.
class StatusHints : public QObject
{
    Q_OBJECT

public:
    // Gives a control its hint.
    static void install(QWidget* control, const QString& hint);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static StatusHints& instance();
};
