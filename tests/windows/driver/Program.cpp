#include "tests/windows/driver/Program.h"

#include <algorithm>

#include "tests/windows/driver/Driver.h"

namespace driver {

namespace {

constexpr int kBoxText = 0xFFFF;

struct Gathering {
  DWORD process;
  std::vector<HWND> windows;
};

BOOL CALLBACK Gather(HWND window, LPARAM gathering) {
  Gathering& all = *reinterpret_cast<Gathering*>(gathering);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  if (process == all.process && IsWindowVisible(window)) all.windows.push_back(window);
  return TRUE;
}

}  // namespace

Program::Program(const std::wstring& path) {
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  const std::wstring folder = path.substr(0, path.find_last_of(L"\\/"));
  if (!CreateProcessW(path.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr, folder.c_str(),
                      &startup, &process_)) {
    throw DriverError(L"Cannot start " + path);
  }
}

Program::~Program() {
  if (IsRunning()) TerminateProcess(process_.hProcess, 99);
  WaitForSingleObject(process_.hProcess, 5000);
  CloseHandle(process_.hThread);
  CloseHandle(process_.hProcess);
}

bool Program::IsRunning() const {
  return WaitForSingleObject(process_.hProcess, 0) == WAIT_TIMEOUT;
}

DWORD Program::ExitCode() const {
  WaitUntil(L"the program has ended", [this] { return !IsRunning(); });
  DWORD code = 0;
  GetExitCodeProcess(process_.hProcess, &code);
  return code;
}

std::vector<HWND> Program::Windows() const {
  Gathering all{process_.dwProcessId, {}};
  EnumWindows(&Gather, reinterpret_cast<LPARAM>(&all));
  return all.windows;
}

HWND Program::WindowWith(int controlId) const {
  const std::vector<HWND> windows = Windows();
  const auto found = std::find_if(windows.begin(), windows.end(), [&](HWND window) {
    return GetDlgItem(window, controlId) != nullptr;
  });
  return found == windows.end() ? nullptr : *found;
}

HWND Program::Box() const { return WindowWith(kBoxText); }

HWND Program::WaitForWindowWith(int controlId) const {
  HWND window = nullptr;
  WaitUntil(L"the program shows a window with control " + std::to_wstring(controlId), [&] {
    window = WindowWith(controlId);
    return window != nullptr || !IsRunning();
  });
  if (window == nullptr) throw DriverError(L"The program has ended");
  return window;
}

HWND Program::WaitForBox() const { return WaitForWindowWith(kBoxText); }

}  // namespace driver
