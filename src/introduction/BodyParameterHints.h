#pragma once

#include <QString>

#include <cstdint>

// The status-line hints of the collision parameters dialog, in the program's
// Greek. Bodies are numbered 1 and 2 in the texts.
namespace BodyParameterHints {

// The kinds of a body's typed parameter, in the dialog's row order.
enum Kind : int { Mass, Radius, PositionX, PositionY, VelocityX, VelocityY };
constexpr int KindCount = 6;

// The hint of a parameter's label ("m=", "R=", ...) for body n.
QString labelHint(int kind, int n);
// The hint of a unit label, by its index 0 to 11 (body 1 at 0 to 5, body 2 at 6 to 11).
QString unitHint(int index);
// The hint of an entry box for body n, with the range the box accepts.
QString fieldHint(int kind, int n, int16_t max);

// The hints of the frames, check boxes, model buttons and colour controls, by
// control name and index (the index is ignored for single controls); empty for a
// control without a hint.
QString controlHint(const QString& name, int index = 0);

} // namespace BodyParameterHints
