#include "tests/windows/driver/Program.h"

#include <algorithm>

#include "tests/windows/driver/Driver.h"

namespace driver {

namespace {

constexpr int kBoxText = 0xFFFF;

constexpr DWORD kAnyProcess = 0;

struct Gathering {
  DWORD process;
  std::vector<HWND> windows;
};

BOOL CALLBACK Gather(HWND window, LPARAM gathering) {
  Gathering& all = *reinterpret_cast<Gathering*>(gathering);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  const bool isWanted = all.process == kAnyProcess || process == all.process;
  if (isWanted && IsWindowVisible(window)) all.windows.push_back(window);
  return TRUE;
}

std::vector<HWND> WindowsOf(DWORD process) {
  Gathering all{process, {}};
  EnumWindows(&Gather, reinterpret_cast<LPARAM>(&all));
  return all.windows;
}

/// Null when none has it.
HWND WithControl(const std::vector<HWND>& windows, int controlId) {
  const auto found = std::find_if(windows.begin(), windows.end(), [&](HWND window) {
    return GetDlgItem(window, controlId) != nullptr;
  });
  return found == windows.end() ? nullptr : *found;
}

}  // namespace

std::vector<HWND> Program::Windows() const { return WindowsOf(id()); }

HWND Program::WindowWith(int controlId) const { return WithControl(Windows(), controlId); }

HWND Program::Box() const { return WithControl(WindowsOf(kAnyProcess), kBoxText); }

HWND Program::WaitForWindowWith(int controlId) const {
  return WaitFor(L"control " + std::to_wstring(controlId),
                 [this, controlId] { return WindowWith(controlId); });
}

HWND Program::WaitForBox() const {
  return WaitFor(L"a message", [this] { return Box(); });
}

HWND Program::WaitFor(const std::wstring& content, const std::function<HWND()>& find) const {
  HWND window = nullptr;
  WaitUntil(L"the program shows a window with " + content, [&] {
    window = find();
    return window != nullptr || !IsRunning();
  });
  if (window == nullptr) throw DriverError(L"The program has ended");
  return window;
}

}  // namespace driver
