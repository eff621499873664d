#include <gtest/gtest.h>

#include <algorithm>

#include "common/Text.h"
#include "tests/run/Scenes.h"

// The wait for the documents of the MCOs.
namespace run {
namespace {

constexpr std::wstring_view kOnItsWay = L"TR FA 1 117-4012345678 AFTER 2";

std::wstring WaitedFor(int minutes) {
  return L"see staStatusText \"Waiting for MCO segments to be completed with FA elements - waited "
         L"for " +
         std::to_wstring(minutes) + L" minute(s)...\"\n";
}

/// The document comes with this re-read; the first is the one before the dialog appears.
practice::RehearsalScene SceneWithDocumentAfter(int rereads, const std::wstring& agent) {
  auto scene = SceneOf("document-on-its-way");
  Change(scene.booking, kOnItsWay, L"TR FA 1 117-4012345678 AFTER " + std::to_wstring(rereads));
  scene.agent = agent;
  return scene;
}

std::size_t Rereads(const practice::RehearsalOutcome& outcome) {
  const Lines entries = outcome.EntryTexts();
  return static_cast<std::size_t>(std::count(entries.begin(), entries.end(), L"IR"));
}

constexpr std::wstring_view kLook =
    L"form frmPTA\nsee txtMCONumber \"4012345678\"\nclick cmdCancel\n";

TEST(WaitingRun, TheDialogIsThereUntilTheSecondRereadAndClosesByItself) {
  const auto outcome = RehearseBooking("document-on-its-way");
  EXPECT_EQ(EntriesBeforeWriting(outcome), (Lines{L"RT", L"IR", L"RT", L"IR", L"RT", L"TQT",
                                                  L"TQM RT", L"OS SK PTA", L"TQT", L"TQT"}));
  const auto& seen = outcome.seen;
  const auto at = [&seen](std::wstring_view line) {
    return std::find(seen.begin(), seen.end(), line) - seen.begin();
  };
  EXPECT_TRUE(Holds(seen, L"shown frmWaitForMCO \"  PTA Script \""));
  EXPECT_TRUE(Holds(seen, L"     MCO SK,FM *C*10,FP CASH                           "));
  // Nothing but the timer stands between the agent's look at the dialog and its end.
  EXPECT_EQ(at(L"closed frmWaitForMCO"), at(L"> tick \"tmrWait\"") + 1);
  EXPECT_TRUE(Holds(LinesAdded(outcome), L"FO 117-4012345678 STO 80246878 [P1]"));
}

TEST(WaitingRun, AgainstAnAgentWhoDoesNotWaitTheDialogStays) {
  auto scene = SceneWithDocumentAfter(2, L"form frmWaitForMCO\n");
  const auto outcome = practice::Rehearse(scene);
  EXPECT_EQ(outcome.disagreement,
            L"after the last line: frmWaitForMCO waits, and the agent has nothing more to do");
  EXPECT_EQ(outcome.EntryTexts(), (Lines{L"RT", L"IR", L"RT"}));
}

TEST(WaitingRun, WhatTheAgentReadsChangesAtThirtyFiveNinetyAndAHundredAndFiftyFiveSeconds) {
  auto scene = SceneWithDocumentAfter(
      33, L"form frmWaitForMCO\n" + WaitedFor(0) + L"tick tmrWait 6\n" + WaitedFor(0) +
              L"tick tmrWait\n" + WaitedFor(1) + L"tick tmrWait 10\n" + WaitedFor(1) +
              L"tick tmrWait\n" + WaitedFor(2) + L"tick tmrWait 12\n" + WaitedFor(2) +
              L"tick tmrWait\n" + WaitedFor(3) + L"tick tmrWait\n" + std::wstring(kLook));
  EXPECT_EQ(Rereads(RehearseInAgreement(scene)), 33u);
}

TEST(WaitingRun, ADocumentThatComesWithTheFirstRereadIsNotWaitedFor) {
  const auto outcome = RehearseInAgreement(SceneWithDocumentAfter(1, std::wstring(kLook)));
  EXPECT_EQ(Rereads(outcome), 1u);
  EXPECT_FALSE(Holds(outcome.seen, L"shown frmWaitForMCO \"  PTA Script \""));
}

TEST(WaitingRun, EveryMCOIsWaitedFor) {
  auto scene = SceneOf("document-on-its-way");
  Change(scene.booking, L"MCO SK,FM *C*10,FP CASH\n",
         L"MCO SK,FM *C*10,FP CASH\nMCO SK,FM *C*10,FP CASH\n");
  scene.booking += L"TR FA 2 117-4012345679 AFTER 3\n";
  scene.agent = L"form frmWaitForMCO\ntick tmrWait\ntick tmrWait\n" + std::wstring(kLook);
  EXPECT_EQ(Rereads(RehearseInAgreement(scene)), 3u);
}

TEST(WaitingRun, ARereadThatTheHostRefusesIsToldAndTheWaitGoesOn) {
  auto scene = SceneWithDocumentAfter(
      2, L"form frmWaitForMCO\ntick tmrWait\nbox ok \"No IR\" 0 \"\"\ntick tmrWait\n" +
             std::wstring(kLook));
  // RT, IR and RT come before the dialog waits; then IR and RT with every tick.
  scene.prepare = [](practice::Host& host) { host.faults.refusals[4] = L"NOT NOW"; };
  EXPECT_EQ(Rereads(RehearseInAgreement(scene)), 3u);
}

class LeftWait : public testing::TestWithParam<const wchar_t*> {};

TEST_P(LeftWait, EndsTheRunWithNothingWritten) {
  const auto outcome = RehearseInAgreement(SceneWithDocumentAfter(
      9, L"form frmWaitForMCO\ntick tmrWait\n" + std::wstring(GetParam()) + L"\n"));
  EXPECT_EQ(outcome.EntryTexts(), (Lines{L"RT", L"IR", L"RT", L"IR", L"RT"}));
  EXPECT_EQ(outcome.pnrAfter, outcome.pnrBefore);
}

INSTANTIATE_TEST_SUITE_P(WaitingRun, LeftWait, testing::Values(L"click cmdCancel", L"close"));

}  // namespace
}  // namespace run
