#include <gtest/gtest.h>

#include "tests/pnr/ChecksBench.h"

namespace pnr {
namespace {

/// The action that one remark alone gives; "none" when it is not taken.
std::wstring ActionOf(const std::wstring& remark) {
  ChecksBench bench;
  bench.pnr.strRMPWCTAction = L"none";
  bench.HasRemarks({{remark, L"", L"7"}});
  bench.room.GetPWCTInformation();
  return bench.pnr.strRMPWCTAction;
}

TEST(GetPWCTInformation, AsksTheLibraryInThisExactOrderAndStopsAtTheFirstOneTaken) {
  ChecksBench bench;
  bench.HasRemarks({{L"CALL AGENT", L"2", L"6"}, {L"PWCT REISSUE", L"", L"7"}, {L"X", L"", L"8"}});
  bench.room.GetPWCTInformation();
  EXPECT_EQ(bench.TakeCalls(), Together({
                                   Call(L"PnrReader.1.25 CountRMElements() -> 3"),
                                   Put(L"intKeyIndex", L"0"),
                                   Call(L"PnrReader.2.18 GetRMElement(<ParameterBag>)"),
                                   Read(L"strKeyText", L"CALL AGENT"),
                                   Read(L"strKeySegAsso", L"2"),
                                   Put(L"intKeyIndex", L"1"),
                                   Call(L"PnrReader.2.18 GetRMElement(<ParameterBag>)"),
                                   Read(L"strKeyText", L"PWCT REISSUE"),
                                   Read(L"strKeySegAsso", L""),
                                   Read(L"strKeyElementNr", L"7"),
                               }));
}

TEST(GetPWCTInformation, ThePWCTRemarkGivesNumberAndActionAndNothingBesides) {
  ChecksBench bench;
  bench.HasRemarks({{L"PWCT REISSUE", L"", L"7"}});
  bench.room.GetPWCTInformation();
  PNRInfo pnr;
  pnr.strRMPWCTNumber = L"7";
  pnr.strRMPWCTAction = L"REISSUE";
  EXPECT_EQ(Fields(bench.pnr), Fields(pnr));
}

TEST(GetPWCTInformation, WithoutRemarksOnlyTheCountIsAsked) {
  ChecksBench bench;
  bench.room.GetPWCTInformation();
  EXPECT_EQ(bench.TakeCalls(), Call(L"PnrReader.1.25 CountRMElements() -> 0"));
}

TEST(GetPWCTInformation, AnElementNumberThatIsNoTextIsReadAsText) {
  ChecksBench bench;
  bench.Has(reader::kCountRMElements, reader::kGetRMElement,
            {{{L"strKeyText", L"PWCT X"}, {L"strKeyElementNr", std::int16_t{9}}}});
  bench.room.GetPWCTInformation();
  EXPECT_EQ(bench.pnr.strRMPWCTNumber, L"9");
}

TEST(GetPWCTInformation, LeadingBlanksLeaveTheEndOfTheWordInTheAction) {
  EXPECT_EQ(ActionOf(L" PWCT REISSUE"), L"T REISSUE");
  EXPECT_EQ(ActionOf(L"  PWCT REISSUE"), L"CT REISSUE");
  EXPECT_EQ(ActionOf(L"    PWCT REISSUE"), L"PWCT REISSUE");
}

TEST(GetPWCTInformation, TheActionIsTrimmed) {
  EXPECT_EQ(ActionOf(L"PWCT   SK AT ARN  "), L"SK AT ARN");
}

TEST(GetPWCTInformation, TheWordNeedsNoBlankBehindIt) {
  EXPECT_EQ(ActionOf(L"PWCTREISSUE"), L"REISSUE");
  EXPECT_EQ(ActionOf(L"PWCT"), L"");
}

TEST(GetPWCTInformation, ARemarkInLowerCaseIsNoPWCTRemark) {
  EXPECT_EQ(ActionOf(L"pwct REISSUE"), L"none");
}

TEST(GetPWCTInformation, ARemarkThatOnlyContainsTheWordIsNoPWCTRemark) {
  EXPECT_EQ(ActionOf(L"SEE PWCT"), L"none");
  EXPECT_EQ(ActionOf(L"PWC"), L"none");
}

TEST(GetPWCTInformation, ARemarkOfOtherSegmentsIsPassedOverForALaterOneOfNone) {
  ChecksBench bench;
  bench.mco.strSegAsso = L"2,3";
  bench.HasRemarks({{L"PWCT OTHER", L"4", L"7"}, {L"PWCT MINE", L"", L"8"}});
  bench.room.GetPWCTInformation();
  EXPECT_EQ(bench.pnr.strRMPWCTNumber, L"8");
  EXPECT_EQ(bench.pnr.strRMPWCTAction, L"MINE");
}

TEST(GetPWCTInformation, ARemarkOfTheMCOsSegmentsIsTaken) {
  ChecksBench bench;
  bench.mco.strSegAsso = L"2,3";
  bench.HasRemarks({{L"PWCT OTHER", L"2", L"7"}, {L"PWCT MINE", L"2,3", L"8"}});
  bench.room.GetPWCTInformation();
  EXPECT_EQ(bench.pnr.strRMPWCTNumber, L"8");
}

TEST(GetPWCTInformation, AnMCOWithoutSegmentsTakesTheFirstPWCTRemark) {
  ChecksBench bench;
  bench.HasRemarks({{L"PWCT FIRST", L"4", L"7"}, {L"PWCT SECOND", L"", L"8"}});
  bench.room.GetPWCTInformation();
  EXPECT_EQ(bench.pnr.strRMPWCTNumber, L"7");
  EXPECT_EQ(bench.pnr.strRMPWCTAction, L"FIRST");
}

TEST(GetPWCTInformation, OfTwoThatAreTakenTheFirstCounts) {
  ChecksBench bench;
  bench.mco.strSegAsso = L"2";
  bench.HasRemarks({{L"PWCT ANY", L"", L"7"}, {L"PWCT EXACT", L"2", L"8"}});
  bench.room.GetPWCTInformation();
  EXPECT_EQ(bench.pnr.strRMPWCTAction, L"ANY");
}

TEST(GetPWCTInformation, WhenNoneIsTakenBothFieldsKeepTheirValues) {
  ChecksBench bench;
  bench.pnr.strRMPWCTNumber = L"3";
  bench.pnr.strRMPWCTAction = L"BEFORE";
  bench.mco.strSegAsso = L"2";
  bench.HasRemarks({{L"PWCT OTHER", L"4", L"7"}, {L"CALL AGENT", L"", L"8"}});
  bench.room.GetPWCTInformation();
  EXPECT_EQ(bench.pnr.strRMPWCTNumber, L"3");
  EXPECT_EQ(bench.pnr.strRMPWCTAction, L"BEFORE");
}

TEST(GetPWCTInformation, AnOwnFailureShowsTheOwnTextAndTheRunGoesOn) {
  ChecksBench bench;
  bench.scripted.Answer(reader::kCountRMElements, L"many");
  bench.room.GetPWCTInformation();
  EXPECT_EQ(OnlyReports(bench.TakeCalls()),
            OwnFailure(32, L"Error when getting the PWCT info!", 16));
  EXPECT_FALSE(bench.stop.isSet);
}

TEST(GetPWCTInformation, AFailureOfTheLibraryIsReportedByTheLibrary) {
  ChecksBench bench;
  bench.scripted.Answer(reader::kCountRMElements, std::int16_t{1});
  bench.scripted.Fail(reader::kGetRMElement, 81, L"remark broken");
  bench.room.GetPWCTInformation();
  EXPECT_EQ(OnlyReports(bench.TakeCalls()), LibraryFailure(81));
  EXPECT_FALSE(bench.stop.isSet);
}

}  // namespace
}  // namespace pnr
