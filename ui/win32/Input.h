#pragma once

#include <windows.h>

#include <algorithm>

namespace ui {

/// Whether a user begins something with this message. What he ends, as by letting a key go, is no
/// input: a button would stay pressed without it.
inline bool IsInput(UINT message) {
  constexpr UINT kInput[] = {WM_KEYDOWN,     WM_CHAR,          WM_SYSKEYDOWN,  WM_SYSCHAR,
                             WM_PASTE,       WM_CUT,           WM_CLEAR,       WM_UNDO,
                             WM_LBUTTONDOWN, WM_LBUTTONDBLCLK, WM_RBUTTONDOWN, WM_RBUTTONUP,
                             WM_CONTEXTMENU, WM_MOUSEWHEEL};
  return std::find(std::begin(kInput), std::end(kInput), message) != std::end(kInput);
}

}  // namespace ui
