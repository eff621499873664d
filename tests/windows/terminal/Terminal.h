#pragma once

#include <windows.h>

#include <string>

/// The program under test, which lies beside the test's own.
namespace terminal {

/// This test's own program.
std::wstring TestProgram();
std::wstring Program();

/// A process that is ended with its owner.
class Process {
 public:
  Process(const std::wstring& program, const std::wstring& argument);
  ~Process();
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

  /// Ends it as the task manager does.
  void Kill();
  /// The exit code; waits for it.
  DWORD Wait() const;
  bool IsRunning() const;
  DWORD id() const { return process_.dwProcessId; }

 private:
  PROCESS_INFORMATION process_ = {};
};

/// The number of processes of the terminal that run.
int Running();

}  // namespace terminal
