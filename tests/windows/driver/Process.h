#pragma once

#include <windows.h>

#include <string>

namespace driver {

/// A process, ended with its owner if it has not ended by then.
class Process {
 public:
  /// Starts a program in its own folder. What a busy machine refuses for a moment is tried again,
  /// for as long as a wait lasts, and each try is printed. Throws DriverError.
  explicit Process(const std::wstring& program, const std::wstring& argument = L"");
  /// The process that has the window. Throws DriverError when it has ended.
  explicit Process(HWND window);
  ~Process();
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

  DWORD id() const { return process_.dwProcessId; }
  bool IsRunning() const;
  /// Waits for its end and gives its exit code. Throws DriverError.
  DWORD ExitCode() const;
  /// Ends it as the task manager does.
  void Kill();

 private:
  PROCESS_INFORMATION process_ = {};
};

/// Starts a program that nobody owns. Throws DriverError.
void Launch(const std::wstring& program, const std::wstring& argument);

}  // namespace driver
