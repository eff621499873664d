#include <gtest/gtest.h>

#include "common/Text.h"
#include "tests/run/Scenes.h"

// The agent's choice among MCOs and fares, with the bookings of practice/pnrs.
namespace run {
namespace {

bool HasShown(const practice::RehearsalOutcome& outcome, std::wstring_view form) {
  for (const std::wstring& line : outcome.seen) {
    if (line.starts_with(L"shown " + std::wstring(form) + L" ")) return true;
  }
  return false;
}

/// The lines of the list as the agent found it; "*" in front of a selected one.
Lines ListIn(const practice::RehearsalOutcome& outcome) {
  Lines lines;
  for (const std::wstring& line : outcome.seen) {
    if (line.starts_with(L"    ")) lines.push_back(line.substr(4));
  }
  return lines;
}

/// An agent who does something in the form that comes first.
practice::RehearsalScene SceneWith(const std::string& booking, std::wstring_view agent) {
  auto scene = SceneOf(booking);
  scene.agent = agent;
  return scene;
}

const Lines kUntilTheList = {L"RT", L"IR", L"RT", L"TQT", L"TQM RT"};
const Lines kUntilTheFares = ReadingEntries();

constexpr std::wstring_view kBothFares = L"form frmSelectTST\npick lstTST 1,2\nclick cmdOK\n";
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

TEST(ChoosingFaresRun, AListOfOneIsAskedForByItsNumberWithoutADialog) {
  const auto outcome = RehearseBooking("fare-list-of-one");
  EXPECT_EQ(EntriesBeforeWriting(outcome), (Lines{L"RT", L"IR", L"RT", L"TQT", L"TQM RT",
                                                  L"OS SK PTA", L"TQT", L"TQT", L"TQT 2"}));
  EXPECT_FALSE(HasShown(outcome, L"frmSelectTST"));
  EXPECT_TRUE(
      Holds(outcome.EntryTexts(), L"TU 2 PTA/FARE F SEK1000 TAX SEK120XT SEK40YQ/NVA 15MAR07"));
}

TEST(ChoosingFaresRun, TwoThatArePaidDifferentlyAreWrittenTogether) {
  const auto outcome = RehearseBooking("two-forms-of-payment");
  EXPECT_TRUE(Holds(outcome.seen, L"in frmSelectTST \"  PTA Script - TST Record list\""));
  EXPECT_EQ(ListIn(outcome), (Lines{L" 1        1        CASH                      3-4",
                                    L" 2        2        CASH                      3-4"}));
  EXPECT_EQ(EntriesOfWriting(outcome),
            (Lines{L"CH 6 OK/STOSK08AA", L"CH 8 O/PT/CASH", L"CH 9 O/PT/CHECK",
                   L"FO 117-4012345678 STO 80246878 [P1,2 S3-4];RM PWCT SK AT ARN A/P BEFORE "
                   L"DEPARTURE [P1,2 S3-4];OP 16MAR07 CHECK IF TICKET OK;RM PTA TTL SEK1800/TAX "
                   L"SEK220XT, SEK40YQ + SEK250XP [P1,2 S3-4];RM *FARE:1030,TAX:130,PTA:125 "
                   L"[P1,2 S3-4];",
                   L"TU 1 PTA/FARE F SEK1000 TAX SEK120XT SEK40YQ/NVA 15MAR07",
                   L"TU 2 PTA/FARE F SEK800 TAX SEK100XT/NVA 15MAR07", L"PRINT RT", L"BT RETAIN",
                   L"QE 80 AT STOSK08AA"}));
}

TEST(ChoosingFaresRun, WithTheSameFormOfPaymentNothingIsRebuilt) {
  auto scene = SceneWith(
      "two-forms-of-payment",
      std::wstring(kBothFares) + L"form frmPTA\nsee txtFormOfPayment \"CASH\"\nclick cmdCancel\n");
  Change(scene.booking, L"FP CHECK [P2]", L"FP O/PT/CASH [P2]");
  RehearseInAgreement(scene);
}

TEST(ChoosingFaresRun, OfThreeFormsOfPaymentTwoAreShownAndAllAreMarked) {
  const auto outcome = RehearseBooking("three-forms-of-payment");
  EXPECT_EQ(BoxesIn(outcome).size(), 1u);
  EXPECT_EQ(EntriesBeforeWriting(outcome),
            (Lines{L"RT", L"IR", L"RT", L"TQT", L"TQM RT", L"OS SK PTA", L"TQT", L"TQT", L"TQT 1",
                   L"TQT 2", L"TQT 3"}));
  EXPECT_TRUE(Holds(LinesAdded(outcome), L"FP O/PT/CASH [P1]"));
  EXPECT_TRUE(Holds(LinesAdded(outcome), L"FP O/PT/CHECK [P2]"));
  EXPECT_TRUE(Holds(LinesAdded(outcome), L"FP O/PT/INVOICE [P3]"));
}

TEST(ChoosingFaresRun, WhoDoesNotWantOnlyTwoFormsOfPaymentEndsTheRun) {
  auto scene = SceneOf("three-forms-of-payment");
  const std::size_t dialog = scene.agent.find(L"form frmPTA");
  scene.agent.erase(dialog);
  Change(scene.agent, L"box ok", L"box cancel");
  EXPECT_EQ(RehearseInAgreement(scene).EntryTexts().back(), L"TQT 3");
}

TEST(ChoosingFaresRun, AfterDifferentSegmentsTheSecondChoiceAloneCounts) {
  const auto outcome = RehearseBooking("different-segments");
  EXPECT_EQ(BoxesIn(outcome),
            Lines{L"box 64 \"Invalid Field !\" \"Selected TST's must belong to the same segment\" "
                  L"-> OK"});
  EXPECT_EQ(EntriesBeforeWriting(outcome), (Lines{L"RT", L"IR", L"RT", L"TQT", L"TQM RT",
                                                  L"OS SK PTA", L"TQT", L"TQT", L"TQT 2"}));
  EXPECT_TRUE(Holds(LinesAdded(outcome), L"FO 117-4012345678 STO 80246878 [P2 S3]"));
  EXPECT_TRUE(Holds(LinesAdded(outcome), L"RM *FARE:900,TAX:100,PTA:250 [P2 S3]"));
}

TEST(ChoosingFaresRun, AfterDifferentPaymentColumnsTheSecondChoiceAloneCounts) {
  const auto outcome = RehearseBooking("different-payment-column");
  EXPECT_EQ(BoxesIn(outcome),
            Lines{L"box 64 \"Invalid Field !\" \"Selected TST's must hav the same FOP\" -> OK"});
  EXPECT_TRUE(Holds(LinesAdded(outcome), L"FO 117-4012345678 STO 80246878 [P1 S3-4]"));
  EXPECT_FALSE(Holds(outcome.EntryTexts(), L"TQT 2"));
}

TEST(ChoosingFaresRun, WhereSegmentsAndPaymentDifferTheSegmentsAreNamed) {
  auto scene = SceneOf("different-segments");
  Change(scene.booking, L"SALES SITI [P2 S3]", L"SALES SITI,FOP CHECK [P2 S3]");
  EXPECT_EQ(BoxesIn(RehearseInAgreement(scene)).size(), 1u);
}

TEST(ChoosingFaresRun, NothingPickedLeavesTheListOpen) {
  auto scene = SceneWith("two-forms-of-payment",
                         L"form frmSelectTST\nclick cmdOK\npick lstTST 2\nclick cmdOK\n"
                         L"form frmPTA\nsee txtFormOfPayment \"CASH\"\nclick cmdCancel\n");
  EXPECT_EQ(RehearseInAgreement(scene).EntryTexts().back(), L"TQT 2");
}

class NoFareChosen : public testing::TestWithParam<const wchar_t*> {};

TEST_P(NoFareChosen, EndsTheRunWithoutAWord) {
  auto scene =
      SceneWith("two-forms-of-payment", L"form frmSelectTST\n" + std::wstring(GetParam()) + L"\n");
  EXPECT_EQ(RehearseInAgreement(scene).EntryTexts(), kUntilTheFares);
}

INSTANTIATE_TEST_SUITE_P(ChoosingFaresRun, NoFareChosen,
                         testing::Values(L"click cmdCancel", L"close"));

TEST(ChoosingFaresRun, FaresWithoutSegmentsInTheListAreNotRead) {
  auto scene = SceneWith("two-forms-of-payment",
                         std::wstring(kBothFares) +
                             L"box ok \"Error adding day!\" 16\n"
                             L"form frmPTA\nsee txtPTA \"\"\nstate cmdOK off\nclick cmdCancel\n");
  Change(scene.booking, L"[P1 S3-4]\nTS", L"[P1]\nTS");
  Change(scene.booking, L"[P2 S3-4]", L"[P2]");
  EXPECT_EQ(RehearseInAgreement(scene).EntryTexts(), kUntilTheFares);
}

TEST(ChoosingFaresRun, TwentyFaresAreReadAndWrittenBackInTheOrderOfTheList) {
  const auto outcome = RehearseBooking("twenty-fares");
  Lines read = kUntilTheFares;
  Lines written;
  for (int i = 1; i <= 20; ++i) {
    read.push_back(L"TQT " + std::to_wstring(i));
    written.push_back(L"TU " + std::to_wstring(i) + L" PTA/FARE F SEK" + std::to_wstring(1000 + i) +
                      L" TAX SEK120XT/NVA 15MAR07");
  }
  EXPECT_EQ(EntriesBeforeWriting(outcome), read);
  Lines updates = EntriesOfWriting(outcome);
  std::erase_if(updates, [](const std::wstring& entry) { return !entry.starts_with(L"TU "); });
  EXPECT_EQ(updates, written);
}

TEST(ChoosingFaresRun, TwentyFaresAreSummedForTheirTwentyPassengers) {
  EXPECT_EQ(NewElements(RehearseBooking("twenty-fares")),
            (Lines{L"FO 117-4012345678 STO 80246878 [P1-20 S21-22]",
                   L"RM PWCT SK AT ARN A/P BEFORE DEPARTURE [P1-20 S21-22]",
                   L"OP 16MAR07 CHECK IF TICKET OK",
                   L"RM PTA TTL SEK20210/TAX SEK2400XT + SEK250XP [P1-20 S21-22]",
                   L"RM *FARE:1130,5,TAX:120,PTA:12 [P1-20 S21-22]"}));
}

TEST(ChoosingFaresRun, SomeOfTwentyAreWrittenInTheOrderOfTheListWhateverTheOrderOfPicking) {
  auto scene = SceneWith("twenty-fares",
                         L"form frmSelectTST\npick lstTST 17,3,9\nclick cmdOK\n"
                         L"form frmPTA\nsee txtPTA \"SEK3029/TAX SEK360XT\"\nclick cmdOK\n");
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_TRUE(Holds(LinesAdded(outcome), L"FO 117-4012345678 STO 80246878 [P3,9,17 S21-22]"));
  EXPECT_FALSE(Holds(outcome.EntryTexts(), L"TQT 1"));
}

}  // namespace
}  // namespace run
