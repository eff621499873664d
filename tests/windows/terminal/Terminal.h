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

/// The number of processes of the program that run.
int Running(const std::wstring& name = kPracticeTerminal);
/// Ends all of them as the task manager does.
void KillAll(const std::wstring& name);

}  // namespace terminal
