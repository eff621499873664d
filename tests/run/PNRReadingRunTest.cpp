#include <gtest/gtest.h>

#include "common/Text.h"
#include "tests/run/Scenes.h"

// What the run makes of a PNR: the bookings of practice/pnrs, with the agents beside them.
namespace run {
namespace {

constexpr std::wstring_view kTicketingBox =
    L"box 48 \"  PTA Script \" \"TK-element missing !\\rPlease add and restart the script.\" -> OK";

std::wstring LocatorBox() {
  return L"box 48 \"  PTA Script \" \"PNR Record Locator missing. \\rPlease do End Transaction and "
         L"restart the script.\" -> OK";
}

std::wstring MissingBox(std::wstring_view list) {
  return L"box 48 \"  PTA Script \" \"Mandatory element(s) missing!\\rPlease add elements and "
         L"restart the script.\\r\\rMissing elements are: " +
         std::wstring(list) + L"\" -> OK";
}

/// The call that names the element to be looked for.
std::wstring SearchFor(std::wstring_view code) {
  return L"ParameterBag.1.7 SetValue(\"strKeyFind()\", [\"\", \"" + std::wstring(code) + L"\"])";
}

/// The booking with an agent who does something in the dialog and leaves it.
practice::RehearsalScene SceneWithLook(const std::string& booking, std::wstring_view doing) {
  auto scene = SceneOf(booking);
  scene.agent = L"form frmPTA\n" + std::wstring(doing) + L"\nclick cmdCancel\n";
  return scene;
}

TEST(PNRReadingRun, WithoutALocatorTheRunEndsAfterItHasReadThePNR) {
  const auto outcome = RehearseBooking("no-locator");
  EXPECT_EQ(BoxesIn(outcome), Lines{LocatorBox()});
  EXPECT_EQ(outcome.EntryTexts(), Lines{L"RT"});
  EXPECT_EQ(outcome.pnrAfter, outcome.pnrBefore);
  EXPECT_EQ(CallsOf(outcome, L"PnrReader.1.24").size(), 1u);  // the FP elements are still counted
  EXPECT_EQ(CallsOf(outcome, L"PnrReader.2.17").size(), 1u);  // and the office is still read
}

TEST(PNRReadingRun, WithoutATicketingElementTheRunEndsThoughTheOfficeAsksForNothing) {
  const auto outcome = RehearseBooking("no-ticketing");
  EXPECT_EQ(BoxesIn(outcome), Lines{std::wstring(kTicketingBox)});
  EXPECT_EQ(outcome.EntryTexts(), Lines{L"RT"});
  EXPECT_EQ(CallsOf(outcome, L"PnrReader.3.7"), Lines{});
}

TEST(PNRReadingRun, TwoMissingElementsAreNamedInOneReport) {
  const auto outcome = RehearseBooking("two-elements-missing");
  EXPECT_EQ(BoxesIn(outcome), (Lines{MissingBox(L"AP, TK"), std::wstring(kTicketingBox)}));
  EXPECT_EQ(outcome.EntryTexts(), Lines{L"RT"});
  EXPECT_EQ(outcome.pnrAfter, outcome.pnrBefore);
}

TEST(PNRReadingRun, LocatorElementsAndTicketingAreReportedOneAfterTheOther) {
  auto scene = SceneOf("two-elements-missing");
  Change(scene.booking, L"TR LOCATOR ABC123\n", L"");
  scene.agent = SceneOf("no-locator").agent + scene.agent;
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_EQ(BoxesIn(outcome),
            (Lines{LocatorBox(), MissingBox(L"AP, TK"), std::wstring(kTicketingBox)}));
  EXPECT_EQ(outcome.EntryTexts(), Lines{L"RT"});
}

TEST(PNRReadingRun, AnEmptyPieceEndsTheListOfWantedElements) {
  const auto outcome = RehearseBooking("empty-piece");
  EXPECT_EQ(BoxesIn(outcome), Lines{});
  EXPECT_TRUE(Holds(outcome.calls, SearchFor(L"AP")));
  EXPECT_FALSE(Holds(outcome.calls, SearchFor(L"FS")));
  EXPECT_EQ(outcome.EntryTexts().back(), L"QE 80 AT STOSK08AA");
}

TEST(PNRReadingRun, TheSameListWithoutTheEmptyPieceStopsTheRun) {
  auto scene = SceneOf("empty-piece");
  SetIni(scene, L"MandatoryElements", L"AP,FS");
  scene.agent =
      LR"(box ok "Mandatory element(s) missing!\rPlease add elements and restart the script.\r\rMissing elements are: FS")";
  EXPECT_EQ(RehearseInAgreement(scene).EntryTexts(), Lines{L"RT"});
}

TEST(PNRReadingRun, ABlankInTheListOfWantedElementsBelongsToThePiece) {
  auto scene = SceneOf("ordinary");
  SetIni(scene, L"MandatoryElements", L"AP, TK");
  scene.agent =
      LR"(box ok "Mandatory element(s) missing!\rPlease add elements and restart the script.\r\rMissing elements are:  TK")";
  EXPECT_EQ(RehearseInAgreement(scene).EntryTexts(), Lines{L"RT"});
}

TEST(PNRReadingRun, AnOpenFirstSegmentIsWhereTheTripBegins) {
  const auto outcome = RehearseBooking("open-segment");
  EXPECT_EQ(CallsOf(outcome, L"PnrReader.2.7").size(), 1u);
  EXPECT_TRUE(
      Holds(outcome.calls,
            LR"(ParameterBag.1.8 GetValue("strKeySegment") -> "2 SG SK OPEN Y 15MAR07 ARN CPH")"));
  EXPECT_TRUE(Holds(outcome.calls, LR"(ParameterBag.1.8 GetValue("strKeyDepCity") -> "ARN")"));
  EXPECT_TRUE(Holds(outcome.calls, LR"(ParameterBag.1.8 GetValue("strKeyArrCity") -> "CPH")"));
  EXPECT_EQ(EntriesBeforeWriting(outcome), ReadingEntries());
  EXPECT_TRUE(Holds(LinesAdded(outcome), L"OP 16MAR07 CHECK IF TICKET OK"));
}

TEST(PNRReadingRun, WithoutSegmentsNoneIsReadAndTheDayAfterDepartureIsReported) {
  const auto outcome = RehearseBooking("no-segments");
  EXPECT_EQ(CallsOf(outcome, L"PnrReader.2.7"), Lines{});
  EXPECT_EQ(BoxesIn(outcome),
            (Lines{L"box 16 \"  PTA Script \" \"Error adding day!\" -> OK",
                   L"box 0 \"  PTA Script \" \"Warning: The Ticketing Airline varies in the TST's "
                   L"and/or does not match first Airline in the TST(s) selected !\" -> OK"}));
  EXPECT_EQ(EntriesOfWriting(outcome),
            (Lines{L"CH 3 OK/STOSK08AA", L"CH 5 O/PT/CASH",
                   L"FO 117-4012345678 STO 80246878 [P1];RM PWCT SK AT  A/P BEFORE DEPARTURE "
                   L"[P1];RM PTA TTL SEK1000/TAX SEK120XT, SEK40YQ + SEK250XP [P1];RM "
                   L"*FARE:1160,TAX:160,PTA:250 [P1];",
                   L"PRINT RT", L"BT RETAIN", L"QE 80 AT STOSK08AA"}));
}

// The follow-up is left out; the TST without a date is refused, and the run goes on behind it.
TEST(PNRReadingRun, WithoutSegmentsAnAgentWhoTakesNothingBackIsToldWhatCouldNotBeDone) {
  auto scene = SceneOf("no-segments");
  Change(scene.agent, L"click chkOP\nclick chkTSTNoUpdate\n", L"");
  scene.agent +=
      LR"(box ok "Error adding day!" 16 "  PTA Script "
box ok "Error when updating the TST Record!\r\rCorvane Central System gave an incorrect response to the last transaction.\rPlease verify the response given and correct if possible, or contact your help desk. \rThe program can not continue." 48 "  PTA Script "
)";
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_TRUE(Holds(outcome.EntryTexts(), L"TU 1 PTA/FARE F SEK1000 TAX SEK120XT SEK40YQ/NVA "));
  EXPECT_EQ(NewElements(outcome).size(), 4u);
  EXPECT_EQ(outcome.EntryTexts().back(), L"QE 80 AT STOSK08AA");
}

TEST(PNRReadingRun, ElevenNamesAndTwoInfantsAreCountedAndAssociatedByTheirNumbers) {
  const auto outcome = RehearseBooking("many-names");
  EXPECT_TRUE(Holds(outcome.seen, L"     1        1-11     CASH                      12-13"));
  EXPECT_TRUE(Holds(outcome.seen, L"     2        2,7      CASH                      12-13"));
  // All of them for each of the two fares.
  EXPECT_EQ(CallsOf(outcome, L"PnrReader.2.15").size(), 22u);
  EXPECT_EQ(NewElements(outcome),
            (Lines{L"FO 117-4012345678 STO 80246878 [PAX P1-11 S12-13]",
                   L"FO 117-4012345678 STO 80246878 [INF P2,7 S12-13]",
                   L"RM PWCT SK AT ARN A/P BEFORE DEPARTURE [P1-11 S12-13]",
                   L"OP 16MAR07 CHECK IF TICKET OK",
                   // 11 x SEK1000 and 2 x SEK90; 11 x SEK116 and 2 x SEK12
                   L"RM PTA TTL SEK11180/TAX SEK1300XT + SEK260XP [P1-11 S12-13]",
                   // a thirteenth of SEK12480, SEK1300 and 260
                   L"RM *FARE:960,TAX:100,PTA:20 [P1-11 S12-13]"}));
  EXPECT_EQ(LinesGone(outcome), (Lines{L"TK TL 10MAR07", L"FP CASH"}));
}

TEST(PNRReadingRun, TheTSTsOfManyNamesAreWrittenBackAsOneNamePays) {
  const Lines entries = RehearseBooking("many-names").EntryTexts();
  EXPECT_TRUE(Holds(entries, L"TU 1 PTA/FARE F SEK1000 TAX SEK116XT/NVA 15MAR07"));
  EXPECT_TRUE(Holds(entries, L"TU 2 PTA/FARE F SEK90 TAX SEK12XT/NVA 15MAR07"));
}

TEST(PNRReadingRun, AFollowUpOnTheDayAfterDepartureTakesTheDialogsBack) {
  const auto outcome = RehearseBooking("follow-up-there");
  EXPECT_EQ(CallsOf(outcome, L"PnrReader.2.26").size(), 2u);
  for (const std::wstring& element : NewElements(outcome)) {
    EXPECT_FALSE(element.starts_with(L"OP ")) << common::ToUtf8(element);
  }
  // What the dialog shows when it is confirmed is what is kept.
  EXPECT_TRUE(common::Contains(outcome.iniAfter, L"\nOPElement=No\n"));
}

TEST(PNRReadingRun, AFollowUpOnAnotherDayLeavesTheDialogsAlone) {
  auto scene = SceneWithLook("follow-up-there", L"state chkOP ticked\nstate txtOPText not-off");
  Change(scene.booking, L"OP 16MAR07", L"OP 17MAR07");
  RehearseInAgreement(scene);
}

TEST(PNRReadingRun, TheDayAfterDepartureCountsAnywhereInAFollowUp) {
  auto scene = SceneWithLook("follow-up-there", L"state chkOP not-ticked\nstate chkOP off");
  Change(scene.booking, L"OP 16MAR07 CHECK", L"OP 17MAR07 AFTER 16MAR07 CHECK");
  RehearseInAgreement(scene);
}

}  // namespace
}  // namespace run
