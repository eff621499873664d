#pragma once

#include <windows.h>

#include <string>

namespace practice::terminal {

/// Nothing happens when another program holds the clipboard.
void PutOnClipboard(HWND window, const std::wstring& text);

}  // namespace practice::terminal
