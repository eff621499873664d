// Opens a practice terminal, starts a program and lets a written agent work in its windows, the way
// the tests do; then prints what the host was asked and what has become of the PNR.
//
//   drive BOOKING PROGRAM AGENT [FOLDER]   FOLDER takes a picture of every window, as NN-NAME.bmp
//   drive --wait                           until a terminal that others have opened can be used
//   drive --arrange                        waits for the program's dialog, and puts it beside the
//                                          terminal that others have opened

#include <objbase.h>
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <iterator>

#include "common/RunTimeError.h"
#include "tests/windows/driver/Driver.h"
#include "tests/windows/driver/Picture.h"
#include "tests/windows/driver/WindowAgent.h"
#include "tests/windows/terminal/Client.h"
#include "tests/windows/terminal/PracticeTerminal.h"
#include "ui/win32/resource.h"

namespace {

// So that a person can see what is going on.
constexpr int kMillisecondsAnEntry = 100;

std::wstring ReadAgent(const std::wstring& path) {
  std::FILE* const file = _wfopen(path.c_str(), L"rb");
  if (file == nullptr) throw driver::DriverError(L"Cannot read " + path);
  std::string bytes;
  for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file)) {
    if (c != '\r') bytes += static_cast<char>(c);
  }
  std::fclose(file);
  return driver::ToWide(bytes);
}

/// Takes the pictures, one number each.
class Pictures {
 public:
  explicit Pictures(std::wstring folder) : folder_(std::move(folder)) {}

  void Take(HWND window, const std::wstring& name) {
    if (!folder_.empty()) driver::SavePicture(window, NextPath(name));
  }
  void Take(HWND one, HWND other, const std::wstring& name) {
    if (!folder_.empty()) driver::SavePicture(one, other, NextPath(name));
  }

 private:
  std::wstring NextPath(const std::wstring& name) {
    wchar_t number[8] = {};
    std::swprintf(number, std::size(number), L"%02d", ++count_);
    return folder_ + L"\\" + number + L"-" + name + L".bmp";
  }

  std::wstring folder_;
  int count_ = 0;
};

void Print(const char* heading, const std::wstring& text) {
  std::printf("%s\n%s\n\n", heading, driver::ToUtf8(text).c_str());
}

BOOL CALLBACK LookForDialog(HWND window, LPARAM found) {
  if (!IsWindowVisible(window) || GetDlgItem(window, ID_txtPWCT) == nullptr) return TRUE;
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

/// The program's dialog on the screen; null when there is none now.
HWND FindDialog() {
  HWND found = nullptr;
  EnumWindows(&LookForDialog, reinterpret_cast<LPARAM>(&found));
  return found;
}

/// Puts the window to the right of the terminal, as far as the screen reaches.
void PlaceBeside(HWND terminal, HWND window) {
  RECT left = {};
  RECT own = {};
  GetWindowRect(terminal, &left);
  GetWindowRect(window, &own);
  const int furthest = GetSystemMetrics(SM_CXSCREEN) - static_cast<int>(own.right - own.left);
  SetWindowPos(window, nullptr, std::max(0, std::min(static_cast<int>(left.right), furthest)),
               left.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

int Drive(const std::wstring& booking, const std::wstring& path, const std::wstring& agentPath,
          const std::wstring& folder) {
  const auto script = practice::ReadAgentScript(ReadAgent(agentPath));
  terminal::PracticeTerminal terminal(booking);
  terminal.SlowDown(kMillisecondsAnEntry);
  Print("The PNR before", terminal.PnrText());
  driver::Program program(path);
  Pictures pictures(folder);
  driver::WindowAgent(program, script).Work([&](HWND window, const std::wstring& name) {
    std::printf("at %s\n", driver::ToUtf8(name).c_str());
    pictures.Take(window, name);
    PlaceBeside(terminal.window(), window);
    pictures.Take(terminal.window(), window, name + L"-beside");
  });
  const DWORD code = program.ExitCode();
  pictures.Take(terminal.window(), L"terminal");
  Print("\nEvery host entry with its answer", terminal.Transcript());
  Print("The PNR after", terminal.PnrText());
  std::printf("the program ended with %lu, objects left in the terminal: %ld\n", code,
              client::LiveObjects());
  return code == 0 ? 0 : 1;
}

int Drive(int count, wchar_t** arguments) {
  try {
    const terminal::Registered registered;
    return Drive(arguments[1], arguments[2], arguments[3], count > 4 ? arguments[4] : L"");
  } catch (const common::RunTimeError& error) {
    std::puts(driver::ToUtf8(error.description()).c_str());
  } catch (const std::exception& error) {
    std::puts(error.what());
  }
  return 1;
}

/// Does it, and says what has failed.
int Do(void (*what)()) {
  try {
    what();
    return 0;
  } catch (const std::exception& error) {
    std::puts(error.what());
    return 1;
  }
}

void WaitForATerminal() { terminal::WaitUntilOpen(); }

/// When no dialog comes there is nothing to arrange.
void Arrange() {
  const HWND terminal = terminal::WaitUntilOpen();
  HWND dialog = nullptr;
  if (driver::Holds([&] { return (dialog = FindDialog()) != nullptr; })) {
    PlaceBeside(terminal, dialog);
  }
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  const std::wstring_view option = count == 2 ? arguments[1] : L"";
  const bool isOption = option == L"--wait" || option == L"--arrange";
  if (!isOption && count < 4) {
    std::puts("usage: drive BOOKING PROGRAM AGENT [FOLDER] | drive --wait | drive --arrange");
    return 2;
  }
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  const int result = !isOption             ? Drive(count, arguments)
                     : option == L"--wait" ? Do(&WaitForATerminal)
                                           : Do(&Arrange);
  CoUninitialize();
  return result;
}
