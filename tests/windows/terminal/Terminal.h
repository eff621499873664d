#pragma once

#include <windows.h>

#include <string>

/// The program under test, which lies beside the test's own.
namespace terminal {

/// This test's own program.
std::wstring TestProgram();
inline constexpr wchar_t kPracticeTerminal[] = L"VantelPractice.exe";
/// The practice terminal, or another program beside the test's own.
std::wstring Program(const std::wstring& name = kPracticeTerminal);

/// Starts a program that nobody owns. Throws std::runtime_error.
void Launch(const std::wstring& program, const std::wstring& argument);

/// A process that is ended with its owner.
class Process {
 public:
  Process(const std::wstring& program, const std::wstring& argument);
  /// The process that has the window.
  explicit Process(HWND window);
  ~Process();
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

  /// Ends it as the task manager does.
  void Kill();
  /// The exit code; waits for it.
  DWORD Wait() const;
  bool IsRunning() const;

 private:
  PROCESS_INFORMATION process_ = {};
};

/// The number of processes of the program that run.
int Running(const std::wstring& name = kPracticeTerminal);
/// Ends all of them as the task manager does.
void KillAll(const std::wstring& name);

}  // namespace terminal
