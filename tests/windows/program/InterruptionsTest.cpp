#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

#include "platform/win32/WindowsPlatform.h"
#include "practice/host/Host.h"
#include "tests/run/Scenes.h"
#include "tests/windows/driver/Driver.h"
#include "tests/windows/program/Stage.h"
#include "tests/windows/terminal/Client.h"
#include "ui/win32/resource.h"

// The product or its terminal is killed, held up or replaced in the middle of a run. ./test takes a
// sample of the entries; with PTA_EVERY_CALL in the environment every entry has its turn.
namespace driver {
namespace {

using std::chrono::seconds;

constexpr int kBetweenSamples = 4;

class AnInterruptedRun : public testing::Test {
 protected:
  AnInterruptedRun() {
    scene_.today = platform::WindowsPlatform().Today();
    wanted_ = practice::Rehearse(scene_);
  }

  /// The booking as it was, and no entries yet.
  void BeginAnew() {
    stage_.Set(scene_);
    entriesBefore_ = stage_.terminal().EntryCount();
  }
  /// With the one that waits for its answer.
  int EntriesSoFar() { return stage_.terminal().EntryCount() - entriesBefore_; }

  /// The entries of a run that nothing disturbs, and those of them that come before its dialog.
  std::vector<std::wstring> EntriesOfTheRun() const { return wanted_.EntryTexts(); }
  int EntriesBeforeTheDialog() const {
    const auto entries = EntriesOfTheRun();
    const auto isChange = [](const std::wstring& entry) { return entry.starts_with(L"CH "); };
    return static_cast<int>(std::find_if(entries.begin(), entries.end(), isChange) -
                            entries.begin());
  }

  /// The agent's part of the run, up to the OK that starts the writing.
  void WorkTheDialog() {
    WindowAgent(stage_.program(), practice::ReadAgentScript(scene_.agent))
        .Work([](HWND, const std::wstring&) {});
  }

  /// While the host is late with this entry, the program's window answers, and no box comes.
  void WaitsAlive(int entry, int control, seconds late) {
    WaitUntil(L"the entry has arrived", [&] { return EntriesSoFar() == entry; });
    const auto arrived = std::chrono::steady_clock::now();
    const HWND window = stage_.program().WaitForWindowWith(control);
    int looks = 0;
    const auto answers = [&] {
      DWORD_PTR result = 0;
      ++looks;
      return SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, 2000, &result) != 0;
    };
    // Asking takes its time, too, and the last moment belongs to the answer.
    const auto until = arrived + late - late / 4;
    EXPECT_FALSE(Holds(
        [&] {
          return std::chrono::steady_clock::now() < until &&
                 (!answers() || EntriesSoFar() != entry);
        },
        late - late / 4, std::chrono::milliseconds(500)));
    EXPECT_GT(looks, static_cast<int>(late.count() / 4));
    EXPECT_EQ(stage_.program().Box(), nullptr);
    EXPECT_TRUE(stage_.program().IsRunning());
  }

  void EndsAsWanted() {
    EXPECT_EQ(stage_.ExitCode(), 0u);
    EXPECT_EQ(stage_.terminal().Entries(), EntriesOfTheRun());
    EXPECT_EQ(stage_.PnrAfter(), Stage::WithLineFeeds(wanted_.pnrAfter));
  }

  /// On the same terminal, with nothing to disturb it.
  void RunsAgain() {
    BeginAnew();
    stage_.Start();
    WorkTheDialog();
    EndsAsWanted();
  }

  /// What the entries of the transcript alone make of the booking.
  std::wstring PnrOfTheEntries() {
    practice::Host host;
    host.LoadBooking(scene_.booking);
    for (const std::wstring& entry : stage_.terminal().Entries()) host.Enter(entry);
    return Stage::WithLineFeeds(host.PnrText());
  }

  practice::RehearsalScene scene_ = run::OrdinaryScene();
  Stage stage_;

 private:
  practice::RehearsalOutcome wanted_;
  int entriesBefore_ = 0;
};

TEST_F(AnInterruptedRun, AProgramKilledInAnyEntryLeavesTheTerminalAsTheEntriesMadeIt) {
  const int entries = static_cast<int>(EntriesOfTheRun().size());
  const int step = std::getenv("PTA_EVERY_CALL") != nullptr ? 1 : kBetweenSamples;
  int kills = 0;
  for (int entry = 1; entry <= entries; entry += step, ++kills) {
    SCOPED_TRACE("killed in entry " + std::to_string(entry));
    BeginAnew();
    stage_.terminal().HoldEntry(entry, seconds(60));
    Program& program = stage_.Start();
    if (entry > EntriesBeforeTheDialog()) WorkTheDialog();
    WaitUntil(L"the entry has arrived", [&] { return EntriesSoFar() == entry; });
    program.Kill();
    stage_.terminal().BehaveWell();
    EXPECT_TRUE(Holds([] { return client::LiveObjects() == 0; }, seconds(5)));
    WaitUntil(L"the host has answered",
              [&] { return static_cast<int>(stage_.terminal().Entries().size()) == entry; });
    EXPECT_EQ(stage_.PnrAfter(), PnrOfTheEntries());
  }
  RunsAgain();
  std::cout << "programs killed: " << kills << " in one of " << entries << " entries\n";
}

TEST_F(AnInterruptedRun, AProgramKilledAtItsDialogLeavesNothingInTheTerminal) {
  BeginAnew();
  stage_.Start().WaitForWindowWith(ID_txtPWCT);
  stage_.program().Kill();
  EXPECT_TRUE(Holds([] { return client::LiveObjects() == 0; }, seconds(5)));
  EXPECT_EQ(EntriesSoFar(), EntriesBeforeTheDialog());
  EXPECT_EQ(stage_.PnrAfter(), PnrOfTheEntries());
  RunsAgain();
}

TEST_F(AnInterruptedRun, AnAnswerThatTakesHalfAMinuteIsWaitedForWithLivingWindows) {
  BeginAnew();
  stage_.terminal().HoldEntry(3, seconds(30));
  stage_.Start();
  WaitsAlive(3, ID_lblWorking, seconds(30));
  WorkTheDialog();
  EndsAsWanted();
}

TEST_F(AnInterruptedRun, ALateAnswerToAChangeIsWaitedForWithLivingWindows) {
  const seconds late(std::getenv("PTA_EVERY_CALL") != nullptr ? 30 : 6);
  BeginAnew();
  const int change = EntriesBeforeTheDialog() + 1;
  stage_.terminal().HoldEntry(change, late);
  stage_.Start();
  WorkTheDialog();
  WaitsAlive(change, ID_txtPWCT, late);
  EndsAsWanted();
}

TEST_F(AnInterruptedRun, ATerminalThatWasRestartedDuringTheDialogGetsNothingOfTheOldRun) {
  BeginAnew();
  Program& program = stage_.Start();
  const HWND dialog = program.WaitForWindowWith(ID_txtPWCT);
  WaitForFocus(Item(dialog, ID_txtPTA));
  stage_.CloseTerminal();
  stage_.OpenTerminal();
  BeginAnew();
  const std::wstring before = stage_.PnrAfter();
  Click(Item(dialog, ID_cmdOK));
  const HWND box = program.WaitForBox();
  EXPECT_EQ(BoxText(box), L"Error when updating the Ticketing Element!");
  Press(OkButton(box), VK_RETURN);
  EXPECT_EQ(stage_.ExitCodeSoon(), 0u);
  EXPECT_EQ(EntriesSoFar(), 0);
  EXPECT_EQ(stage_.PnrAfter(), before);
  RunsAgain();
}

}  // namespace
}  // namespace driver
