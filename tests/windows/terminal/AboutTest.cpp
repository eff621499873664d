#include <gmock/gmock.h>

#include <cstdio>

#include "practice/terminal/TerminalMenu.h"
#include "practice/terminal/Texts.h"
#include "practice/terminal/resources.h"
#include "tests/windows/driver/Driver.h"
#include "tests/windows/terminal/PracticeTerminal.h"
#include "version.h"

namespace {

using testing::HasSubstr;
using testing::Not;

std::wstring ClipboardText() {
  std::wstring text;
  if (!OpenClipboard(nullptr)) return text;
  if (const HANDLE data = GetClipboardData(CF_UNICODETEXT)) {
    text = static_cast<const wchar_t*>(GlobalLock(data));
    GlobalUnlock(data);
  }
  CloseClipboard();
  return text;
}

void ClearClipboard() {
  driver::WaitUntil(L"the clipboard is free", [] { return OpenClipboard(nullptr) != FALSE; });
  EmptyClipboard();
  CloseClipboard();
}

void WriteFileText(const std::wstring& path, const char* text) {
  std::FILE* const file = _wfopen(path.c_str(), L"wb");
  ASSERT_NE(file, nullptr);
  std::fputs(text, file);
  std::fclose(file);
}

std::wstring TerminalFolder() {
  const std::wstring program = terminal::Program();
  return program.substr(0, program.find_last_of(L'\\') + 1);
}

class About : public testing::Test {
 protected:
  About() {
    PostMessageW(terminal_.window(), WM_COMMAND,
                 static_cast<WPARAM>(practice::terminal::Command::kAbout), 0);
    box_ = driver::WindowNamed(practice::terminal::texts::kAboutTitle);
  }

  std::wstring CopiedDiagnostics() const {
    ClearClipboard();
    SendMessageW(box_, WM_COMMAND, IDC_COPY_DIAGNOSTICS, 0);
    std::wstring text;
    driver::WaitUntil(L"something was copied", [&] {
      text = ClipboardText();
      return !text.empty();
    });
    return text;
  }

  terminal::PracticeTerminal terminal_;
  HWND box_ = nullptr;
};

TEST_F(About, NamesTheProgramAndItsVersionAndThatItIsPractice) {
  EXPECT_EQ(
      driver::TextOf(driver::Item(box_, IDC_ABOUT_VERSION)),
      L"Vantel practice "
      L"terminal " PTA_VERSION_WIDE_TEXT L"\nFor practice only: there is no real host behind it.");
}

TEST_F(About, OkClosesItAndTheTerminalGoesOn) {
  SendMessageW(box_, WM_COMMAND, IDOK, 0);
  EXPECT_TRUE(driver::Holds([this] { return !IsWindow(box_); }));
  EXPECT_TRUE(IsWindowEnabled(terminal_.window()));
}

TEST_F(About, TheDiagnosticsNameVersionAndPlaceOfTheTerminal) {
  EXPECT_THAT(CopiedDiagnostics(),
              HasSubstr(L"Practice terminal " PTA_VERSION_WIDE_TEXT L", " +
                        std::to_wstring(8 * sizeof(void*)) + L" bit: " + terminal::Program()));
}

TEST_F(About, TheDiagnosticsHoldTheSettingsWithTheirValuesMasked) {
  const std::wstring settings = TerminalFolder() + L"PTA_QX.ini";
  WriteFileText(settings, "[ARNAG2100]\r\nIATANumber=80246878\r\nPrintPNR=Yes\r\n");
  const std::wstring text = CopiedDiagnostics();
  DeleteFileW(settings.c_str());
  EXPECT_THAT(text, HasSubstr(L"[ARNAG2100]\r\nIATANumber=99999999\r\nPrintPNR=Yes\r\n"));
  EXPECT_THAT(text, Not(HasSubstr(L"80246878")));
}

TEST_F(About, TheDiagnosticsEndWithTheLastLinesOfTheNewestJournal) {
  wchar_t data[MAX_PATH] = L"";
  ASSERT_NE(GetEnvironmentVariableW(L"LOCALAPPDATA", data, MAX_PATH), 0U);
  const std::wstring program = std::wstring(data) + L"\\PTA_QX";
  const std::wstring folder = program + L"\\journal";
  CreateDirectoryW(program.c_str(), nullptr);
  CreateDirectoryW(folder.c_str(), nullptr);
  const std::wstring journal = folder + L"\\PTA_2007-02-20_133750.txt";
  std::string lines = "the first\r\n";
  for (int i = 1; i <= 40; ++i) lines += "line " + std::to_string(i) + "\r\n";
  WriteFileText(journal, lines.c_str());
  const std::wstring text = CopiedDiagnostics();
  DeleteFileW(journal.c_str());
  EXPECT_THAT(text, HasSubstr(L"Journal, its last lines: "));
  EXPECT_THAT(text, HasSubstr(L"\r\nline 1\r\n"));
  EXPECT_THAT(text, testing::EndsWith(L"line 40\r\n\r\n"));
  EXPECT_THAT(text, Not(HasSubstr(L"the first")));
}

}  // namespace
