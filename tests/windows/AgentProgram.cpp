// Opens a practice terminal, starts a program and lets a written agent work in its windows, the way
// the tests do; then prints what the host was asked and what has become of the PNR.
//
//   drive BOOKING PROGRAM AGENT [FOLDER]   FOLDER takes a picture of every window, as NN-NAME.bmp
//   drive --wait                           until a terminal that others have opened can be used

#include <objbase.h>
#include <windows.h>

#include <cstdio>
#include <iterator>

#include "common/RunTimeError.h"
#include "tests/windows/driver/Driver.h"
#include "tests/windows/driver/Picture.h"
#include "tests/windows/driver/WindowAgent.h"
#include "tests/windows/terminal/Client.h"
#include "tests/windows/terminal/PracticeTerminal.h"

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
    if (folder_.empty()) return;
    wchar_t number[8] = {};
    std::swprintf(number, std::size(number), L"%02d", ++count_);
    driver::SavePicture(window, folder_ + L"\\" + number + L"-" + name + L".bmp");
  }

 private:
  std::wstring folder_;
  int count_ = 0;
};

void Print(const char* heading, const std::wstring& text) {
  std::printf("%s\n%s\n\n", heading, driver::ToUtf8(text).c_str());
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

int WaitForATerminal() {
  try {
    terminal::WaitUntilOpen();
    return 0;
  } catch (const std::exception& error) {
    std::puts(error.what());
    return 1;
  }
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  const bool onlyWaits = count == 2 && std::wstring_view(arguments[1]) == L"--wait";
  if (!onlyWaits && count < 4) {
    std::puts("usage: drive BOOKING PROGRAM AGENT [FOLDER] | drive --wait");
    return 2;
  }
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  const int result = onlyWaits ? WaitForATerminal() : Drive(count, arguments);
  CoUninitialize();
  return result;
}
