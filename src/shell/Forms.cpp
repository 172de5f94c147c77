#include "Forms.h"

#include "MDIMain.h"
#include "ProgramRecords.h"

#include "about/frmIdentify.h"
#include "introduction/frmIntroduction.h"
#include "macroview/MoviePlayer.h"
#include "macroview/frmMacroView.h"
#include "microview/frmMicroView.h"
#include "widgets/MsgBox.h"
#include "widgets/StatusLine.h"

#include <QCoreApplication>

namespace {

// The windows' hints go to the main frame's status line. A hint can come before the
// frame shows (a window tried on its own), so the first one builds the frame.
const bool StatusLineConnected = [] {
    StatusLine::setTarget([](const QString& text) { Form<MDIMain>().setStatusLine(text); });
    return true;
}();

} // namespace

MDIMain* NewForm(MDIMain*)
{
    auto* frame = new MDIMain();
    SetMsgBoxOwner(frame);
    return frame;
}

frmIdentify* NewForm(frmIdentify*)
{
    return new frmIdentify();
}

frmIntroduction* NewForm(frmIntroduction*)
{
    ProgramRecords& records = ProgramRecords::instance();
    return new frmIntroduction(records.Collision, records.Fluid);
}

frmMacroView* NewForm(frmMacroView*)
{
    // One player of the film for the program's life, lent to each opening of the
    // view, so that the player programs of closed views are reaped without the
    // view waiting for them. It goes with the application object.
    static QPointer<MoviePlayer> player;
    if (!player)
        player = new MoviePlayer(QCoreApplication::instance());
    return new frmMacroView(*player);
}

frmMicroView* NewForm(frmMicroView*)
{
    return new frmMicroView();
}
