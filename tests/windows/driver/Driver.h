#pragma once

#include <windows.h>

#include <chrono>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "tests/windows/driver/Keys.h"

/// Drives real windows the way a person does, in this process or in another: finds them by what is
/// written on them, types, clicks, and reads them. Nothing sleeps for a state; everything waits for
/// it until a deadline, and fails with a sentence that says what it was waiting for.
namespace driver {

class DriverError : public std::runtime_error {
 public:
  explicit DriverError(const std::wstring& what);
};

/// True as soon as the condition holds, false when it does not within the time.
bool Holds(const std::function<bool()>& condition,
           std::chrono::milliseconds time = std::chrono::seconds(20),
           std::chrono::milliseconds between = std::chrono::milliseconds(5));
/// Throws when it does not.
void WaitUntil(std::wstring_view what, const std::function<bool()>& condition);

/// A visible top-level window with this caption; waits for it.
HWND WindowNamed(std::wstring_view caption);
/// Whether there is one now.
bool IsThere(std::wstring_view caption);
/// The control with this number; waits for it.
HWND Item(HWND dialog, int id);
/// What a window says of itself.
std::wstring TextOf(HWND window);
/// The text of a message box.
std::wstring BoxText(HWND box);
/// The icon of a message box; null when it has none.
HICON BoxIcon(HWND box);
/// The OK button of a message box, whichever buttons it has; waits for it.
HWND OkButton(HWND box);
/// The text in the only panel of a status bar.
std::wstring StatusText(HWND bar);
std::wstring ListLine(HWND list, int index);

/// The window that has the focus, when it is one of the same thread as `window` and that thread is
/// in the foreground; else null.
HWND FocusOf(HWND window);
/// Waits until the focus is there.
void WaitForFocus(HWND control);
/// Waits until it is anywhere in this top-level window, and tells where.
HWND WaitForFocusWithin(HWND window);

/// Clicks into the middle of the window.
void Click(HWND window);
/// Presses a button that can be pressed, sees it go down, lets go, and sees it come up: returns
/// when its program has taken the click, so that what is typed next finds the focus where it
/// belongs.
void ClickButton(HWND button);
/// Clicks at a point of its client area.
void ClickAt(HWND window, int x, int y);

std::wstring ToWide(std::string_view utf8);
std::string ToUtf8(std::wstring_view text);

}  // namespace driver
