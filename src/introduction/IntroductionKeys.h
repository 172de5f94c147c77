#pragma once

#include <array>

class CanvasWidget;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QScrollBar;

// Keyboard use and screen-reader names of the introduction's controls: Enter in the
// Unit or Page box goes there as "Go To" does, the delay bar follows the arrow keys,
// Tab runs through the controls as they are read, and each control and the picture
// say what they are for.
namespace IntroductionKeys {

// Sets all of it up on the window's controls (the buttons indexed as its commands).
void install(const std::array<QPushButton*, 10>& buttons, QLineEdit* unit, QLineEdit* page, QScrollBar* delay,
    CanvasWidget* picture, QPlainTextEdit* explanation);

} // namespace IntroductionKeys
