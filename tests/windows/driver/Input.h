#pragma once

#include <windows.h>

#include <vector>

namespace driver {

/// Keyboard and mouse, as from the devices. Throws DriverError.
void SendInputs(const std::vector<INPUT>& inputs);

/// The same for the thread of this window, which does nothing until it has got all of them: it
/// finds them in its queue as one. Under Wine a thread whose queue is empty listens to the display,
/// and the display, which knows nothing of keys that are sent, says that no modifier is down: heard
/// between a modifier and the key beside it, that turns Ctrl+X into x.
void SendInputsAsOne(HWND window, const std::vector<INPUT>& inputs);

}  // namespace driver
