#include <gmock/gmock.h>

#include "common/Text.h"
#include "journal/win32/WindowsFolder.h"
#include "tests/windows/driver/Driver.h"
#include "tests/windows/program/Stage.h"
#include "ui/win32/resource.h"

namespace driver {

namespace {

using testing::EndsWith;
using testing::HasSubstr;

std::string BytesOf(const std::wstring& path) {
  std::FILE* const file = _wfopen(path.c_str(), L"rb");
  if (file == nullptr) return {};
  std::string bytes;
  for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file)) bytes += static_cast<char>(c);
  std::fclose(file);
  return bytes;
}

/// The user's journals, of which there are none when a test begins.
class TheJournal : public testing::Test {
 protected:
  TheJournal() { Empty(); }
  ~TheJournal() override { Empty(); }

  std::string OnlyJournal() const {
    const std::vector<std::wstring> names = folder_.Names();
    EXPECT_EQ(names.size(), 1u);
    return names.size() == 1 ? BytesOf(path_ + L"\\" + names.front()) : std::string();
  }

  std::wstring path_ = journal::UsersJournalFolder();
  journal::WindowsFolder folder_{path_};

 private:
  void Empty() {
    for (const std::wstring& name : folder_.Names()) folder_.Remove(name);
  }
};

TEST_F(TheJournal, OfARealRunHasItsEntriesItsStatesAndItsEnd) {
  Stage stage;
  stage.WorkLikeTheOrdinaryAgent();
  EXPECT_EQ(stage.ExitCode(), 0u);
  ASSERT_EQ(folder_.Names().size(), 1u);
  EXPECT_TRUE(common::Like(folder_.Names().front(), L"PTA_20##-##-##_######_ABC123.txt"))
      << ToUtf8(folder_.Names().front());
  const std::string journal = OnlyJournal();
  EXPECT_EQ(journal.substr(0, 7), "PTA_QX ");
  EXPECT_THAT(journal, HasSubstr("Office \"ARNAG2100\", as the host says\r\n"));
  EXPECT_THAT(journal, HasSubstr("Entry 1 by SendCommand:\r\n    | PV\r\n"));
  EXPECT_THAT(journal, HasSubstr(":\r\n    | QE 80 AT STOSK08AA\r\n"));
  EXPECT_THAT(journal, HasSubstr(" Entry 16 accepted\r\n"));
  EXPECT_THAT(journal,
              HasSubstr("Entries: 16, accepted 11, refused 0, unknown 0, not judged 5\r\n"));
  EXPECT_THAT(journal, HasSubstr("Run ended with exit code 0 after "));
  EXPECT_EQ(journal.find("CASH"), journal.npos);
}

TEST_F(TheJournal, IsNotThereWhenTheSettingsSaySo) {
  Stage stage;
  stage.AddToIni(L"[Settings]\nJournal=No\n");
  stage.WorkLikeTheOrdinaryAgent();
  EXPECT_EQ(stage.ExitCode(), 0u);
  EXPECT_EQ(stage.Entries().back(), L"QE 80 AT STOSK08AA");
  EXPECT_TRUE(folder_.Names().empty());
}

