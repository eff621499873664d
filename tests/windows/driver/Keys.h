#pragma once

#include <windows.h>

#include <string_view>

namespace driver {

/// Types at the focus, which must be, or get, in `control`.
void Type(HWND control, std::wstring_view text);
enum Modifier { kNone = 0, kShift = 1, kControl = 2, kAlt = 4 };
void Press(HWND control, WORD key, int modifiers = kNone);
/// Presses a key in the menu that is, or gets, open in this window.
void PressInMenu(HWND window, WORD key);
/// Selects what is in a text box.
void SelectAll(HWND field);
/// The same, and types over it.
void TypeOver(HWND control, std::wstring_view text);

}  // namespace driver
