#pragma once

#include <windows.h>

#include <vector>

namespace ui {

/// Windows that take no input for its lifetime.
class SwitchedOff {
 public:
  explicit SwitchedOff(std::vector<HWND> windows) : windows_(std::move(windows)) {
    std::erase_if(windows_, [](HWND window) { return !IsWindowEnabled(window); });
    for (const HWND window : windows_) EnableWindow(window, FALSE);
  }
  ~SwitchedOff() {
    for (const HWND window : windows_) EnableWindow(window, TRUE);
  }
  SwitchedOff(const SwitchedOff&) = delete;
  SwitchedOff& operator=(const SwitchedOff&) = delete;

 private:
  std::vector<HWND> windows_;
};

}  // namespace ui
