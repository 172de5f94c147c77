#include "GlobDef.h"

#include "Forms.h"
#include "MDIMain.h"
#include "widgets/MsgBox.h"

#include "about/ProgramImages.h"
#include "about/frmIdentify.h"
#include "core/Numeric.h"

#include <QApplication>
#include <QThread>

void StartUp()
{
    QApplication::setWindowIcon(ProgramImages::icon());
    frmIdentify& splash = Form<frmIdentify>();
    QObject::connect(&splash, &frmIdentify::splashFinished, &splash, &ShowMainWindow);
    QObject::connect(&splash, &frmIdentify::splashClosedByUser, &splash, &EndProgram);
    // Without a caption the splash has no title bar and no border either.
    splash.setWindowFlag(Qt::FramelessWindowHint);
    splash.show();
    splash.setWindowTitle(QString());
    // The panel starts below the part of the window that stays visible and slides
    // up into it.
    splash.setFraIdentifyTop(Numeric::toInt16(0.8 * splash.ScaleHeight()));
    splash.setOuterHeight(3455);
    splash.repaint();
    splash.EffectTimer().start();
}

void ShowMainWindow()
{
    Unload<frmIdentify>();
    MDIMain& frame = Form<MDIMain>();
    frame.show();
}

bool ConfirmExit()
{
    return MsgBox(QCoreApplication::translate("GlobDef", "Are you sure you want to exit ?"),
               MsgBoxStyle::YesNo | MsgBoxStyle::Question, QCoreApplication::translate("GlobDef", "Floatrix"))
        == MsgBoxAnswer::Yes;
}

void ShowNotImplemented()
{
    MsgBox(QCoreApplication::translate("GlobDef", "Sorry, feature not yet implemented"), MsgBoxStyle::Critical,
        QCoreApplication::translate("GlobDef", "Floatrix"));
}

void EndProgram()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        window->hide();
        window->deleteLater();
    }
    // Only a running event loop can be ended; a caller without one (a test that
    // drives the frame directly) just sees every window go.
    if (QThread::currentThread()->loopLevel() > 0)
        QCoreApplication::exit(0);
}
