#include <gtest/gtest.h>

#include "tests/windows/driver/Driver.h"
#include "tests/windows/program/Boxes.h"
#include "tests/windows/program/Stage.h"
#include "tests/windows/terminal/Client.h"
#include "ui/win32/resource.h"

// What an agent sees when the terminal program or its library is not as it should be. Each time the
// program ends soon after the last answer, and leaves nothing running.
namespace driver {
namespace {

const std::wstring kNotConnected =
    L"Failed to connect to Vantel session.\n\nVerify that there is a Vantel session started.";
constexpr wchar_t kTitle[] = L"  PTA Script ";

class LinkFailure : public testing::Test {
 protected:
  /// The program shows this box; the agent takes note of it.
  void SeeBox(const std::wstring& text) {
    const HWND box = stage_->program().WaitForBox();
    EXPECT_EQ(ToUtf8(BoxText(box)), ToUtf8(text));
    EXPECT_EQ(TextOf(box), kTitle);
    PressOk(box);
  }

  std::optional<Stage> stage_;
};

TEST_F(LinkFailure, WithoutALibraryTheAgentIsAskedToStartATerminal) {
  const terminal::Unregistered nothing;
  stage_.emplace(nullptr).Start();
  SeeBox(kNotConnected);
  EXPECT_EQ(stage_->ExitCodeSoon(), 0u);
  ExpectNothingRuns(terminal::kPracticeTerminal);
}

TEST_F(LinkFailure, WithoutATerminalToo) {
  stage_.emplace(nullptr).Start();
  SeeBox(kNotConnected);
  EXPECT_EQ(stage_->ExitCodeSoon(), 0u);
  ExpectNothingRuns(terminal::kPracticeTerminal);
}

TEST_F(LinkFailure, ATerminalThatWasClosedBeforeIsNone) {
  stage_.emplace().CloseTerminal();
  stage_->Start();
  SeeBox(kNotConnected);
  EXPECT_EQ(stage_->ExitCodeSoon(), 0u);
  ExpectNothingRuns(terminal::kPracticeTerminal);
}

TEST_F(LinkFailure, ATerminalThatIsClosedWhileTheDialogIsOpenFailsTheFirstChange) {
  Program& program = stage_.emplace().Start();
  const HWND dialog = program.WaitForWindowWith(ID_txtPWCT);
  WaitForFocus(Item(dialog, ID_txtPTA));
  stage_->CloseTerminal();
  Click(Item(dialog, ID_cmdOK));
  SeeBox(L"Error when updating the Ticketing Element!");
  EXPECT_EQ(stage_->ExitCodeSoon(), 0u);
  ExpectNothingRuns(terminal::kPracticeTerminal);
}

TEST_F(LinkFailure, ATerminalThatIsClosedWhileTheDialogIsOpenDoesNotHoldCancelUp) {
  Program& program = stage_.emplace().Start();
  const HWND dialog = program.WaitForWindowWith(ID_txtPWCT);
  WaitForFocus(Item(dialog, ID_txtPTA));
  stage_->CloseTerminal();
  Click(Item(dialog, ID_cmdCancel));
  EXPECT_EQ(stage_->ExitCodeSoon(), 0u);
  ExpectNothingRuns(terminal::kPracticeTerminal);
}

TEST_F(LinkFailure, ATerminalThatIsClosedAfterTheRunLeavesNothing) {
  stage_.emplace().Work(L"form frmPTA\nclick cmdCancel\n");
  EXPECT_EQ(stage_->ExitCodeSoon(), 0u);
  EXPECT_EQ(terminal::Running(), 1);
  stage_->CloseTerminal();
  ExpectNothingRuns(terminal::kPracticeTerminal);
  ExpectNothingRuns(L"PTA_QX.exe");
}

TEST_F(LinkFailure, ATerminalThatIsClosedInTheMiddleOfAnEntryFailsThatStep) {
  stage_.emplace().SetPace(60'000);
  stage_->Start();
  WaitUntil(L"the host is asked", [this] { return stage_->terminal().EntryCount() > 0; });
  stage_->CloseTerminal();
  EXPECT_EQ(BoxesToTheEnd(stage_->program()),
            (std::vector<SeenBox>{{L"Error when sending the PV transaction."},
                                  {L"Unable to retrieve the PNR.\nMake sure there is an active "
                                   L"PNR.\nThe program will terminate."}}));
  EXPECT_EQ(stage_->ExitCodeSoon(), 0u);
  ExpectNothingRuns(terminal::kPracticeTerminal);
}

struct Misfit {
  const wchar_t* terminal;
  const wchar_t* words;
};

class LibraryThatDoesNotFit : public LinkFailure, public testing::WithParamInterface<Misfit> {};

TEST_P(LibraryThatDoesNotFit, IsRefusedWithItsSlotBeforeAnythingIsSent) {
  const terminal::Unregistered other;
  const terminal::Registered misfit(terminal::Program(GetParam().terminal));
  const Program& program = stage_.emplace(nullptr).Start();
  const HWND box = program.WaitForBox();
  EXPECT_EQ(program.Windows(), std::vector<HWND>{box}) << "the progress window is left";
  SeeBox(std::wstring(L"The installed Vantel script library is not the one that this program "
                      L"needs.\n\n") +
         GetParam().words);
  EXPECT_EQ(stage_->ExitCodeSoon(), 1u);
  ExpectNothingRuns(GetParam().terminal);
}

INSTANTIATE_TEST_SUITE_P(
    WithoutASlotOrWithAnotherArgument, LibraryThatDoesNotFit,
    testing::Values(
        Misfit{L"LacksSlot.exe",
               L"TerminalSession, slot 33 (SendEntryChecked): there is no such slot."},
        Misfit{L"OtherCount.exe",
               L"TerminalSession, slot 11 (SendEntry): it takes 2 arguments instead of 1."}));

}  // namespace
}  // namespace driver
