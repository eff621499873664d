#pragma once

#include <windows.h>

namespace practice::terminal {

/// Says what this program is, and puts what a help desk asks for on the clipboard. Returns when the
/// box is closed; scripts are served meanwhile.
void ShowAbout(HWND owner);

}  // namespace practice::terminal
