#pragma once

// Closes and releases every top-level window a test left behind; returns how many
// were still visible, so a test's cleanup can fail on them.
int closeLeftoverWindows();
