#pragma once

#include <QMargins>
#include <QRect>

class QWidget;

// Keeps a top-level window, with its title bar and borders, on the screen it opens
// on: a window larger than the screen's free area (a projector's low resolution, or
// the program scaled up) is made smaller and moved in; one that fits is left alone.
namespace ScreenFit {

// Where a window with the given inner geometry and frame (title bar and borders)
// goes to lie inside the available area: its size shrunk only as far as needed,
// then moved in only as far as needed.
QRect fitted(const QRect& wanted, const QMargins& frame, const QRect& available);

// Fits the window to its screen's available area (the screen less the panels).
void fitToScreen(QWidget* window);

} // namespace ScreenFit
