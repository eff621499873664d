#include "tests/windows/journal/OtherProgram.h"

#include <windows.h>
// After it: it is not complete by itself.
#include <shellapi.h>

#include "journal/Writer.h"
#include "journal/win32/WindowsFolder.h"

namespace journal {
namespace {

constexpr wchar_t kMark[] = L"--write-a-journal";

/// The clock of a machine on which no time passes.
class StandingClock : public Clock {
 public:
  Moment Now() const override {
    using namespace std::chrono;
    return {year(2007) / February / 20, hours(13)};
  }
  std::chrono::milliseconds Ticks() const override { return {}; }
};

}  // namespace

void WriteOneJournal(const std::wstring& folder, const std::wstring& word, int lines) {
  const StandingClock clock;
  WindowsFolder place(folder);
  Writer writer(place, clock);
  writer.Open(L"1.2.3");
  for (int line = 1; line <= lines; ++line) {
    writer.Write(word + L" " + std::to_wstring(line));
    writer.Secure();
    if (line == lines / 2) writer.NameAfter(L"ABC123");
  }
  writer.Finish();
}

OtherProgram::OtherProgram(const std::wstring& folder, const std::wstring& word, int lines) {
  wchar_t self[MAX_PATH] = {};
  GetModuleFileNameW(nullptr, self, MAX_PATH);
  std::wstring command = std::wstring(L"\"") + self + L"\" " + kMark + L" \"" + folder + L"\" " +
                         word + L" " + std::to_wstring(lines);
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process = {};
  if (!CreateProcessW(self, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                      &process)) {
    return;
  }
  CloseHandle(process.hThread);
  process_ = process.hProcess;
}

OtherProgram::~OtherProgram() {
  if (process_ != nullptr) CloseHandle(process_);
}

bool OtherProgram::HasSucceeded() {
  constexpr DWORD kPatience = 60000;
  DWORD code = 1;
  if (process_ == nullptr || WaitForSingleObject(process_, kPatience) != WAIT_OBJECT_0) {
    return false;
  }
  GetExitCodeProcess(process_, &code);
  return code == 0;
}

bool ActedAsOtherProgram() {
  int count = 0;
  wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
  const bool isOther = words != nullptr && count == 5 && std::wstring(words[1]) == kMark;
  if (isOther) WriteOneJournal(words[2], words[3], _wtoi(words[4]));
  LocalFree(words);
  return isOther;
}

}  // namespace journal
