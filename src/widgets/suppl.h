#pragma once

#include <cstdint>

class QWidget;

// Helpers that several windows share.

// Writes the hint of one of the parameter dialogs' three buttons (0 Ok, 1 Cancel,
// 2 Default values) into the status line; any other index empties it.
void ShowOptionsButtonHint(int16_t Index);

// Places a window in its normal state centred across its screen and a tenth of the
// free height down; a child of the main frame uses the frame's client area as its
// screen. A minimised or maximised window is left alone.
void CentreForm(QWidget* Window);
