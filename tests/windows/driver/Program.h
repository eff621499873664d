#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace driver {

/// A program that was started to be driven. Ended, if need be by force, when this goes.
class Program {
 public:
  explicit Program(const std::wstring& path);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  /// Ends it as the task manager does.
  void Kill();
  bool IsRunning() const;
  /// Waits for its end and gives its exit code.
  DWORD ExitCode() const;

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

  PROCESS_INFORMATION process_ = {};
};

}  // namespace driver
