#include "StatusHints.h"

#include "StatusLine.h"

#include <QEvent>
#include <QVariant>
#include <QWidget>

namespace {
const char* const HintProperty = "statusHint";
}

StatusHints& StatusHints::instance()
{
    static StatusHints hints;
    return hints;
}

void StatusHints::install(QWidget* control, const QString& hint)
{
    control->setProperty(HintProperty, hint);
    control->setMouseTracking(true);
    control->installEventFilter(&instance());
}

bool StatusHints::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseMove || event->type() == QEvent::Enter)
        SetStatusLine(watched->property(HintProperty).toString());
    return QObject::eventFilter(watched, event);
}
