#pragma once

#include <QString>

class QWidget;

// The program's message box: a title, a text, buttons and an icon chosen by a style
// number (buttons: 0 OK, 4 Yes and No; icons: 16 stop, 32 question, 48 exclamation,
// 64 information; added together). Returns the button pressed: 1 OK, 6 Yes, 7 No.
int MsgBox(const QString& prompt, int style, const QString& title);

// The window every message box belongs to: the application gives its main frame,
// which lives as long as the program. Until then, and once it is gone, a box
// belongs to no window.
void SetMsgBoxOwner(QWidget* owner);

// The answers MsgBox returns.
namespace MsgBoxAnswer {
constexpr int Ok = 1;
constexpr int Yes = 6;
constexpr int No = 7;
} // namespace MsgBoxAnswer
