#pragma once

#include "shell/Forms.h"
#include "shell/MDIMain.h"

#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QMdiArea>
#include <QMdiSubWindow>

// The hint a control writes into the main frame's status line when the mouse
// comes over it.
inline QString frameHintOf(QWidget* control)
{
    Form<MDIMain>().setStatusLine(QString());
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(control, &enter);
    return Form<MDIMain>().statusLine();
}

// Opens a view from the main frame's Contents menu and returns it.
inline QWidget* openView(MDIMain::ContentsItem item)
{
    Form<MDIMain>().findChild<QAction*>(QString("mnuContentsItem(%1)").arg(int(item)))->trigger();
    return Form<MDIMain>().mdiArea()->activeSubWindow()->widget();
}
