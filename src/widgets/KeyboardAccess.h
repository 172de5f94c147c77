#pragma once

#include <QString>

class QMenuBar;
class QScrollBar;
class QWidget;

// Keyboard use and screen-reader names: what lets a learner who cannot or does not
// use the mouse reach, hear and change every control.
namespace KeyboardAccess {

// The name a screen reader announces for the control: what it is for.
void name(QWidget* control, const QString& name);

// Lets a horizontal bar take focus from Tab and clicks, moves its thumb the way the
// arrow key points, and names it.
void focusableBar(QScrollBar* bar, const QString& name);

// What a screen reader says a picture shows.
void describePicture(QWidget* picture, const QString& description);

// The text with one letter marked as its mnemonic: the first letter of a word not
// yet in used, else any letter not yet in used; the letter is added to used. A text
// that has a mnemonic already, or whose letters are all used, comes back as it is.
QString withMnemonic(const QString& text, QString& used);

// Gives each menu of the bar, and each item of every menu, a mnemonic of its own
// among its neighbours.
void addMnemonics(QMenuBar* bar);

} // namespace KeyboardAccess
