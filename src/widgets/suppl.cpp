#include "suppl.h"

#include "ParameterDialog.h"
#include "StatusLine.h"

#include <QCoreApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>
#include <QWidget>

void ShowOptionsButtonHint(int16_t Index)
{
    switch (Index) {
    case ParameterDialog::Ok:
        SetStatusLine(QCoreApplication::translate("suppl", "Accept parameter values and exit"));
        break;
    case ParameterDialog::Cancel:
        SetStatusLine(QCoreApplication::translate("suppl", "Cancel changes and exit"));
        break;
    case ParameterDialog::DefaultValues:
        SetStatusLine(QCoreApplication::translate("suppl", "Default values for all parameters"));
        break;
    default:
        SetStatusLine(QString());
        break;
    }
}

void CentreForm(QWidget* Window)
{
    auto* frame = qobject_cast<QMdiSubWindow*>(Window->parentWidget());
    QWidget* outer = frame ? static_cast<QWidget*>(frame) : Window;
    if (outer->windowState() & (Qt::WindowMinimized | Qt::WindowMaximized))
        return;
    QSize screen;
    if (frame && frame->mdiArea())
        screen = frame->mdiArea()->viewport()->size();
    else if (outer->screen())
        screen = outer->screen()->availableGeometry().size();
    const QSize size = outer->frameGeometry().size();
    outer->move((screen.width() - size.width()) / 2, (screen.height() - size.height()) / 10);
}
