#pragma once

#include <QObject>
#include <QPointer>

class QFocusFrame;
class QWidget;

// A frame round a control whose style draws no focus of its own (a scroll bar),
// shown only while the control has the keyboard focus, so that a keyboard user
// sees which control the arrow keys move. It belongs to the control.
class FocusMark : public QObject
{
public:
    explicit FocusMark(QWidget* control);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* m_control;
    // The frame watches the control itself while it follows it; this mark watches
    // the focus separately, so that the frame letting go leaves the mark in place.
    // The frame lives beside the control and may go first when their window goes.
    QPointer<QFocusFrame> m_frame;
};
