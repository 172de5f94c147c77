#include "WindowChecks.h"

#include <QApplication>
#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

int closeLeftoverWindows()
{
    int visible = 0;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->parentWidget())
            continue;
        if (window->isVisible())
            ++visible;
        window->hide();
        window->deleteLater();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return visible;
}
