#include "tests/windows/driver/Process.h"

#include "tests/windows/driver/Driver.h"

namespace driver {

namespace {

PROCESS_INFORMATION Started(const std::wstring& program, const std::wstring& argument) {
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  std::wstring line = L"\"" + program + L"\"" + (argument.empty() ? L"" : L" ") + argument;
  const std::wstring folder = program.substr(0, program.find_last_of(L"\\/"));
  PROCESS_INFORMATION process = {};
  if (!CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                      folder.c_str(), &startup, &process)) {
    throw DriverError(L"Cannot start " + program + L": error " + std::to_wstring(GetLastError()));
  }
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
