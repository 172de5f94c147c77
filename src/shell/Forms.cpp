#include "Forms.h"

#include "MDIMain.h"
#include "ProgramRecords.h"

#include "about/frmIdentify.h"
#include "introduction/frmIntroduction.h"
#include "macroview/frmMacroView.h"
#include "microview/frmMicroView.h"
#include "widgets/StatusLine.h"

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
    return new MDIMain();
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
    return new frmMacroView();
}

frmMicroView* NewForm(frmMicroView*)
{
    return new frmMicroView();
}
