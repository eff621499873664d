#include <gtest/gtest.h>

#include "common/Text.h"
#include "tests/run/Scenes.h"

// The agent's choice among fares, with the bookings of practice/pnrs.
namespace run {
namespace {

/// An agent who does something in the form that comes first.
practice::RehearsalScene SceneWith(const std::string& booking, std::wstring_view agent) {
  auto scene = SceneOf(booking);
  scene.agent = agent;
  return scene;
}

const Lines kUntilTheFares = ReadingEntries();

constexpr std::wstring_view kBothFares = L"form frmSelectTST\npick lstTST 1,2\nclick cmdOK\n";
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

TEST(ChoosingFaresRun, PassengersAreNamedInTheOrderOfTheirFares) {
  auto scene = SceneOf("two-forms-of-payment");
  Change(scene.booking, L"[P1 S3-4]\nTS", L"[P9 S3-4]\nTS");
  Change(scene.booking, L"[P2 S3-4]", L"[P1 S3-4]");
  Change(scene.booking, L"[P9 S3-4]", L"[P2 S3-4]");
  // The MCO's own form of payment stays the first, whichever fare it pays.
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_TRUE(Holds(NewElements(outcome), L"FO 117-4012345678 STO 80246878 [P2,1 S3-4]"));
  EXPECT_TRUE(Holds(LinesAdded(outcome), L"FO 117-4012345678 STO 80246878 [P1-2 S3-4]"));
}

TEST(ChoosingFaresRun, APassengerWithTwoFaresIsNamedTwice) {
  auto scene = SceneOf("two-forms-of-payment");
  Change(scene.booking, L"[P2 S3-4]", L"[P1 S3-4]");
  Change(scene.agent, L"CASH/SEK1160 + CHECK/SEK900", L"CASH");
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_TRUE(Holds(NewElements(outcome), L"FO 117-4012345678 STO 80246878 [P1,1 S3-4]"));
  EXPECT_TRUE(Holds(LinesAdded(outcome), L"FO 117-4012345678 STO 80246878 [P1 S3-4]"));
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
