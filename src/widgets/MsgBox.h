#pragma once

#include <QString>

class QWidget;

// The program's message box: a title, a text, buttons and an icon chosen by a style
// number (buttons: 0 OK, 4 Yes and No; icons: 16 stop, 32 question, 48 exclamation,
// 64 information; added together, see MsgBoxStyle). Returns the button pressed:
// 1 OK, 6 Yes, 7 No (see MsgBoxAnswer).
int MsgBox(const QString& prompt, int style, const QString& title);

// The window every message box belongs to: the application gives its main frame,
// which lives as long as the program. Until then, and once it is gone, a box
// belongs to no window.
void SetMsgBoxOwner(QWidget* owner);

// The bits of MsgBox's style number: one set of buttons plus one icon.
namespace MsgBoxStyle {
constexpr int OkOnly = 0;
constexpr int YesNo = 4;
constexpr int Critical = 16;
constexpr int Question = 32;
constexpr int Exclamation = 48;
constexpr int Information = 64;
// The part of a style that chooses the buttons, and the part that chooses the icon.
constexpr int ButtonsMask = 0x0F;
constexpr int IconMask = 0x70;
} // namespace MsgBoxStyle

// The answers MsgBox returns.
namespace MsgBoxAnswer {
constexpr int Ok = 1;
constexpr int Yes = 6;
constexpr int No = 7;
} // namespace MsgBoxAnswer
