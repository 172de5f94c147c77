#pragma once

#include <QString>

// The start-up routine and the procedures of the whole program.

// Starts the program: prepares and shows the splash, whose timer later hands over
// to the main frame. Returns at once; the event loop does the rest.
void StartUp();

// Unloads the splash and shows the main frame without waiting.
void ShowMainWindow();

// Asks "Are you sure you want to exit ?"; true exactly when the answer is Yes.
bool ConfirmExit();

// Tells the user that a feature is not there yet; returns when the box is closed.
void ShowNotImplemented();

// Ends the program at once: every remaining window goes without further events.
void EndProgram();
