#pragma once

#include <windows.h>

#include <string>

namespace driver {

/// Saves what the screen shows of a window, frame included, as a BMP file.
void SavePicture(HWND window, const std::wstring& path);
/// ... of two windows, and of what lies between them.
void SavePicture(HWND one, HWND other, const std::wstring& path);
/// The colour that the screen shows at a point within a window.
COLORREF ColorAt(HWND window, int x, int y);

}  // namespace driver
