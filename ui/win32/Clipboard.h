#pragma once

#include <windows.h>

#include <string>

namespace ui {

/// The text on the clipboard; "" when there is none.
std::wstring ClipboardText(HWND window);

}  // namespace ui