TEST_F(TheJournal, ThatCanNotBeWrittenLeavesTheRunAsItIs) {
  ASSERT_TRUE(RemoveDirectoryW(path_.c_str()) || GetLastError() == ERROR_FILE_NOT_FOUND ||
              GetLastError() == ERROR_PATH_NOT_FOUND);
  const std::wstring above = path_.substr(0, path_.find_last_of(L'\\'));
  CreateDirectoryW(above.c_str(), nullptr);
  const HANDLE inItsPlace = CreateFileW(path_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                        FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  ASSERT_NE(inItsPlace, INVALID_HANDLE_VALUE);
  Stage stage;
  stage.WorkLikeTheOrdinaryAgent();
  EXPECT_EQ(stage.ExitCode(), 0u);
  EXPECT_EQ(stage.Entries().back(), L"QE 80 AT STOSK08AA");
  CloseHandle(inItsPlace);
}

TEST_F(TheJournal, SaysThatAnEntrysOutcomeIsUnknownWhenTheSessionIsLostInIt) {
  Stage stage;
  Program& program = stage.Start();
  const HWND dialog = program.WaitForWindowWith(ID_txtPWCT);
  WaitForFocus(Item(dialog, ID_txtPTA));
  stage.terminal().DropSession(true);
  Click(Item(dialog, ID_cmdOK));
  WaitUntil(L"the program has ended, every box answered", [&] {
    if (const HWND box = program.Box()) PostMessageW(box, WM_COMMAND, IDOK, 0);
    return !program.IsRunning();
  });
  // The host took the entry, which nobody was told.
  EXPECT_NE(stage.PnrAfter().find(L"TK OK/STOSK08AA"), std::wstring::npos);
  EXPECT_THAT(OnlyJournal(), HasSubstr(", without an answer:\r\n"));
  EXPECT_THAT(OnlyJournal(), HasSubstr(" Unknown: "));
  EXPECT_EQ(OnlyJournal().find(" Refused: "), std::string::npos);
}

TEST_F(TheJournal, OfAProgramKilledInAnEntryEndsWithThatEntryAsItWasSent) {
  Stage stage;
  const int before = stage.terminal().EntryCount();
  stage.terminal().HoldEntry(1, std::chrono::seconds(60));
  Program& program = stage.Start();
  WaitUntil(L"the entry has arrived", [&] { return stage.terminal().EntryCount() == before + 1; });
  program.Kill();
  const std::string journal = OnlyJournal();
  stage.terminal().BehaveWell();
  // No state and no end: whoever reads it knows that this entry's outcome is unknown.
  EXPECT_THAT(journal, EndsWith(" Entry 1 by SendCommand:\r\n    | PV\r\n"));
}

TEST_F(TheJournal, SaysWhyThereWasNoRunWhenTheLibraryDoesNotFit) {
  const terminal::Unregistered other;
  const terminal::Registered misfit(terminal::Program(L"LacksSlot.exe"));
  Stage stage(nullptr);
  Program& program = stage.Start();
  Press(OkButton(program.WaitForBox()), VK_RETURN);
  EXPECT_EQ(stage.ExitCode(), 1u);
  EXPECT_THAT(
      OnlyJournal(),
      HasSubstr(" Box of style 16:\r\n"
                "    | The installed Vantel script library is not the one that this program "
                "needs.\r\n"
                "    | \r\n"
                "    | TerminalSession, slot 33 (SendEntryChecked): there is no such "
                "slot.\r\n"));
  EXPECT_THAT(OnlyJournal(), HasSubstr(" Window frmWorking shown"));
  EXPECT_THAT(OnlyJournal(), HasSubstr(" Box answered OK after "));
  EXPECT_THAT(OnlyJournal(), HasSubstr(" Run ended with exit code 1 after "));
}

// The last one: the system may go on offering what the killed terminal offered.
TEST_F(TheJournal, SaysWhichEntrysOutcomeIsUnknownWhenTheTerminalIsKilledInIt) {
  Stage stage;
  const int before = stage.terminal().EntryCount();
  stage.terminal().HoldEntry(2, std::chrono::seconds(60));
  Program& program = stage.Start();
  WaitUntil(L"the entry has arrived", [&] { return stage.terminal().EntryCount() == before + 2; });
  stage.terminal().Kill();
  WaitUntil(L"the call has broken off",
            [&] { return OnlyJournal().find(", the call broke off:\r\n") != std::string::npos; });
  EXPECT_THAT(OnlyJournal(), HasSubstr(" unknown after "));
  WaitUntil(L"the program has ended, every box answered", [&] {
    if (const HWND box = program.Box()) PostMessageW(box, WM_COMMAND, IDOK, 0);
    return !program.IsRunning();
  });
  EXPECT_THAT(OnlyJournal(), HasSubstr(" Unknown: "));
}

}  // namespace

}  // namespace driver
