#pragma once

#include <functional>

// Runs one event handler or timer tick. A RunTimeError (or any other exception) it
// throws ends the handler: onFault runs first (a tick passes the stopping of its
// timer here, so no further tick comes while the message is up), then a message box
// titled "Floatrix" shows the error's text with the stop icon, and the program goes
// on. Returns false when the handler ended by a fault.
bool RunGuarded(const std::function<void()>& handler, const std::function<void()>& onFault = {});
