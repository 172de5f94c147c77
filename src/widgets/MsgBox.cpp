#include "MsgBox.h"

#include <QMessageBox>
#include <QPointer>

namespace {

QPointer<QWidget>& boxOwner()
{
    static QPointer<QWidget> owner;
    return owner;
}

QMessageBox::Icon iconOf(int style)
{
    switch (style & MsgBoxStyle::IconMask) {
    case MsgBoxStyle::Critical:
        return QMessageBox::Critical;
    case MsgBoxStyle::Question:
        return QMessageBox::Question;
    case MsgBoxStyle::Exclamation:
        return QMessageBox::Warning;
    case MsgBoxStyle::Information:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

} // namespace

void SetMsgBoxOwner(QWidget* owner)
{
    boxOwner() = owner;
}

int MsgBox(const QString& prompt, int style, const QString& title)
{
    const bool yesNo = (style & MsgBoxStyle::ButtonsMask) == MsgBoxStyle::YesNo;
    // The box belongs to the main frame, which lives as long as the program, and to
    // no window before the frame is there. The window active when a box comes up may
    // be a dialog that has just closed: its release, still pending, runs in the
    // box's own event loop and would take a box it owned down while it shows.
    QPointer<QMessageBox> box = new QMessageBox(iconOf(style), title, prompt,
        yesNo ? (QMessageBox::Yes | QMessageBox::No) : QMessageBox::Ok, boxOwner().data());
    box->setObjectName("MsgBox");
    const int pressed = box->exec();
    delete box.data();
    if (!yesNo)
        return MsgBoxAnswer::Ok;
    return pressed == QMessageBox::Yes ? MsgBoxAnswer::Yes : MsgBoxAnswer::No;
}
