#include "practice/terminal/Texts.h"
#include "tests/windows/driver/Clipboard.h"
#include "tests/windows/terminal/TerminalBench.h"

namespace {

using client::Failure;
using practice::terminal::Behind;
using testing::HasSubstr;
using testing::Not;

constexpr wchar_t kGarbage[] = L"#?*QX 00/00 %% ---";
constexpr wchar_t kRefusal[] = L"REFUSED: THE TRAINER WANTS IT SO";

class TerminalMenu : public terminal::TerminalBench {
 protected:
  /// Opens a menu by its letter and chooses in it by another.
  void ChooseByKeys(WORD menu, WORD item) const {
    driver::Press(Entry(), menu, driver::kAlt);
    driver::PressInMenu(window_, item);
  }
};

TEST_F(TerminalMenu, RefusesTheNextEntryAndNoOther) {
  Choose(Command::kRefuseNext);
  EXPECT_THAT(Status(), HasSubstr(L"Host: refuses the next entry   |"));
  EXPECT_EQ(Send(L"RT"), kRefusal);
  EXPECT_THAT(Send(L"RT"), HasSubstr(L"SMITH/JOHN MR"));
  EXPECT_TRUE(Says(L"Host: well   |"));
}

TEST_F(TerminalMenu, RefusesALaterEntryAndCountsDownToIt) {
  Choose(Behind(Command::kRefuseLater, 3));
  EXPECT_THAT(Status(), HasSubstr(L"Host: refuses entry 3 from now   |"));
  EXPECT_THAT(Send(L"RT"), HasSubstr(L"SMITH/JOHN MR"));
  EXPECT_TRUE(Says(L"Host: refuses entry 2 from now   |"));
  EXPECT_THAT(Send(L"RT"), HasSubstr(L"SMITH/JOHN MR"));
  EXPECT_TRUE(Says(L"Host: refuses the next entry   |"));
  EXPECT_EQ(Send(L"RT"), kRefusal);
  EXPECT_THAT(Send(L"RT"), HasSubstr(L"SMITH/JOHN MR"));
}

TEST_F(TerminalMenu, RefusesTheLastEntryThatCanBeChosen) {
  Choose(Behind(Command::kRefuseLater, practice::terminal::kLastRefusable));
  EXPECT_THAT(Status(), HasSubstr(L"Host: refuses entry 40 from now   |"));
}

TEST_F(TerminalMenu, GarblesTheAnswerToAnEntryThatIsTaken) {
  Choose(Command::kGarbleNext);
  EXPECT_THAT(Status(), HasSubstr(L"Host: garbles the next answer   |"));
  EXPECT_EQ(Send(L"OS SK PTA"), kGarbage);
  EXPECT_THAT(Send(L"RT"), HasSubstr(L"OS SK PTA"));
}

TEST_F(TerminalMenu, LosesTheSessionBeforeTheNextEntryAndGivesItBack) {
  Choose(Command::kLoseEntry);
  EXPECT_THAT(Status(), HasSubstr(L"Host: session lost   |"));
  EXPECT_THROW(Send(L"OS SK PTA"), Failure);
  Choose(Command::kBehaveWell);
  EXPECT_THAT(Send(L"RT"), Not(HasSubstr(L"OS SK PTA")));
}

TEST_F(TerminalMenu, LosesTheSessionAfterTheNextEntryWhichIsTaken) {
  Choose(Command::kLoseAnswer);
  EXPECT_THAT(Status(), HasSubstr(L"Host: session lost   |"));
  EXPECT_THROW(Send(L"OS SK PTA"), Failure);
  Choose(Command::kBehaveWell);
  EXPECT_THAT(Send(L"RT"), HasSubstr(L"OS SK PTA"));
}

TEST_F(TerminalMenu, ShowsAnEntryOfOnesOwnThatIsLost) {
  Choose(Command::kLoseEntry);
  Enter(L"RT");
  EXPECT_TRUE(Shows(L"> RT\r\n(no answer: the session to the host is lost)\r\n"));
}

TEST_F(TerminalMenu, TurnsSlownessOnAndOff) {
  Choose(Command::kSlow);
  EXPECT_THAT(Status(), HasSubstr(L"Host: slow   |"));
  const ULONGLONG before = GetTickCount64();
  Send(L"RT");
  EXPECT_GE(GetTickCount64() - before, 1900U);
  Choose(Command::kSlow);
  EXPECT_THAT(Status(), HasSubstr(L"Host: well   |"));
}

TEST_F(TerminalMenu, MakesTheHostBehaveWellAgainInEveryWay) {
  for (const Command fault : {Command::kRefuseNext, Behind(Command::kRefuseLater, 2),
                              Command::kGarbleNext, Command::kSlow}) {
    Choose(fault);
  }
  EXPECT_THAT(Status(), HasSubstr(L"Host: refuses the next entry, refuses entry 2 from now, "
                                  L"garbles the next answer, slow   |"));
  Choose(Command::kBehaveWell);
  EXPECT_THAT(Status(), HasSubstr(L"Host: well   |"));
  for (int i = 0; i < 2; ++i) EXPECT_THAT(Send(L"RT"), HasSubstr(L"SMITH/JOHN MR"));
}

TEST_F(TerminalMenu, HasTheBookingsFromEasyToHard) {
  Choose(Behind(Command::kFirstBooking, 1));
  EXPECT_TRUE(Says(L"Booking: first-day   |"));
  Choose(Command::kFirstBooking);
  EXPECT_TRUE(Says(L"Booking: ordinary   |"));
}

TEST_F(TerminalMenu, IssuesTheMissingDocument) {
  driver::Process(terminal::Program(), L"document-on-its-way").ExitCode();
  EXPECT_EQ(Send(L"RT").find(L",FA "), std::wstring::npos);
  Choose(Command::kIssueDocument);
  EXPECT_THAT(Send(L"IR"), HasSubstr(L",FA 117-4012345671"));
}

TEST_F(TerminalMenu, SaysThatNoDocumentIsMissing) {
  Begin(Command::kIssueDocument);
  const HWND box = driver::WindowNamed(L"Vantel practice terminal");
  EXPECT_EQ(driver::BoxText(box), L"The PNR has no MCO without a document.");
  driver::Press(driver::OkButton(box), VK_RETURN);
  EXPECT_TRUE(driver::Holds([box] { return !IsWindow(box); }));
}

TEST_F(TerminalMenu, ShowsThePrintedCopies) {
  Choose(Command::kShowPrinted);
  EXPECT_TRUE(Shows(L"--- Printed copies ---\r\nNOTHING PRINTED\r\n"));
  const std::wstring pnr = Send(L"RT");
  Send(L"PRINT RT");
  Choose(Command::kShowPrinted);
  EXPECT_TRUE(Shows(L"--- Printed copies ---\r\nCOPY 1\r\n" + pnr + L"\r\n"));
}

TEST_F(TerminalMenu, ShowsWhatWentToBackOffice) {
  Choose(Command::kShowBackOffice);
  EXPECT_TRUE(Shows(L"--- Sent to back office ---\r\nNOTHING SENT\r\n"));
  Send(L"BT RETAIN [P1]");
  Choose(Command::kShowBackOffice);
  EXPECT_TRUE(Shows(L"--- Sent to back office ---\r\nABC123 RETAIN [P1]\r\n"));
}

TEST_F(TerminalMenu, ShowsTheQueues) {
  Choose(Command::kShowQueues);
  EXPECT_TRUE(Shows(L"--- Queues ---\r\nALL QUEUES ON AND EMPTY\r\n"));
  Send(L"QE 80 AT STOSK08AA");
  Choose(Command::kShowQueues);
  EXPECT_TRUE(Shows(L"--- Queues ---\r\nQUEUE 80 AT STOSK08AA, ON: ABC123\r\n"));
}

TEST_F(TerminalMenu, IsOpenedAndUsedByItsLetters) {
  ChooseByKeys('S', 'Q');
  EXPECT_TRUE(Shows(L"--- Queues ---\r\n"));
  ChooseByKeys('H', 'R');
  EXPECT_TRUE(Says(L"Host: refuses the next entry   |"));
}

TEST_F(TerminalMenu, CopiesTheTranscript) {
  Send(L"RT");
  const std::wstring transcript = terminal_.Transcript();
  ASSERT_THAT(transcript, HasSubstr(L"> RT\r\n"));
  driver::WaitForCopied(transcript, [this] { Choose(Command::kCopyTranscript); });
}

TEST_F(TerminalMenu, OpensABookingOfOnesOwn) {
  const std::wstring program = terminal::Program();
  const std::wstring path = program.substr(0, program.find_last_of(L'\\')) + L"\\pnrs\\infant.pnr";
  Begin(Command::kOpenFile);
  const HWND box = driver::WindowNamed(L"Open");
  const HWND name = driver::WaitForFocusWithin(box);
  driver::TypeOver(name, path);
  driver::Press(name, VK_RETURN);
  EXPECT_TRUE(Says(L"Booking: " + path + L"   |"));
  EXPECT_THAT(Send(L"RT"), HasSubstr(L"(INF"));
}

TEST_F(TerminalMenu, EndsTheTerminal) {
  Begin(Command::kEnd);
  EXPECT_TRUE(driver::Holds([this] { return !terminal_.IsRunning(); }));
}

/// Every letter of this menu and of those below it.
void ExpectNoLetterTwice(HMENU menu) {
  std::map<wchar_t, std::wstring> owners;
  for (int i = 0; i < GetMenuItemCount(menu); ++i) {
    wchar_t text[128] = L"";
    GetMenuStringW(menu, static_cast<UINT>(i), text, 128, MF_BYPOSITION);
    const std::wstring line = text;
    const std::size_t mark = line.find(L'&');
    if (mark != line.npos) {
      const auto letter = static_cast<wchar_t>(towupper(line.at(mark + 1)));
      EXPECT_TRUE(owners.emplace(letter, line).second) << driver::ToUtf8(line);
    }
    const HMENU below = GetSubMenu(menu, i);
    if (below != nullptr) ExpectNoLetterTwice(below);
  }
}

TEST(TerminalMenus, HaveNoLetterTwice) {
  const HMENU bar = practice::terminal::NewTerminalMenu({L"ordinary"});
  EXPECT_EQ(GetMenuItemCount(bar), 5);
  ExpectNoLetterTwice(bar);
  DestroyMenu(bar);
}

}  // namespace
