#include "tests/windows/driver/Process.h"

#include <algorithm>
#include <array>
#include <iostream>

#include "tests/windows/driver/Driver.h"

namespace driver {

namespace {

constexpr auto kPatience = std::chrono::seconds(20);

std::wstring NotStarted(const std::wstring& program, DWORD error) {
  std::array<wchar_t, 512> words = {};
  FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0,
                 words.data(), static_cast<DWORD>(words.size()), nullptr);
  std::wstring reason = words.data();
  reason.erase(reason.find_last_not_of(L"\r\n") + 1);
  return L"Cannot start " + program + L": error " + std::to_wstring(error) + L", " + reason;
}

/// What Wine says when a new process has ended before it came to its program, and when the machine
/// had no process, or no memory, to spare just then. It is no word on the program.
bool MayPass(DWORD error) {
  constexpr std::array kPassing = {DWORD{ERROR_INTERNAL_ERROR}, DWORD{ERROR_SHARING_VIOLATION},
                                   DWORD{ERROR_NOT_ENOUGH_MEMORY}};
  return std::find(kPassing.begin(), kPassing.end(), error) != kPassing.end();
}

/// 0, or why it was not started.
DWORD TryToStart(const std::wstring& program, std::wstring line, PROCESS_INFORMATION& process) {
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  const std::wstring folder = program.substr(0, program.find_last_of(L"\\/"));
  const BOOL started = CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE, 0,
                                      nullptr, folder.c_str(), &startup, &process);
  return started ? 0 : GetLastError();
}

PROCESS_INFORMATION Started(const std::wstring& program, const std::wstring& argument) {
  const std::wstring line = L"\"" + program + L"\"" + (argument.empty() ? L"" : L" ") + argument;
  PROCESS_INFORMATION process = {};
  DWORD error = 0;
  constexpr auto kBetween = std::chrono::milliseconds(100);
  Holds(
      [&] {
        error = TryToStart(program, line, process);
        if (error == 0 || !MayPass(error)) return true;
        std::cout << ToUtf8(NotStarted(program, error)) << " Trying again." << std::endl;
        return false;
      },
      kPatience, kBetween);
  if (error != 0) throw DriverError(NotStarted(program, error));
  CloseHandle(process.hThread);
  return process;
}

}  // namespace

Process::Process(const std::wstring& program, const std::wstring& argument)
    : process_(Started(program, argument)) {}

Process::Process(HWND window) {
  GetWindowThreadProcessId(window, &process_.dwProcessId);
  process_.hProcess = OpenProcess(PROCESS_ALL_ACCESS, FALSE, process_.dwProcessId);
  if (process_.hProcess == nullptr) throw DriverError(L"A window's process has ended");
}

Process::~Process() {
  Kill();
  CloseHandle(process_.hProcess);
}

bool Process::IsRunning() const {
  return WaitForSingleObject(process_.hProcess, 0) == WAIT_TIMEOUT;
}

DWORD Process::ExitCode() const {
  WaitUntil(L"the program has ended", [this] { return !IsRunning(); });
  DWORD code = 0;
  GetExitCodeProcess(process_.hProcess, &code);
  return code;
}

void Process::Kill() {
  constexpr DWORD kLong = 20'000;
  if (!IsRunning()) return;
  TerminateProcess(process_.hProcess, 99);
  WaitForSingleObject(process_.hProcess, kLong);
}

void Launch(const std::wstring& program, const std::wstring& argument) {
  CloseHandle(Started(program, argument).hProcess);
}

}  // namespace driver
