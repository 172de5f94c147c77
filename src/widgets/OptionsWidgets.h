#pragma once

#include <QString>

#include <cstdint>
#include <functional>

class QLabel;
class QLineEdit;
class QWidget;

// Small control helpers shared by the introduction and its two parameter dialogs:
// the text colour that marks a typed number valid or refused, colour swatches, and
// clicks on controls that have no click signal of their own.
namespace OptionsWidgets {

// The text colour of a valid typed number, and of a refused one.
constexpr int32_t ValidTextColor = 0xFF0000;   // RGB(0, 0, 255)
constexpr int32_t InvalidTextColor = 0x646464; // RGB(100, 100, 100)

// The text colour of an entry box, as a whole RGB number, in every state.
void setTextColor(QLineEdit* box, int32_t color);
int32_t textColor(const QLineEdit* box);

// Blue for a valid text, grey for a refused one.
void showValidity(QLineEdit* box, bool valid);

// The colour a swatch label shows as its background, as a whole RGB number.
void setSwatchColor(QLabel* swatch, int32_t color);
int32_t swatchColor(const QLabel* swatch);

// Runs the handler when the left mouse button is released over the control.
void onClick(QWidget* control, std::function<void()> handler);

// Runs the handler whenever the mouse moves over the control (or enters it).
void onMouseMove(QWidget* control, std::function<void()> handler);

// "(i)" appended to a name: the objectName of a control-array element.
QString indexedName(const char* name, int index);

} // namespace OptionsWidgets
