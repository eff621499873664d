#include <gtest/gtest.h>

#include <algorithm>

#include "common/Text.h"
#include "tests/run/Scenes.h"

// What the update run sends and what it makes of the PNR, with the bookings of practice/pnrs whose
// names begin with "write-".
namespace run {
namespace {

constexpr std::wstring_view kNotQueued =
    L"box 1 \"  PTA Script \" \"PNR was not Queued correctly ! \\r\\nPress 'OK' to continue or "
    L"'Cancel' to terminate.\" -> ";

std::string TestName(const testing::TestParamInfo<std::string>& info) {
  std::string name = info.param;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

std::vector<std::string> WrittenBookings() {
  std::vector<std::string> names = BookingNames();
  std::erase_if(names, [](const std::string& name) { return !name.starts_with("write-"); });
  names.push_back("reissue");
  return names;
}

/// The entries of writing behind those that bring new elements.
Lines ClosingEntries(const practice::RehearsalOutcome& outcome) {
  const Lines entries = EntriesOfWriting(outcome);
  const auto last = std::find_if(entries.rbegin(), entries.rend(),
                                 [](const auto& entry) { return entry.ends_with(L";"); });
  return {last.base(), entries.end()};
}

class WrittenPNR : public testing::TestWithParam<std::string> {};

TEST_P(WrittenPNR, IsExactlyWhatTheRulesAskFor) {
  const auto outcome = RehearseBooking(GetParam());
  EXPECT_EQ(common::ToUtf8(common::Replace(outcome.pnrAfter, L"\r\n", L"\n") + L"\n"),
            common::ToUtf8(ReadProjectFile("tests/run/" + GetParam() + ".after")));
}

INSTANTIATE_TEST_SUITE_P(WritingRun, WrittenPNR, testing::ValuesIn(WrittenBookings()), TestName);

TEST(WritingRun, AnAdultAndAnInfantGetElementsOfTheirOwnAndTheOfficeIsAskedToAcknowledge) {
  const auto outcome = RehearseBooking("write-infant-acknowledged");
  EXPECT_EQ(
      EntriesOfWriting(outcome),
      (Lines{L"CH 6 OK/FRALH0123/Q", L"CH 9 10", L"CH 8 O/PT/CASHAGT",
             L"FO 220-4012345678 STO 80246878 [PAX P1,2 S3-4];FO 220-4012345678 STO 80246878 [INF "
             L"P2 S3-4];FV LH [INF P2 S3-4];FM 10 [INF P2 S3-4];RM PWCT LH AT ARN A/P BEFORE "
             L"DEPARTURE [P1,2 S3-4];OP 16MAR07 CHECK IF TICKET OK;",
             L"RM PTA TTL SEK2100/TAX SEK252XT, SEK80YQ + SEK250XP [P1,2 S3-4];RM PLS ACK PTA FROM "
             L"ARNAG2100 TO FRALH0123 [P1,2 S3-4];RM "
             L"*FARE:810,666666666667,TAX:110,666666666667,PTA:83 [P1,2 S3-4];",
             L"TU 1 PTA/FARE F SEK1000 TAX SEK120XT SEK40YQ/NVA 15MAR07",
             L"TU 2 PTA/FARE F SEK100 TAX SEK12XT/C+PD XF SEK4.50/NVA 15MAR07", L"PRINT RT",
             L"BT RETAIN", L"QE 92 AT FRALH0123"}));
}

TEST(WritingRun, WithoutAnyFareElementsTheDocumentsOwnAreMadeForTheAdultAndForTheInfant) {
  auto scene = SceneOf("write-infant-acknowledged");
  Change(scene.booking, L"FP CASH\nFM 9 [PAX P1-2 S3-4]\nFV LH [PAX P1-2 S3-4]\n", L"");
  scene.agent.erase(scene.agent.find(L"box ok"),
                    scene.agent.find(L"form frmPTA") - scene.agent.find(L"box ok"));
  const auto outcome = RehearseInAgreement(scene);
  const Lines elements = NewElements(outcome);
  ASSERT_GE(elements.size(), 8u);
  EXPECT_EQ(
      Lines(elements.begin(), elements.begin() + 8),
      (Lines{L"FO 220-4012345678 STO 80246878 [PAX P1,2 S3-4]",
             L"FO 220-4012345678 STO 80246878 [INF P2 S3-4]", L"FP O/PT/CASHAGT [PAX P1,2 S3-4]",
             L"FP O/PT/CASHAGT [INF P2 S3-4]", L"FV LH [PAX P1,2 S3-4]", L"FV LH [INF P2 S3-4]",
             L"FM 10 [PAX P1,2 S3-4]", L"FM 10 [INF P2 S3-4]"}));
}

TEST(WritingRun, APWCTRemarkThatIsKeptIsNeitherChangedNorMade) {
  const auto outcome = RehearseBooking("write-pwct-kept");
  for (const std::wstring& entry : EntriesOfWriting(outcome)) {
    EXPECT_FALSE(common::Contains(entry, L"PWCT")) << common::ToUtf8(entry);
  }
}

TEST(WritingRun, APWCTRemarkThatIsChangedKeepsItsPlaceAndItsPassengers) {
  const auto outcome = RehearseBooking("write-pwct-changed");
  EXPECT_EQ(EntriesOfWriting(outcome)[1], L"CH 10 PWCT SK AT CPH A/P BEFORE DEPARTURE");
  EXPECT_EQ(LinesGone(outcome), (Lines{L"TK TL 10MAR07", L"FP CASH", L"RM PWCT SK AT ARN [P1]"}));
  EXPECT_EQ(NewElements(outcome).size(), 4u);
}

TEST(WritingRun, BlanksAroundWhatIsTypedDoNotCount) {
  auto scene = SceneOf("write-pwct-kept");
  Change(scene.agent, L"click",
         L"type txtPWCT \"  SK AT ARN \"\ntype txtPTA \"  SEK1 ALL IN ALL \"\ntype txtRMBODInfo "
         L"\"   \"\nclick");
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_EQ(NewElements(outcome),
            (Lines{L"FO 117-4012345678 STO 80246878 [P1]", L"OP 16MAR07 CHECK IF TICKET OK",
                   L"RM PTA TTL SEK1 ALL IN ALL + SEK250XP [P1]",
                   L"RM *FARE:1160,TAX:160,PTA:250 [P1]"}));
  EXPECT_EQ(EntriesOfWriting(outcome)[1], L"CH 7 O/PT/CASH");  // the remark stays
}

TEST(WritingRun, ACommissionThatTheAgentTypesIsTheOneThatIsWritten) {
  auto scene = SceneOf("write-nine-passengers");
  Change(scene.agent, L"click cmdOK\n", L"");
  Change(scene.agent, L"pick lstTST 1,3\n", L"pick lstTST 1,3\nclick cmdOK\n");
  scene.agent += L"type txtCommission \" 7 \"\nclick cmdOK\n";
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_EQ(EntriesOfWriting(outcome)[1], L"CH 17 7");
  EXPECT_EQ(NewElements(outcome)[1], L"FM 7 [P6,7,8 S10-11]");
}

TEST(WritingRun, APWCTTextOfBlanksAloneIsTakenAsItComes) {
  auto scene = SceneOf("write-no-office");
  Change(scene.agent, L"\"SK AT ARN\"", L"\"  \"");
  EXPECT_TRUE(Holds(NewElements(RehearseInAgreement(scene)), L"RM PWCT  [P1]"));
}

TEST(WritingRun, APWCTTextThatDiffersInItsBlanksAloneIsAnotherText) {
  auto scene = SceneOf("write-pwct-kept");
  Change(scene.agent, L"click", L"type txtPWCT \"SK  AT ARN\"\nclick");
  EXPECT_EQ(EntriesOfWriting(RehearseInAgreement(scene))[1], L"CH 10 PWCT SK  AT ARN");
}

TEST(WritingRun, WithoutAnOfficeTheTKHasNoneAndTheBODLeavesThePNRAtOnce) {
  const auto outcome = RehearseBooking("write-no-office");
  EXPECT_EQ(EntriesOfWriting(outcome).front(), L"CH 5 OK");
  EXPECT_EQ(
      ClosingEntries(outcome),
      (Lines{L"TU 1 PTA/FARE F SEK1000 TAX SEK120XT SEK40YQ/NVA 15MAR07", L"PRINT RT", L"BT"}));
}

TEST(WritingRun, WithoutAnOfficeTheOldTicketingsQueueIsStillKept) {
  auto scene = SceneOf("write-no-office");
  Change(scene.booking, L"TL 10MAR07", L"TL 10MAR07/Q12");
  EXPECT_EQ(EntriesOfWriting(RehearseInAgreement(scene)).front(), L"CH 5 OK/Q");
}

TEST(WritingRun, AQueueWithACategoryIsPlacedThere) {
  EXPECT_EQ(RehearseBooking("write-queue-category").EntryTexts().back(),
            L"QE 80 CAT 1 AT STOSK08AA");
}

TEST(WritingRun, ALowerCaseCIsTypedAsACapitalOne) {
  auto scene = SceneOf("write-queue-category");
  Change(scene.agent, L"type txtPWCT", L"type txtQueueCat \"81c2\"\ntype txtPWCT");
  EXPECT_EQ(RehearseInAgreement(scene).EntryTexts().back(), L"QE 81 CAT 2 AT STOSK08AA");
}

TEST(WritingRun, AQueueTextOfCAloneSendsNothingAndAsks) {
  auto scene = SceneOf("write-closed-queue");
  Change(scene.agent, L"type txtPWCT", L"type txtQueueCat \"C\"\ntype txtPWCT");
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_EQ(BoxesIn(outcome), Lines{std::wstring(kNotQueued) + L"OK"});
  EXPECT_EQ(CallsOf(outcome, L"QueueRequest.1.8"), Lines{});
  EXPECT_EQ(ClosingEntries(outcome),
            (Lines{L"TU 1 PTA/FARE F SEK1000 TAX SEK120XT SEK40YQ/NVA 15MAR07", L"PRINT RT",
                   L"BT RETAIN", L"TQTP"}));
}

TEST(WritingRun, OKAtAClosedQueueGoesOnToThePanel) {
  const auto outcome = RehearseBooking("write-closed-queue");
  EXPECT_EQ(BoxesIn(outcome), Lines{std::wstring(kNotQueued) + L"OK"});
  EXPECT_EQ(ClosingEntries(outcome),
            (Lines{L"TU 1 PTA/FARE F SEK1000 TAX SEK120XT SEK40YQ/NVA 15MAR07", L"PRINT RT",
                   L"BT RETAIN", L"QE 80 AT STOSK08AA", L"TQTP"}));
}

TEST(WritingRun, CancelAtAClosedQueueEndsTheRunWithEverythingWritten) {
  auto scene = SceneOf("write-closed-queue");
  Change(scene.agent, L"box ok", L"box cancel");
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_EQ(BoxesIn(outcome), Lines{std::wstring(kNotQueued) + L"Cancel"});
  EXPECT_EQ(outcome.EntryTexts().back(), L"QE 80 AT STOSK08AA");
  EXPECT_EQ(outcome.pnrAfter, RehearseBooking("write-closed-queue").pnrAfter);
}

TEST(WritingRun, AQueueThatIsOffTakesThePNRWithoutAQuestion) {
  auto scene = SceneOf("write-closed-queue");
  Change(scene.booking, L"TR QUEUE CLOSED", L"TR QUEUE OFF");
  scene.agent.erase(scene.agent.find(L"box ok"));
  EXPECT_EQ(BoxesIn(RehearseInAgreement(scene)), Lines{});
}

TEST(WritingRun, TheBODTakesPassengersAndSegmentsWhenItIsToldSo) {
  EXPECT_EQ(ClosingEntries(RehearseBooking("write-bod-association")),
            (Lines{L"TU 1 PTA/FARE F SEK1000 TAX SEK120XT SEK40YQ/NVA 15MAR07",
                   L"TU 3 PTA/FARE F SEK800 TAX SEK100XT/NVA 15MAR07", L"PRINT RT",
                   L"BT RETAIN [P1,3 S4-5]", L"QE 80 AT STOSK08AA"}));
}

TEST(WritingRun, TheBODIsForAllWithoutTheAssociation) {
  auto scene = SceneOf("write-bod-association");
  SetIni(scene, L"PassengerSegmentAsso", L"No");
  Change(scene.agent, L"chkPasSegAsso ticked", L"chkPasSegAsso not-ticked");
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_TRUE(Holds(outcome.EntryTexts(), L"BT RETAIN"));
  EXPECT_EQ(outcome.pnrAfter, RehearseBooking("write-bod-association").pnrAfter);
}

TEST(WritingRun, PanelModeFollowsThePlacementOnTheQueue) {
  EXPECT_EQ(ClosingEntries(RehearseBooking("write-panel-mode")),
            (Lines{L"TU 1 PTA/FARE F SEK1000 TAX SEK120XT SEK40YQ/NVA 15MAR07", L"PRINT RT",
                   L"BT RETAIN", L"QE 80 AT STOSK08AA", L"TQTP"}));
}

TEST(WritingRun, ASwedishAgencysXSGOTaxesAreVATAndTheFeeIsCutOff) {
  EXPECT_EQ(NewElements(RehearseBooking("write-swedish-vat")).back(),
            L"RM *FARE:1195,TAX:160,PTA:83,VAT:35 [P1-3]");
}

TEST(WritingRun, AnotherCountrysXSGOTaxesAreOrdinaryOnes) {
  auto scene = SceneOf("write-swedish-vat");
  SetIni(scene, L"COUNTRY", L"DK");
  EXPECT_EQ(NewElements(RehearseInAgreement(scene)).back(), L"RM *FARE:1195,TAX:195,PTA:83 [P1-3]");
}

TEST(WritingRun, WithoutAFeeNeitherTheTotalNorTheMoneyTellsOfOne) {
  auto scene = SceneOf("write-swedish-vat");
  Change(scene.booking, L"FEE 250", L"FEE 0");
  const Lines elements = NewElements(RehearseInAgreement(scene));
  EXPECT_EQ(Lines(elements.end() - 2, elements.end()),
            (Lines{L"RM PTA TTL SEK3000/TAX SEK360XT, SEK105XSGO, SEK120YQ [P1-3]",
                   L"RM *FARE:1195,TAX:160,VAT:35 [P1-3]"}));
}

TEST(WritingRun, AFeeWithDecimalsHasAPointInTheTotalAndTheUsersSymbolInTheMoney) {
  auto scene = SceneOf("ordinary");
  Change(scene.booking, L"FEE 250", L"FEE 250.75");
  Change(scene.agent, L"txtMCOFee \"250\"", L"txtMCOFee \"250,75\"");
  const Lines elements = NewElements(RehearseInAgreement(scene));
  EXPECT_EQ(Lines(elements.end() - 2, elements.end()),
            (Lines{L"RM PTA TTL SEK1000/TAX SEK120XT, SEK40YQ + SEK250.75XP [P1]",
                   L"RM *FARE:1160,TAX:160,PTA:250,75 [P1]"}));
}

TEST(WritingRun, NinePassengersAreShortenedToRunsAndTheFeeIsPerPassengerOfTheChosenFares) {
  EXPECT_EQ(
      EntriesOfWriting(RehearseBooking("write-nine-passengers")),
      (Lines{L"CH 13 OK/STOSK08AA", L"CH 15 O/PT/CASH", L"CH 16 O/PT/CASH",
             L"FO 117-4012345678 STO 80246878 [P1-4,6-8 S10-11];FM 10 [P6,7,8 S10-11];RM PWCT SK "
             L"AT ARN [P1-4,6-8 S10-11];OP 16MAR07 CHECK IF TICKET OK;RM PTA TTL SEK6700/TAX "
             L"SEK780XT, SEK160YQ + SEK100XP [P1-4,6-8 S10-11];",
             L"RM *FARE:1091,42857142857,TAX:134,285714285714,PTA:14 [P1-4,6-8 S10-11];",
             L"TU 1 PTA/FARE F SEK1000 TAX SEK120XT SEK40YQ",
             L"TU 3 PTA/FARE H SEK900 TAX SEK100XT", L"PRINT RT", L"BT RETAIN",
             L"QE 80 AT STOSK08AA"}));
}

TEST(WritingRun, ALongRemarkIsDividedAndItsPiecesStayInOneEntry) {
  const Lines entries = EntriesOfWriting(RehearseBooking("write-long-remarks"));
  ASSERT_GE(entries.size(), 5u);
  EXPECT_EQ(
      Lines(entries.begin() + 2, entries.begin() + 5),
      (Lines{L"FO 117-4012345678 STO 80246878 [P1];RM PWCT SK AT ARN TERMINAL FIVE COUNTER TWENTY "
             L"BEFORE DEPARTURE OR BY COURIER TO THE HOTEL OF THE PASSENGER IN THE OLD [P1];RM "
             L"TOWN OF STOCKHOLM [P1];",
             L"RM *THE COMPANY PAYS FOR THE FARE AND FOR ALL THE TAXES BUT NOT FOR THE FEE WHICH "
             L"THE PASSENGER HAS PAID IN CASH AT OUR [P1];RM *COUNTER YESTERDAY [P1];OP 16MAR07 "
             L"CHECK IF TICKET OK;",
             L"RM PTA TTL SEK1000/TAX SEK120XT, SEK40YQ AND NOTHING ELSE THAT THE PASSENGER WOULD "
             L"HAVE TO PAY WHEN THE TICKET IS [P1];RM COLLECTED AT THE AIRPORT + SEK250XP [P1];RM "
             L"*FARE:1160,TAX:160,PTA:250 [P1];"}));
}

TEST(WritingRun, WhatIsPrintedIsThePNRWithEverythingInIt) {
  const auto outcome = RehearseBooking("write-everything");
  ASSERT_EQ(outcome.printed.size(), 1u);
  EXPECT_TRUE(outcome.pnrAfter.starts_with(outcome.printed.front() + L"\r\nTST 1 "));
}

}  // namespace
}  // namespace run
