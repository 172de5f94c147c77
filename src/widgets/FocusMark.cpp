#include "FocusMark.h"

#include <QEvent>
#include <QFocusFrame>

FocusMark::FocusMark(QWidget* control)
    : QObject(control)
    , m_control(control)
    , m_frame(new QFocusFrame(control))
{
    control->installEventFilter(this);
}

bool FocusMark::eventFilter(QObject* watched, QEvent* event)
{
    if (!m_frame || watched != m_control)
        return false;
    if (event->type() == QEvent::FocusIn)
        m_frame->setWidget(m_control);
    else if (event->type() == QEvent::FocusOut)
        m_frame->setWidget(nullptr);
    return false;
}
