#include <gtest/gtest.h>

#include "common/Text.h"
#include "tests/run/Scenes.h"

// What the run makes of a fare that it reads, with the bookings of practice/pnrs.
namespace run {
namespace {

/// The booking's agent answers Cancel to the first box, and comes no further.
practice::RehearsalScene SceneWithCancel(const std::string& booking) {
  auto scene = SceneOf(booking);
  Change(scene.agent, L"box ok", L"box cancel");
  scene.agent.erase(scene.agent.find(L"form frmPTA"));
  return scene;
}

/// The booking with an agent who looks into the dialog and leaves it.
practice::RehearsalScene SceneWithLook(const std::string& booking, std::wstring_view see) {
  auto scene = SceneOf(booking);
  scene.agent = L"form frmPTA\n" + std::wstring(see) + L"\nclick cmdCancel\n";
  return scene;
}

/// Two fares that go together, with something else about the second.
practice::RehearsalScene TwoFares(std::wstring_view from, std::wstring_view to) {
  auto scene = SceneOf("two-forms-of-payment");
  Change(scene.booking, from, to);
  return scene;
}

TEST(FareDetailRun, WithoutAFareTheRunEndsBehindTheOSI) {
  const auto outcome = RehearseBooking("no-fare");
  EXPECT_EQ(BoxesIn(outcome),
            Lines{L"box 48 \"  PTA Script \" \"The PNR contains no active TST.\\rMake sure there "
                  L"is a TST record available and restart the script.\" -> OK"});
  EXPECT_EQ(outcome.EntryTexts(), ReadingEntries());
  EXPECT_EQ(LinesAdded(outcome), Lines{L"OS SK PTA"});
  EXPECT_EQ(LinesGone(outcome), Lines{});
}

TEST(FareDetailRun, AFareThatIsNotPricedEndsTheRun) {
  const auto outcome = RehearseBooking("fare-not-priced");
  EXPECT_EQ(BoxesIn(outcome), Lines{L"box 0 \"  PTA Script \" \"The script can not handle NOFARE "
                                    L"TST's.\\rThe script will terminate!\" -> OK"});
  EXPECT_EQ(outcome.EntryTexts(), ReadingEntries());
  EXPECT_EQ(LinesAdded(outcome), Lines{L"OS SK PTA"});
}

TEST(FareDetailRun, ASecondFareThatIsNotPricedEndsTheRunToo) {
  auto scene = TwoFares(L"FARE SEK800", L"FARE NOFARE");
  scene.agent =
      L"form frmSelectTST\npick lstTST 1,2\nclick cmdOK\n" + SceneOf("fare-not-priced").agent;
  EXPECT_EQ(RehearseInAgreement(scene).EntryTexts().back(), L"TQT 2");
}

TEST(FareDetailRun, AReissueWithoutATotalIsSummedAndItsTSTIsLeftAlone) {
  const auto outcome = RehearseBooking("reissue");
  // SEK1000, SEK120 and SEK40
  EXPECT_TRUE(Holds(LinesAdded(outcome), L"RM *FARE:1160,TAX:160,PTA:250 [P1]"));
  EXPECT_EQ(EntriesOfWriting(outcome),
            (Lines{L"CH 5 OK/STOSK08AA", L"CH 7 O/PT/CASH",
                   L"FO 117-4012345678 STO 80246878 [P1];RM PWCT SK AT  A/P BEFORE DEPARTURE "
                   L"[P1];OP 16MAR07 CHECK IF TICKET OK;RM PTA TTL SEK1000/TAX SEK120XT, SEK40YQ "
                   L"+ SEK250XP [P1];RM *FARE:1160,TAX:160,PTA:250 [P1];",
                   L"PRINT RT", L"BT RETAIN", L"QE 80 AT STOSK08AA"}));
}

TEST(FareDetailRun, AReissueWithATotalKeepsIt) {
  auto scene = SceneOf("reissue");
  Change(scene.booking, L"TOTAL SEK0", L"TOTAL SEK900");
  EXPECT_TRUE(Holds(LinesAdded(RehearseInAgreement(scene)), L"RM *FARE:900,TAX:160,PTA:250 [P1]"));
}

TEST(FareDetailRun, ATotalOf0OfAnotherFareStays) {
  auto scene = SceneOf("ordinary");
  Change(scene.booking, L"TOTAL SEK1160", L"TOTAL SEK0");
  EXPECT_TRUE(Holds(LinesAdded(RehearseInAgreement(scene)), L"RM *FARE:0,TAX:160,PTA:250 [P1]"));
}

TEST(FareDetailRun, CancelAtAReissueEndsTheRun) {
  EXPECT_EQ(RehearseInAgreement(SceneWithCancel("reissue")).EntryTexts(), ReadingEntries());
}

TEST(FareDetailRun, EveryReissueIsAskedFor) {
  auto scene = TwoFares(L"SALES SITI", L"SALES SITI,REISSUE");
  const std::wstring reissue = SceneOf("reissue").agent;
  const std::wstring box = reissue.substr(0, reissue.find(L"form "));
  Change(scene.agent, L"form frmPTA", box + box + L"form frmPTA");
  EXPECT_EQ(BoxesIn(RehearseInAgreement(scene)).size(), 2u);
}

TEST(FareDetailRun, AFareThatCarriesThePTAAlreadyIsAReissue) {
  auto scene = SceneOf("reissue");
  Change(scene.booking, L",REISSUE", L",PTA");
  RehearseInAgreement(scene);
}

TEST(FareDetailRun, AnInfantsFareGivesElementsForTheAdultAndForTheInfant) {
  EXPECT_EQ(
      NewElements(RehearseBooking("infant")),
      (Lines{L"FO 117-4012345678 STO 80246878 [PAX]", L"FO 117-4012345678 STO 80246878 [INF P1]",
             L"RM PWCT SK AT  A/P BEFORE DEPARTURE", L"OP 16MAR07 CHECK IF TICKET OK",
             L"RM PTA TTL SEK1000/TAX SEK120XT, SEK40YQ + SEK250XP",
             L"RM *FARE:1160,TAX:160,PTA:250"}));
}

TEST(FareDetailRun, AnInfantWhoseAdultPaysAloneIsNoInfantsFare) {
  auto scene = SceneOf("infant");
  Change(scene.booking, L"[INF P1]", L"[P1]");
  EXPECT_TRUE(
      Holds(NewElements(RehearseInAgreement(scene)), L"FO 117-4012345678 STO 80246878 [P1]"));
}

TEST(FareDetailRun, ASalesIndicatorThatIsNotOneForAPTAIsNamed) {
  const auto outcome = RehearseBooking("sales-indicator");
  EXPECT_EQ(BoxesIn(outcome),
            Lines{L"box 1 \"  PTA Script \" \"The displayed TST has an incorrect Sales Indicator "
                  L"SITO\\r\\nPress 'OK' to continue or 'Cancel' to terminate.\" -> OK"});
  EXPECT_EQ(outcome.EntryTexts().back(), L"QE 80 AT STOSK08AA");
}

TEST(FareDetailRun, CancelAtASalesIndicatorEndsTheRun) {
  EXPECT_EQ(RehearseInAgreement(SceneWithCancel("sales-indicator")).EntryTexts(), ReadingEntries());
}

TEST(FareDetailRun, TheSalesIndicatorIsAskedForOnceARun) {
  auto scene = TwoFares(L"SALES SITI", L"SALES SITO");
  const std::wstring sales = SceneOf("sales-indicator").agent;
  Change(scene.agent, L"form frmPTA", sales.substr(0, sales.find(L"form ")) + L"form frmPTA");
  EXPECT_EQ(BoxesIn(RehearseInAgreement(scene)).size(), 1u);
}

class SalesIndicatorOfAPTA : public testing::TestWithParam<const wchar_t*> {};

TEST_P(SalesIndicatorOfAPTA, IsNotAskedFor) {
  auto scene = SceneOf("ordinary");
  Change(scene.booking, L",SALES SITI", GetParam());
  EXPECT_EQ(BoxesIn(RehearseInAgreement(scene)), Lines{});
}

INSTANTIATE_TEST_SUITE_P(FareDetailRun, SalesIndicatorOfAPTA,
                         testing::Values(L",SALES SITI", L",SALES SOTI", L""));

TEST(FareDetailRun, TheCityOfDepartureStandsBehindTheDateOfTheCalculation) {
  const auto outcome = RehearseBooking("dated-calculation");
  EXPECT_EQ(outcome.EntryTexts().back(), L"QE 80 AT OSLSK08AA");
  EXPECT_TRUE(Holds(LinesAdded(outcome), L"TK OK/OSLSK08AA"));
}

TEST(FareDetailRun, OneDigitIsNoDate) {
  auto scene = SceneWithLook("dated-calculation", L"see txtQueueingOfficeID \"1MASK08AA\"");
  Change(scene.booking, L"CALC 15MAR07OSL", L"CALC 1MAR07OSL");
  RehearseInAgreement(scene);
}

TEST(FareDetailRun, AFareWithoutFormOfPaymentIsAskedForWhenThePNRHasOne) {
  auto scene = TwoFares(L"FP CHECK [P2]\n", L"");
  Change(
      scene.agent, L"form frmPTA\nsee txtFormOfPayment \"CASH/SEK1160 + CHECK/SEK900\"",
      LR"(box ok "Warning: Form of Payments missing for one or more TST(s). \rSelect 'OK' if you want to continue using the same FP \rfor all TST's, or 'Cancel' to terminate!" 1 "  PTA Script "
form frmPTA
see txtFormOfPayment "CASH")");
  EXPECT_TRUE(Holds(NewElements(RehearseInAgreement(scene)), L"FP O/PT/CASH [P2 S3-4]"));
}

TEST(FareDetailRun, AFareWithoutFormOfPaymentIsNotAskedForWhenThePNRHasNone) {
  auto scene = SceneOf("ordinary");
  Change(scene.booking, L"\nFP CASH\n", L"\n");
  EXPECT_TRUE(Holds(NewElements(RehearseInAgreement(scene)), L"FP O/PT/CASH [P1]"));
}

}  // namespace
}  // namespace run
