#pragma once

#include <windows.h>

#include <functional>

#include "practice/terminal/EntryHistory.h"

namespace practice::terminal {

/// The line in which entries are typed: Enter sends, the arrow keys bring back earlier ones.
class EntryLine {
 public:
  explicit EntryLine(std::function<void(const std::wstring& entry)> send)
      : send_(std::move(send)) {}
  EntryLine(const EntryLine&) = delete;
  EntryLine& operator=(const EntryLine&) = delete;

  /// Makes the control; this object must outlive it.
  HWND Create(HWND parent, int id);

 private:
  static LRESULT CALLBACK Filter(HWND window, UINT message, WPARAM wide, LPARAM further, UINT_PTR,
                                 DWORD_PTR self) noexcept;
  /// True for a key that means something here.
  bool KeyDown(HWND window, WPARAM key);

  std::function<void(const std::wstring&)> send_;
  EntryHistory history_;
};

}  // namespace practice::terminal
