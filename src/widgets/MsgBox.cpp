#include "MsgBox.h"

#include <QApplication>
#include <QMessageBox>

namespace {

QMessageBox::Icon iconOf(int style)
{
    switch (style & 0x70) {
    case 16:
        return QMessageBox::Critical;
    case 32:
        return QMessageBox::Question;
    case 48:
        return QMessageBox::Warning;
    case 64:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

} // namespace

int MsgBox(const QString& prompt, int style, const QString& title)
{
    const bool yesNo = (style & 0x0F) == 4;
    QMessageBox box(iconOf(style), title, prompt,
        yesNo ? (QMessageBox::Yes | QMessageBox::No) : QMessageBox::Ok, QApplication::activeWindow());
    box.setObjectName("MsgBox");
    const int pressed = box.exec();
    if (!yesNo)
        return MsgBoxAnswer::Ok;
    return pressed == QMessageBox::Yes ? MsgBoxAnswer::Yes : MsgBoxAnswer::No;
}
