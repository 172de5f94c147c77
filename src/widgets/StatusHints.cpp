#include "StatusHints.h"

#include "StatusLine.h"

#include <QEvent>
#include <QMouseEvent>
#include <QVariant>
#include <QWidget>

namespace {

const char* const HintProperty = "statusHint";

// Whether the pointer, at a point of the widget, lies over one of its controls
// that follows the pointer itself. Such a control has already written its own hint
// (or chose to write none); a move it ignores still travels on to the widget, which
// must not replace that hint with its own.
bool overOwnControl(const QWidget* widget, QPoint at)
{
    for (const QWidget* child = widget->childAt(at); child && child != widget; child = child->parentWidget())
        if (child->isEnabled() && child->hasMouseTracking())
            return true;
    return false;
}

} // namespace

StatusHints& StatusHints::instance()
{
    static StatusHints hints;
    return hints;
}

void StatusHints::install(QWidget* control, const QString& hint)
{
    control->setProperty(HintProperty, hint);
    // The hint also shows beside the pointer, where the learner looks; a window's
    // own hint stays in the status line only, or it would cover every control.
    if (!control->isWindow() && !hint.isEmpty())
        control->setToolTip(hint);
    control->setMouseTracking(true);
    control->installEventFilter(&instance());
}

bool StatusHints::eventFilter(QObject* watched, QEvent* event)
{
    // A disabled control takes no mouse moves: they go to the form or frame under it.
    auto* control = qobject_cast<QWidget*>(watched);
    if (!control || !control->isEnabled())
        return QObject::eventFilter(watched, event);
    if (event->type() == QEvent::Enter)
        SetStatusLine(control->property(HintProperty).toString());
    else if (event->type() == QEvent::MouseMove
             && !overOwnControl(control, static_cast<QMouseEvent*>(event)->position().toPoint()))
        SetStatusLine(control->property(HintProperty).toString());
    return QObject::eventFilter(watched, event);
}
