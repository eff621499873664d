#pragma once

#include <functional>
#include <vector>

#include "tests/windows/driver/Process.h"

namespace driver {

/// A program with windows, started to be driven.
class Program : public Process {
 public:
  using Process::Process;

  /// Its visible top-level windows.
  std::vector<HWND> Windows() const;
  /// The one of them with a control of this number; null when there is none now.
  HWND WindowWith(int controlId) const;
  /// The message box on the screen, whoever shows it: the terminal shows the program's reports.
  /// Null when there is none now.
  HWND Box() const;

  HWND WaitForWindowWith(int controlId) const;
  HWND WaitForBox() const;

 private:
  HWND WaitFor(const std::wstring& content, const std::function<HWND()>& find) const;
};

}  // namespace driver
