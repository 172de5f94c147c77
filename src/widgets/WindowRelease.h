#pragma once

class QWidget;

// Closes a window (its unload handling runs and may refuse) and schedules its
// release, with the child-window frame that holds it. Returns true when it closed.
// A released window counts as unloaded from then on, even before it is deleted.
bool CloseAndRelease(QWidget* form);

// Whether the window has been released by CloseAndRelease.
bool IsReleased(const QWidget* form);
