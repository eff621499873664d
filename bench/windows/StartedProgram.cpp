#include "bench/windows/StartedProgram.h"

#include <windows.h>
// The order matters: windows.h first.
#include <psapi.h>

#include <algorithm>

#include "tests/windows/driver/Driver.h"

namespace bench {
namespace {

constexpr std::chrono::milliseconds kBetween{1};
constexpr std::chrono::seconds kAtMost{60};

void Await(std::wstring_view what, const std::function<bool()>& condition) {
  if (!driver::Holds(condition, kAtMost, kBetween)) throw driver::DriverError(std::wstring(what));
}

double PrivateMegabytes(HWND window) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  const HANDLE handle = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, process);
  PROCESS_MEMORY_COUNTERS_EX counters = {};
  GetProcessMemoryInfo(handle, reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&counters),
                       sizeof counters);
  CloseHandle(handle);
  return static_cast<double>(counters.PrivateUsage) / (1024 * 1024);
}

}  // namespace

Start StartOnce(const std::wstring& path, int control) {
  Start start;
  const auto begin = std::chrono::steady_clock::now();
  driver::Program program(path);
  Await(L"no window", [&] { return !program.Windows().empty(); });
  start.firstWindow = std::chrono::steady_clock::now() - begin;
  HWND dialog = nullptr;
  Await(L"no dialog", [&] {
    dialog = program.WindowWith(control);
    return dialog != nullptr && IsWindowEnabled(GetDlgItem(dialog, control));
  });
  start.ready = std::chrono::steady_clock::now() - begin;
  start.megabytes = PrivateMegabytes(dialog);
  PostMessageW(dialog, WM_CLOSE, 0, 0);
  Await(L"the program does not end", [&] { return !program.IsRunning(); });
  return start;
}

Start Least(const Start& one, const Start& other) {
  return {std::min(one.firstWindow, other.firstWindow), std::min(one.ready, other.ready),
          std::min(one.megabytes, other.megabytes)};
}

}  // namespace bench
