#pragma once

class QRectF;
class QWidget;

// Window layouts are designed in twips (15 to a logical pixel).
namespace FormLayout {

// Places a control at a position and size given in twips.
void place(QWidget* control, int left, int top, int width, int height);
// The same for a rectangle in twips, whose edges may fall between whole twips.
void place(QWidget* control, const QRectF& twips);

// Gives a window a fixed client size given in twips.
void fixSize(QWidget* window, int width, int height);

} // namespace FormLayout
