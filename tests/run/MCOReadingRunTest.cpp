#include <gtest/gtest.h>

#include "common/Text.h"
#include "tests/run/Scenes.h"

// The airline of the MCO, and the fare elements of the chosen fares.
namespace run {
namespace {

const Lines kUntilMCO = {L"RT", L"IR", L"RT", L"TQT", L"TQM RT"};

class AirlineMappedToLH : public testing::TestWithParam<const char*> {};

TEST_P(AirlineMappedToLH, IsWrittenEverywhereAndItsOfficeAsked) {
  const auto outcome = RehearseBooking(GetParam());
  EXPECT_EQ(EntriesOfWriting(outcome),
            (Lines{L"CH 5 OK/FRALH0123", L"CH 9 LH", L"CH 7 O/PT/CASHAGT",
                   L"FO 117-4012345678 STO 80246878 [P1];RM PWCT LH AT  A/P BEFORE DEPARTURE "
                   L"[P1];OP 16MAR07 CHECK IF TICKET OK;RM PTA TTL SEK1000/TAX SEK120XT, SEK40YQ "
                   L"+ SEK250XP [P1];RM PLS ACK PTA FROM ARNAG2100 TO FRALH0123 [P1];",
                   L"RM *FARE:1160,TAX:160,PTA:250 [P1];",
                   L"TU 1 PTA/FARE F SEK1000 TAX SEK120XT SEK40YQ/NVA 15MAR07", L"PRINT RT",
                   L"BT RETAIN", L"QE 80 AT FRALH0123"}));
  EXPECT_TRUE(Holds(LinesAdded(outcome), L"FV LH"));
  EXPECT_TRUE(Holds(LinesGone(outcome), L"FV SK"));
}

INSTANTIATE_TEST_SUITE_P(AirlineRun, AirlineMappedToLH,
                         testing::Values("airline-by-office", "airline-by-fixed-section"));

TEST(AirlineRun, TheOfficesOwnExceptionWinsAndIsNotLookedUpAgain) {
  const auto outcome = RehearseBooking("airline-by-both");
  EXPECT_TRUE(Holds(LinesAdded(outcome), L"FV KL"));
  EXPECT_EQ(outcome.EntryTexts().back(), L"QE 80 AT STOKL08AA");
}

TEST(AirlineRun, ACodeInsideALongerEntryIsNotValid) {
  const auto outcome = RehearseBooking("airline-not-valid");
  EXPECT_EQ(BoxesIn(outcome), Lines{L"box 48 \"  PTA Script \" \"Airline is not valid for MCO. The "
                                    L"script will terminate.\" -> OK"});
  EXPECT_EQ(outcome.EntryTexts(), kUntilMCO);
  EXPECT_EQ(outcome.pnrAfter, outcome.pnrBefore);
}

TEST(AirlineRun, ACodeThatIsNotInTheListIsValid) {
  auto scene = SceneOf("airline-not-valid");
  Change(scene.booking, L"MCO KL,", L"MCO KS,");
  scene.agent = L"form frmPTA\nsee txtCarrier \"KS\"\nclick cmdCancel\n";
  RehearseInAgreement(scene);
}

TEST(AirlineRun, TheListIsHeldAgainstTheAirlineThatReplacesTheOther) {
  auto scene = SceneOf("airline-by-office");
  SetIni(scene, L"AirlinesNotValid", L"LH");
  scene.agent = SceneOf("airline-not-valid").agent;
  EXPECT_EQ(RehearseInAgreement(scene).EntryTexts(), kUntilMCO);
}

TEST(AirlineRun, AnAirlineThatIsReplacedMayBeInTheList) {
  auto scene = SceneOf("airline-by-office");
  SetIni(scene, L"AirlinesNotValid", L"SK");
  EXPECT_EQ(RehearseInAgreement(scene).EntryTexts().back(), L"QE 80 AT FRALH0123");
}

TEST(AirlineRun, AnMCOWithoutAirlineIsNeverInTheListAndTakesTheFaresCarrier) {
  auto scene = SceneOf("airline-not-valid");
  Change(scene.booking, L"MCO KL,", L"MCO --,");
  scene.agent =
      L"form frmPTA\nsee txtCarrier \"SK\"\nsee txtPWCT \"SK AT  A/P BEFORE DEPARTURE\"\n"
      L"click cmdOK\n";
  EXPECT_EQ(RehearseInAgreement(scene).EntryTexts().back(), L"QE 80 AT STOSK08AA");
}

TEST(AirlineRun, WithoutACarrierInTheFareItIsThatOfTheFirstFlight) {
  auto scene = SceneOf("airline-not-valid");
  Change(scene.booking, L"MCO KL,", L"MCO --,");
  Change(scene.booking, L"\nFV SK\n", L"\n");
  scene.agent = L"form frmPTA\nsee txtCarrier \"SK\"\nclick cmdOK\n";
  EXPECT_TRUE(Holds(NewElements(RehearseInAgreement(scene)), L"FV SK [P1]"));
}

TEST(FareElementsRun, TheFareElementsStayAndTheRunGoesOnToItsEnd) {
  const auto outcome = RehearseBooking("fare-elements");
  // Three elements, for each of the two fares.
  EXPECT_EQ(CallsOf(outcome, L"PnrReader.1.44").size(), 2u);
  EXPECT_TRUE(Holds(outcome.calls, LR"(ParameterBag.1.8 GetValue("strKeyPasAsso") -> "INF1")"));
  EXPECT_EQ(LinesGone(outcome), (Lines{L"TK TL 10MAR07", L"FP CASH"}));
  EXPECT_EQ(
      NewElements(outcome),
      (Lines{L"FO 117-4012345678 STO 80246878 [PAX P1 S3-4]",
             L"FO 117-4012345678 STO 80246878 [INF P1 S3-4]",
             L"RM PWCT SK AT ARN A/P BEFORE DEPARTURE [P1 S3-4]", L"OP 16MAR07 CHECK IF TICKET OK",
             L"RM PTA TTL SEK1100/TAX SEK120XT, SEK40YQ + SEK250XP [P1 S3-4]",
             L"RM *FARE:630,TAX:80,PTA:125 [P1 S3-4]"}));
}

// Net fares are added and shown nowhere; two that are too large for a sum show whose they are.
struct LargeNetFares {
  const char* name;
  const wchar_t* adults;
  const wchar_t* infant;
  bool bothCount;
};
class FareElements : public testing::TestWithParam<LargeNetFares> {};

TEST_P(FareElements, CountForTheFaresOfTheirPassengers) {
  auto scene = SceneOf("fare-elements");
  Change(scene.booking, L"[PAX P1 S3-4]", L"[PAX P1-2 S3-4]");
  Change(scene.booking, L"FS NET 800 SELL SEK950 TOUR IT7SK1 [PAX P1]",
         L"FS NET 999999999" + std::wstring(GetParam().adults));
  Change(scene.booking, L"FS NET 80 SELL 95 TOUR IT7SK3 [INF P1]",
         L"FS NET SEK999999999" + std::wstring(GetParam().infant));
  const std::size_t dialog = scene.agent.find(L"form frmPTA");
  scene.agent.erase(dialog);
  scene.agent += GetParam().bothCount ? L"box ok \"Error adding TST values!\" 16 \"  PTA Script \""
                                      : L"form frmPTA\nclick cmdCancel";
  RehearseInAgreement(scene);
}

INSTANTIATE_TEST_SUITE_P(
    FareElementsRun, FareElements,
    testing::Values(LargeNetFares{"BothForTheirPassengers", L" [PAX P1-2]", L" [INF P1]", true},
                    LargeNetFares{"AnyInfant", L" [P1-2]", L" [INF]", true},
                    LargeNetFares{"TheSegmentsToo", L" [P1-2 S3-4]", L" [INF P1 S3-4]", true},
                    LargeNetFares{"NotForOneOfTwoAdults", L" [P1]", L" [INF P1]", false},
                    LargeNetFares{"NotForOtherSegments", L" [P1-2 S3]", L" [INF P1]", false},
                    LargeNetFares{"NotAnAdultsForAnInfant", L" [P1-2]", L" [P2]", false},
                    LargeNetFares{"NotForOtherSegmentsOfTheInfant", L" [P1-2]", L" [INF P1 S4]",
                                  false}),
    [](const auto& shown) { return shown.param.name; });

TEST(FareElementsRun, AnElementOfInfantsIsNoneOfTheAdultWhoStandsInItsList) {
  auto scene = SceneOf("fare-elements");
  Change(scene.booking, L"NM SMITH/JOHN MR", L"NM SMITH/JANE MRS(INFSMITH/TINY)");
  Change(scene.booking, L"SALES SITI [PAX P1 S3-4]", L"SALES SITI [PAX P2 S3-4]");
  Change(scene.booking, L"SALES SITI [INF P1 S3-4]", L"SALES SITI [INF P1-2 S3-4]");
  // Twice for the two infants it can be kept; once more for the adult it would be too large.
  Change(scene.booking, L"FS NET 80 SELL 95 TOUR IT7SK3 [INF P1]", L"FS NET 999999999 [INF P1-2]");
  Change(scene.agent, L"see txtPTA \"SEK1100/", L"see txtPTA \"SEK1200/");
  RehearseInAgreement(scene);
}

}  // namespace
}  // namespace run
