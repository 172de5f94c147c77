#include "WindowRelease.h"

#include <QMdiSubWindow>
#include <QVariant>

namespace {
const char* const ReleasedProperty = "floatrixReleased";
}

bool CloseAndRelease(QWidget* form)
{
    // A child of the main frame lives in a sub-window, which passes the close on to
    // the form and goes with it. The release is deferred because a form often
    // unloads itself from one of its own buttons' handlers.
    auto* frame = qobject_cast<QMdiSubWindow*>(form->parentWidget());
    QWidget* outer = frame ? static_cast<QWidget*>(frame) : form;
    if (!outer->close())
        return false;
    form->setProperty(ReleasedProperty, true);
    outer->hide();
    outer->deleteLater();
    return true;
}

bool IsReleased(const QWidget* form)
{
    return form->property(ReleasedProperty).toBool();
}
