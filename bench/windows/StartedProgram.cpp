#include "bench/windows/StartedProgram.h"

#include <windows.h>
// The order matters: windows.h first.
#include <psapi.h>

#include "bench/windows/HostMemory.h"
#include "bench/windows/Median.h"
#include "tests/windows/driver/Driver.h"

namespace bench {
namespace {

constexpr std::chrono::milliseconds kBetween{1};
constexpr std::chrono::seconds kAtMost{60};

void Await(std::wstring_view what, const std::function<bool()>& condition) {
  if (!driver::Holds(condition, kAtMost, kBetween)) throw driver::DriverError(std::wstring(what));
}

double WindowsPrivateMegabytes(HWND window) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  const HANDLE handle = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, process);
  PROCESS_MEMORY_COUNTERS_EX counters = {};
  GetProcessMemoryInfo(handle, reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&counters),
                       sizeof counters);
  CloseHandle(handle);
  return static_cast<double>(counters.PrivateUsage) / (1024 * 1024);
}

double PrivateMegabytes(HWND window, const std::wstring& path) {
  const double told = WindowsPrivateMegabytes(window);
  return told > 0 ? told : HostPrivateMegabytes(path);
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
  start.megabytes = PrivateMegabytes(dialog, path);
  PostMessageW(dialog, WM_CLOSE, 0, 0);
  Await(L"the program does not end", [&] { return !program.IsRunning(); });
  return start;
}

Start Median(const std::vector<Start>& starts) {
  const auto median = [&]<typename Figure>(Figure Start::*member) {
    std::vector<Figure> figures;
    for (const Start& start : starts) figures.push_back(start.*member);
    return MedianOf(std::move(figures));
  };
  return {median(&Start::firstWindow), median(&Start::ready), median(&Start::megabytes)};
}

}  // namespace bench
