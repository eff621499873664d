#include <gtest/gtest.h>

#include "tests/run/Scenes.h"

// The agent's choice among MCOs, with the bookings of practice/pnrs.
namespace run {
namespace {

/// An agent who does something in the form that comes first.
practice::RehearsalScene SceneWith(const std::string& booking, std::wstring_view agent) {
  auto scene = SceneOf(booking);
  scene.agent = agent;
  return scene;
}

const Lines kUntilTheList = {L"RT", L"IR", L"RT", L"TQT", L"TQM RT"};

constexpr std::wstring_view kListBox =
    L"box ok \"Error Error in list of TSM's!\" 16 \"  PTA Script \"\n";

TEST(ChoosingMCORun, OneThatIsShownAtOnceIsNotAskedForAgain) {
  const auto outcome = RehearseBooking("ordinary");
  EXPECT_EQ(EntriesBeforeWriting(outcome), ReadingEntries());
  EXPECT_FALSE(HasShown(outcome, L"frmSelectMCO"));
}

TEST(ChoosingMCORun, AListOfOneIsAskedForByItsNumber) {
  const auto outcome = RehearseBooking("mco-list-of-one");
  EXPECT_EQ(EntriesBeforeWriting(outcome), (Lines{L"RT", L"IR", L"RT", L"TQT", L"TQM RT",
                                                  L"TQM 2 RT", L"OS SK PTA", L"TQT", L"TQT"}));
  EXPECT_FALSE(HasShown(outcome, L"frmSelectMCO"));
}

TEST(ChoosingMCORun, TheSecondOfThreeGivesItsDocumentItsCommissionAndItsFee) {
  const auto outcome = RehearseBooking("mco-list-of-three");
  EXPECT_TRUE(Holds(outcome.seen, L"in frmSelectMCO \"  PTA Script - MCO Record list\""));
  EXPECT_EQ(ListIn(outcome), (Lines{L"*1        1        CASH                      4-5",
                                    L" 2        2        CASH                      4-5",
                                    L" 3        3        CHECK                     "}));
  EXPECT_EQ(EntriesBeforeWriting(outcome), (Lines{L"RT", L"IR", L"RT", L"TQT", L"TQM RT", L"RT",
                                                  L"TQM 2 RT", L"OS SK PTA", L"TQT", L"TQT"}));
  EXPECT_EQ(NewElements(outcome),
            (Lines{L"FO 117-4012345679 STO 80246878 [P2]",
                   L"RM PWCT SK AT  A/P BEFORE DEPARTURE [P2]", L"OP 16MAR07 CHECK IF TICKET OK",
                   L"RM PTA TTL SEK1000/TAX SEK120XT, SEK40YQ + SEK175.5XP [P2]",
                   L"RM *FARE:1160,TAX:160,PTA:175,5 [P2]"}));
}

TEST(ChoosingMCORun, ThePlaceInTheListIsThePlaceAmongTheMCOSegments) {
  auto scene = SceneWith("mco-list-of-three",
                         LR"(form frmSelectMCO
pick lstMCO 3
click btnOK
box ok "Warning: The Commission varies in the TST's selected ! Only one commission is valid."
form frmPTA
see txtAirlinePrefix "220"
see txtMCONumber "4012345680"
see txtCarrier "LH"
see txtCommission "9"
see txtMCOFee "300"
click cmdCancel
)");
  // Another prefix: no OSI.
  EXPECT_EQ(RehearseInAgreement(scene).EntryTexts(),
            (Lines{L"RT", L"IR", L"RT", L"TQT", L"TQM RT", L"RT", L"TQM 3 RT", L"TQT", L"TQT"}));
}

TEST(ChoosingMCORun, TheFirstLineIsSelectedToBeginWith) {
  auto scene =
      SceneWith("mco-list-of-three",
                L"form frmSelectMCO\nclick btnOK\n"
                L"box ok \"Warning: The Commission varies in the TST's selected ! Only one "
                L"commission is valid.\"\n"
                L"form frmPTA\nsee txtMCONumber \"4012345678\"\nclick cmdCancel\n");
  EXPECT_TRUE(Holds(RehearseInAgreement(scene).EntryTexts(), L"TQM 1 RT"));
}

class NoMCOChosen : public testing::TestWithParam<const wchar_t*> {};

TEST_P(NoMCOChosen, IsReportedAndEndsTheRun) {
  auto scene = SceneWith("mco-list-of-three", L"form frmSelectMCO\n" + std::wstring(GetParam()) +
                                                  L"\n" + std::wstring(kListBox));
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_EQ(outcome.EntryTexts(), (Lines{L"RT", L"IR", L"RT", L"TQT", L"TQM RT", L"RT"}));
  EXPECT_EQ(outcome.pnrAfter, outcome.pnrBefore);
}

INSTANTIATE_TEST_SUITE_P(ChoosingMCORun, NoMCOChosen,
                         testing::Values(L"click btnCancel", L"close"));

TEST(ChoosingMCORun, AnMCOWithoutFeeEndsTheRun) {
  const auto outcome = RehearseBooking("mco-without-fee");
  EXPECT_EQ(BoxesIn(outcome),
            Lines{L"box 16 \"  PTA Script \" \"Error MCOFee was not found in the MCO TSM 1 HAS NO "
                  L"FEE\" -> OK"});
  EXPECT_EQ(outcome.EntryTexts(), kUntilTheList);
  EXPECT_EQ(outcome.pnrAfter, outcome.pnrBefore);
}

TEST(ChoosingMCORun, AChosenMCOWithoutFeeEndsTheRunAfterOneReport) {
  auto scene = SceneWith("mco-list-of-three",
                         LR"(form frmSelectMCO
pick lstMCO 2
click btnOK
box ok "Error MCOFee was not found in the MCO TSM 2 HAS NO FEE" 16 "  PTA Script "
)");
  Change(scene.booking, L"TM FEE 175.50,", L"TM ");
  EXPECT_EQ(RehearseInAgreement(scene).EntryTexts().back(), L"TQM 2 RT");
}

TEST(ChoosingMCORun, AHostThatRefusesTheListIsQuotedAndEndsTheRun) {
  auto scene = SceneWith(
      "ordinary",
      L"box ok \"Error sending TQM Transaction! REFUSED: NOT NOW\" 16 \"  PTA Script \"\n");
  scene.prepare = [](practice::Host& host) { host.faults.refusals[5] = L"NOT NOW"; };
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_EQ(outcome.EntryTexts(), kUntilTheList);
  EXPECT_EQ(outcome.pnrAfter, outcome.pnrBefore);
}

TEST(ChoosingMCORun, AHostThatRefusesTheChosenMCOIsQuotedToo) {
  auto scene = SceneWith("mco-list-of-three",
                         LR"(form frmSelectMCO
pick lstMCO 2
click btnOK
box ok "Error sending TQM Transaction! REFUSED: NOT NOW" 16 "  PTA Script "
)");
  scene.prepare = [](practice::Host& host) { host.faults.refusals[7] = L"NOT NOW"; };
  EXPECT_EQ(RehearseInAgreement(scene).EntryTexts().back(), L"TQM 2 RT");
}

}  // namespace
}  // namespace run
