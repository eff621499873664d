#include <gtest/gtest.h>

#include "common/LineFeeds.h"
#include "platform/win32/WindowsPlatform.h"
#include "tests/run/Scenes.h"
#include "tests/windows/driver/Driver.h"
#include "tests/windows/program/Boxes.h"
#include "tests/windows/program/Stage.h"
#include "tests/windows/terminal/Client.h"
#include "ui/win32/resource.h"

// The terminal is killed while the program runs: the agent sees the boxes of what failed, and no
// other; the program ends within 5 seconds of the last answer, and nothing of it is left.
namespace driver {
namespace {

using std::chrono::seconds;

const SeenBox kNoPNR{
    L"Unable to retrieve the PNR.\nMake sure there is an active PNR.\nThe program will terminate."};
const SeenBox kNoQueue{L"Error when sending the QE transaction."};

class AKilledTerminal : public testing::Test {
 protected:
  AKilledTerminal() {
    scene_.today = platform::WindowsPlatform().Today();
    stage_.Set(scene_);
    before_ = stage_.terminal().EntryCount();
  }

  /// The agent's part of the run, up to the OK that starts the writing.
  void WorkTheDialog() {
    WindowAgent(stage_.program(), practice::ReadAgentScript(scene_.agent))
        .Work([](HWND, const std::wstring&) {});
  }

  void KillInEntry(int entry) {
    WaitUntil(L"the entry has arrived",
              [&] { return stage_.terminal().EntryCount() - before_ == entry; });
    stage_.terminal().Kill();
  }

  /// The program shows these boxes, and ends.
  void EndsWith(const std::vector<SeenBox>& boxes) {
    EXPECT_EQ(BoxesToTheEnd(stage_.program()), boxes);
    EXPECT_EQ(stage_.ExitCodeSoon(), 0u);
    ExpectNothingRuns(L"PTA_QX.exe");
    // Not even the one that the system started anew for the program's last calls.
    ExpectNothingRuns(terminal::kPracticeTerminal);
  }

  practice::RehearsalScene scene_ = run::OrdinaryScene();
  Stage stage_;
  int before_ = 0;
};

// The box of the missing file dies with the terminal, which shows it for the program: the program
// says the same again, goes on without a file, and finds no PNR.
TEST_F(AKilledTerminal, BeforeTheFirstEntryIsToldInTheBoxThatWasOpen) {
  scene_.hasIni = false;
  stage_.Set(scene_);
  const HWND box = stage_.Start().WaitForBox();
  const SeenBox kNoFile{L"The ini file does not exist! \nContact Help Desk."};
  EXPECT_EQ(SeenBox{common::WithLineFeeds(BoxText(box))}, kNoFile);
  EXPECT_EQ(stage_.terminal().EntryCount(), before_);
  stage_.terminal().Kill();
  WaitUntil(L"the terminal's box is gone", [box] { return !IsWindow(box); });
  EndsWith({kNoFile, kNoPNR});
}

struct Step {
  const char* name;
  int entry;
  bool isWritten;  ///< it comes after the dialog
  std::vector<SeenBox> boxes;
};

class InAnEntry : public AKilledTerminal, public testing::WithParamInterface<Step> {};

TEST_P(InAnEntry, IsToldByWhatItBreaksOff) {
  stage_.terminal().HoldEntry(GetParam().entry, seconds(60));
  stage_.Start();
  if (GetParam().isWritten) WorkTheDialog();
  KillInEntry(GetParam().entry);
  EndsWith(GetParam().boxes);
}

INSTANTIATE_TEST_SUITE_P(Steps, InAnEntry,
                         testing::Values(Step{"OfTheReading", 3, false, {kNoPNR}},
                                         Step{"ThatIsTheFirstToChangeThePNR",
                                              9,
                                              true,
                                              {{L"Error when updating the Ticketing Element!"}}},
                                         Step{"BetweenPrintAndQueue",
                                              14,
                                              true,
                                              {{L"Error when sending the BT command!"}, kNoQueue}}),
                         [](const auto& tested) { return std::string(tested.param.name); });

TEST_F(AKilledTerminal, AtTheDialogFailsTheFirstChange) {
  const HWND dialog = stage_.Start().WaitForWindowWith(ID_txtPWCT);
  WaitForFocus(Item(dialog, ID_txtPTA));
  stage_.terminal().Kill();
  Click(Item(dialog, ID_cmdOK));
  EndsWith({{L"Error when updating the Ticketing Element!"}});
}

}  // namespace
}  // namespace driver
