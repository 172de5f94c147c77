#include "MsgBox.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QMessageBox>
#include <QPointer>

#include <utility>

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

// The buttons' captions come from the program's catalogue, as every other text
// does: the toolkit has no Greek one of its own. Untranslated they read as the
// toolkit's.
void captionButtons(QMessageBox& box)
{
    const std::pair<QMessageBox::StandardButton, const char*> captions[] = {
        {QMessageBox::Yes, QT_TRANSLATE_NOOP("MsgBox", "&Yes")},
        {QMessageBox::No, QT_TRANSLATE_NOOP("MsgBox", "&No")},
        {QMessageBox::Ok, QT_TRANSLATE_NOOP("MsgBox", "OK")},
    };
    for (const auto& [which, caption] : captions)
        if (QAbstractButton* button = box.button(which))
            button->setText(QCoreApplication::translate("MsgBox", caption));
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
    captionButtons(*box);
    const int pressed = box->exec();
    delete box.data();
    if (!yesNo)
        return MsgBoxAnswer::Ok;
    return pressed == QMessageBox::Yes ? MsgBoxAnswer::Yes : MsgBoxAnswer::No;
}
