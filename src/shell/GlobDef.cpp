#include "GlobDef.h"

#include "Forms.h"
#include "MDIMain.h"
#include "MsgBox.h"

#include "about/frmIdentify.h"

#include <QApplication>

void StartUp()
{
    ShowMainWindow();
}

void ShowMainWindow()
{
    Unload<frmIdentify>();
    MDIMain& frame = Form<MDIMain>();
    frame.show();
}

bool ConfirmExit()
{
    return MsgBox(QStringLiteral("Are you sure you want to exit ?"), 36, QStringLiteral("Floatrix"))
        == MsgBoxAnswer::Yes;
}

void ShowNotImplemented()
{
    MsgBox(QStringLiteral("Sorry, feature not yet implemented"), 16, QStringLiteral("Floatrix"));
}

void SetStatusLine(const QString& text)
{
    Form<MDIMain>().setStatusLine(text);
}

void EndProgram()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        window->hide();
        window->deleteLater();
    }
    QCoreApplication::exit(0);
}
