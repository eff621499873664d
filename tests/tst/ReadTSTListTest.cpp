#include "tests/tst/SelectionBench.h"

namespace tst {
namespace {

namespace operations = hostlib::operations;

const std::wstring kNoTST =
    L"48 The PNR contains no active TST.\rMake sure there is a TST record available and restart "
    L"the script.";
const Lines kListSent = {L"TerminalSession.1.11 SendEntry(\"TQT\")",
                         L"TerminalSession.1.15 SendDisplay(\"TQT\")"};

TEST(ReadTSTList, TheOrdinaryBookingIsReadCallByCall) {
  SelectionBench bench;
  bench.HasOneTST({});
  bench.pnr.strOrigin = L"ARN";
  bench.pnr.strDestination = L"CPH";
  bench.mco.strAirlineCode = L"SK";
  bench.mco.strFormOfPayment = L"CASH";
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.TakeWay(),
            (Lines{
                L"TstListRequest.1.7 BuildListCommand() -> \"TQT\"",
                L"TerminalSession.1.11 SendEntry(\"TQT\") -> \"DONE\"",
                L"TstListRequest.1.9 BuildDisplayCommand(<ParameterBag>) -> \"TQT\"",
                L"TerminalSession.1.15 SendDisplay(\"TQT\") -> \"TQT SHOWN\"",
                L"TstListRequest.1.10 ReadResponse(\"TQT SHOWN\") -> <ParameterBag>",
                L"<-blnKeyTST flag True",
                L"<-blnKeyTSTList flag False",
                L"<-intKeyNoOfTST text \"\"",
                L"<-strKeyTSTNum text \"1\"",
                L"<-strKeyTSTSegment() Empty",
                L"TstDetailRequest.1.10 ReadNames(<ParameterBag>, \"TQT SHOWN\")",
                L"<-strKeyTSTNames text \"1.SMITH/JOHN MR\"",
                L"TstDetailRequest.1.9 ReadGeneral(<ParameterBag>, \"TQT SHOWN\")",
                L"<-strKeyFirstTravelDate text \"15MAR07\"",
                L"<-strKeyFirstFlightNo text \"SK1234\"",
                L"<-strKeyNotValidAfter text \"\"",
                L"<-strKeyItinerary text \"ARNCPHARN\"",
                L"<-strKeyAllFareBasis text \"YRT\"",
                L"TstDetailRequest.1.7 ReadFare(<ParameterBag>, \"TQT SHOWN\")",
                L"<-strKeyTSTNum text \"1\"",
                L"<-strKeyFare text \"SEK1000\"",
                L"<-strKeyFareIndicator text \"F\"",
                L"<-strKeyEquivFare text \"\"",
                L"<-strKeyXFTax text \"\"",
                L"<-strKeyTotalFare text \"SEK1160\"",
                L"<-strKeyFareCalc text \"STO SK CPH\"",
                L"<-blnKeyReissue flag False",
                L"<-strKeySalesIndicator text \"SITI\"",
                L"<-strKeyTaxArray() [\"SEK120XT\", \"SEK40YQ\"]",
                L"TstDetailRequest.1.8 ReadFareElements(<ParameterBag>, \"TQT SHOWN\")",
                L"<-intKeyFMElementNumber text \"10\"",
                L"<-strKeyFMElementValue text \"10\"",
                L"<-intKeyFPElementNumber text \"11\"",
                L"<-strKeyFPElementValue text \"CASH\"",
                L"<-intKeyFVElementNumber text \"12\"",
                L"<-strKeyFVElementValue text \"SK\"",
                L"PnrReader.1.27 CountNameElements() -> 1",
                L"intKeyIndex=0",
                L"PnrReader.2.15 GetNameElement(<ParameterBag>)",
                L"<-strKeyElement text \"1.SMITH/JOHN MR\"",
                L"<-strKeyElementNr text \"1\"",
                L"PnrReader.1.44 CountFSElements() -> 0",
                L"ScriptGlobal.1.22 FormatAssociation(\"1\") -> \"1\"",
            }));
}

TEST(ReadTSTList, TheOrdinaryBookingFillsTheRecords) {
  SelectionBench bench;
  bench.HasOneTST({});
  bench.pnr.strOrigin = L"ARN";
  bench.pnr.strDestination = L"CPH";
  bench.mco.strAirlineCode = L"SK";
  bench.mco.strFormOfPayment = L"CASH";
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.mco.strFlightInfo, L"SK1234 15MAR07 ARN CPH");
  EXPECT_EQ(bench.mco.strFare, L"SEK1000");
  EXPECT_EQ(bench.mco.strTotalFare, L"SEK1160");
  EXPECT_EQ(bench.mco.strTaxList, L"SEK120XT;SEK40YQ");
  EXPECT_EQ(bench.mco.strCurrency, L"SEK");
  EXPECT_EQ(bench.mco.strPasAsso, L"1");
  EXPECT_EQ(bench.mco.strSegAsso, L"");
  EXPECT_TRUE(bench.mco.blnAllTSTs);
  EXPECT_FALSE(bench.mco.blnMultTST);
  EXPECT_EQ(bench.general.strOriginCity, L"STO");
  EXPECT_EQ(bench.general.strOriginAirport, L"");
  EXPECT_EQ(bench.general.strSegAsso, L"");
  EXPECT_EQ(bench.totals.strTotalFareFirstTST, L"SEK1160");
  EXPECT_EQ(bench.Filed(), Lines{L"1"});
  EXPECT_EQ(bench.room.SelectedTSTNumbers(), L"1");
  EXPECT_EQ(bench.desktop.log, Lines{});
  EXPECT_FALSE(bench.stop.isSet);
}

TEST(ReadTSTList, StartsByForgettingWhatWasKnownOfTSTs) {
  SelectionBench bench;
  bench.HasOneTST({.fm = L"", .fv = L""});
  bench.mco.blnInf = true;
  bench.pnr.blnFVExists = true;
  bench.pnr.blnFMExists = true;
  bench.pnr.blnFPExists = true;
  bench.room.ReadTSTList();
  EXPECT_FALSE(bench.mco.blnInf);
  EXPECT_FALSE(bench.pnr.blnFVExists);
  EXPECT_FALSE(bench.pnr.blnFMExists);
  EXPECT_TRUE(bench.pnr.blnFPExists);
}

TEST(ReadTSTList, ADirectDisplayLeavesMultTSTFalse) {
  SelectionBench bench;
  bench.HasOneTST({});
  bench.mco.blnMultTST = true;
  bench.room.ReadTSTList();
  EXPECT_FALSE(bench.mco.blnMultTST);
}

TEST(ReadTSTList, AListOfOneIsFetchedByNumberWithoutTheDialog) {
  SelectionBench bench;
  bench.HasList({{.number = L"7"}});
  bench.room.ReadTSTList();
  Lines sent = kListSent;
  sent.push_back(L"TerminalSession.1.15 SendDisplay(\"TQT/T7\")");
  EXPECT_EQ(bench.Sent(), sent);
  EXPECT_EQ(bench.desktop.log, Lines{});
  EXPECT_EQ(bench.Filed(), Lines{L"7"});
  EXPECT_FALSE(bench.mco.blnMultTST);
  EXPECT_EQ(bench.room.SelectedTSTNumbers(), L"7");
  EXPECT_EQ(bench.room.CurrentResponse(), L"TQT/T7 SHOWN");
  EXPECT_EQ(bench.mco.strSegAsso, L"");
}

TEST(ReadTSTList, TheRowsOfTheListAreReadOneByOne) {
  SelectionBench bench;
  bench.HasList({{.number = L"7", .persons = L"2"}});
  bench.room.ReadTSTList();
  const Lines way = bench.TakeWay();
  const auto from = std::ranges::find(way, L"<-blnKeyTST flag True");
  EXPECT_EQ(Lines(from, from + 15),
            (Lines{
                L"<-blnKeyTST flag True",
                L"<-blnKeyTSTList flag True",
                L"<-intKeyNoOfTST text \"1\"",
                L"<-strKeyTSTNum text \"\"",
                L"<-strKeyTSTSegment() [\"2-3\"] from 1",
                L"<-strKeyTSTSegment() [\"2-3\"] from 1",
                L"<-strKeyPersonNbrArray() [\"2\"] from 1",
                L"<-strKeyTSTNumArray() [\"7\"] from 1",
                L"<-strKeyFOPArray() [\"CASH\"] from 1",
                L"strKeyTSTNum=\"7\"",
                L"TstListRequest.1.9 BuildDisplayCommand(<ParameterBag>) -> \"TQT/T7\"",
                L"TerminalSession.1.15 SendDisplay(\"TQT/T7\") -> \"TQT/T7 SHOWN\"",
                L"TstListRequest.1.10 ReadResponse(\"TQT/T7 SHOWN\") -> <ParameterBag>",
                L"<-blnKeyTSTList flag False",
                L"<-strKeyTSTNum text \"7\"",
            }));
}

TEST(ReadTSTList, TheTSTOfAListOfOneCountsAsFoundWhateverItsDisplaySays) {
  SelectionBench bench;
  bench.HasList({{.number = L"1"}});
  bench.Answers(L"TQT/T1 SHOWN", bench.scripted.Bag({{L"blnKeyTST", false}}));
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.ReportedBoxes(), Lines{});
  EXPECT_EQ(bench.Filed(), Lines{L"1"});
}

TEST(ReadTSTList, AListOfOneThatStaysAListReadsNothing) {
  SelectionBench bench;
  bench.HasList({{.number = L"1"}});
  bench.Answers(L"TQT/T1 SHOWN", bench.scripted.Bag({{L"blnKeyTSTList", true}}));
  bench.room.ReadTSTList();
  EXPECT_TRUE(bench.mco.blnMultTST);
  EXPECT_EQ(bench.Filed(), Lines{});
  EXPECT_EQ(bench.desktop.log, Lines{});
  EXPECT_EQ(bench.ReportedBoxes(), Lines{});
  EXPECT_EQ(bench.mco.strFlightInfo, L"   ");
}

TEST(ReadTSTList, AListThatCountsNothingReadsNothing) {
  SelectionBench bench;
  bench.Answers(L"TQT SHOWN", bench.scripted.Bag({{L"blnKeyTSTList", true}}));
  bench.room.ReadTSTList();
  EXPECT_TRUE(bench.mco.blnMultTST);
  EXPECT_EQ(bench.Sent(), kListSent);
  EXPECT_EQ(bench.ReportedBoxes(), Lines{});
}

TEST(ReadTSTList, TwoTSTsAlwaysShowTheDialog) {
  SelectionBench bench;
  bench.HasList({{.number = L"1"}, {.number = L"2"}});
  bench.AgentPicks({0});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.desktop.log,
            (Lines{L"modal frmSelectTST", L"close frmSelectTST", L"show frmWorking"}));
  EXPECT_TRUE(bench.mco.blnMultTST);
}

TEST(ReadTSTList, ThePickedTSTsAreDisplayedAndReadInListOrder) {
  SelectionBench bench;
  bench.HasList({{.number = L"1"}, {.number = L"2", .segment = L"4"}, {.number = L"3"}});
  bench.AgentPicks({2, 0});
  bench.room.ReadTSTList();
  Lines sent = kListSent;
  sent.push_back(L"TerminalSession.1.15 SendDisplay(\"TQT/T1\")");
  sent.push_back(L"TerminalSession.1.15 SendDisplay(\"TQT/T3\")");
  EXPECT_EQ(bench.Sent(), sent);
  EXPECT_EQ(bench.Filed(), (Lines{L"1", L"3"}));
  EXPECT_EQ(bench.room.SelectedTSTNumbers(), L"1,3");
  EXPECT_EQ(bench.room.SelectedTSTArray(), (Lines{L"1", L"3"}));
  EXPECT_EQ(bench.mco.strSegAsso, L"2-3");
  EXPECT_EQ(bench.general.strSegAsso, L"2-3");
}

TEST(ReadTSTList, TheDisplayOfAPickedTSTIsNotReadAsAList) {
  SelectionBench bench;
  bench.HasList({{.number = L"1"}, {.number = L"2"}});
  bench.AgentPicks({0, 1});
  bench.room.ReadTSTList();
  const Lines way = bench.TakeWay();
  EXPECT_EQ(std::ranges::count_if(
                way, [](const auto& line) { return line.starts_with(L"TstListRequest.1.10"); }),
            1);
}

TEST(ReadTSTList, TwentyTSTsAreReadInOrder) {
  SelectionBench bench;
  std::vector<ListedTST> rows;
  std::vector<int> picked;
  Lines numbers;
  for (int i = 1; i <= 20; ++i) {
    rows.push_back({.number = std::to_wstring(i), .persons = std::to_wstring(i)});
    picked.push_back(i - 1);
    numbers.push_back(std::to_wstring(i));
  }
  bench.HasList(rows);
  bench.AgentPicks(picked);
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.Filed(), numbers);
  EXPECT_EQ(bench.mco.strFare, L"SEK20000");
  EXPECT_EQ(bench.totals.strTotalFareFirstTST, L"SEK1160");
  EXPECT_EQ(bench.totals.strTotalFareLastTSTs, L"SEK22040");
}

TEST(ReadTSTList, RowsWithoutSegmentsAreNotRead) {
  SelectionBench bench;
  bench.HasList({{.number = L"1", .segment = L""}, {.number = L"2", .segment = L""}});
  bench.AgentPicks({0, 1});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.Filed(), Lines{});
  EXPECT_EQ(bench.Sent(), kListSent);
  EXPECT_EQ(bench.ReportedBoxes(), Lines{});
  EXPECT_EQ(bench.room.SelectedTSTNumbers(), L"1,2");
}

TEST(ReadTSTList, ARowOfOtherSegmentsThanTheFirstOnesIsPassedOver) {
  // Alike in the six characters that the dialog compares.
  SelectionBench bench;
  bench.HasList({{.number = L"1", .segment = L"2,3,4,5"},
                 {.number = L"2", .segment = L"2,3,4,6"},
                 {.number = L"3", .segment = L"2,3,4,5"}});
  bench.AgentPicks({0, 1, 2});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.Filed(), (Lines{L"1", L"3"}));
  EXPECT_EQ(bench.mco.strSegAsso, L"2,3,4,5");
}

TEST(ReadTSTList, ASegmentAssociationThatIsThereAlreadyDecides) {
  SelectionBench bench;
  bench.HasList({{.number = L"1"}, {.number = L"2"}});
  bench.mco.strSegAsso = L"9";
  bench.AgentPicks({0, 1});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.Filed(), Lines{});
  EXPECT_EQ(bench.general.strSegAsso, L"");
}

TEST(ReadTSTList, APickedNumberThatIsNotInTheListAsItStandsIsIgnored) {
  // The dialog reads its rows back trimmed; the list is compared exactly.
  SelectionBench bench;
  bench.HasList({{.number = L" 1"}, {.number = L"2"}});
  bench.AgentPicks({0, 1});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.Filed(), Lines{L"2"});
}

TEST(ReadTSTList, ATSTThatIsListedTwiceCannotBeFiledTwice) {
  SelectionBench bench;
  bench.HasList({{.number = L"1"}, {.number = L"1"}});
  bench.AgentPicks({0});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.ReportedBoxes(), Lines{L"16 Error when reading the current TQT Response!"});
  EXPECT_EQ(bench.Filed(), Lines{L"1"});
  EXPECT_TRUE(bench.stop.isSet);
}

TEST(ReadTSTList, CancelInTheDialogEndsTheRun) {
  SelectionBench bench;
  bench.HasList({{.number = L"1"}, {.number = L"2"}});
  bench.desktop.inModal = [&](ui::Form&) { bench.selection.cmdCancel.Clicked(); };
  EXPECT_THROW(bench.room.ReadTSTList(), support::EndedByEndScript);
  EXPECT_EQ(bench.Sent(), kListSent);
  EXPECT_EQ(bench.ReportedBoxes(), Lines{});
}

TEST(ReadTSTList, TheCloseBoxOfTheDialogEndsTheRun) {
  SelectionBench bench;
  bench.HasList({{.number = L"1"}, {.number = L"2"}});
  bench.desktop.inModal = [](ui::Form& form) { form.OnCloseBox(); };
  EXPECT_THROW(bench.room.ReadTSTList(), support::EndedByEndScript);
  EXPECT_EQ(bench.Sent(), kListSent);
}

TEST(ReadTSTList, WithoutATSTTheAgentIsToldAndTheRunIsToStop) {
  SelectionBench bench;
  bench.Answers(L"TQT SHOWN", bench.scripted.Bag({{L"blnKeyTST", false}}));
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.ReportedBoxes(), Lines{kNoTST});
  EXPECT_TRUE(bench.stop.isSet);
  EXPECT_EQ(bench.Filed(), Lines{});
}

TEST(ReadTSTList, WithoutATSTTheMCODataIsStillDerived) {
  SelectionBench bench;
  bench.Answers(L"TQT SHOWN", bench.scripted.Bag());
  bench.pnr.strOrigin = L"ARN";
  bench.pnr.strDestination = L"CPH";
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.mco.strFlightInfo, L"  ARN CPH");
  EXPECT_EQ(bench.TakeCalls().back(), L"ScriptGlobal.1.22 FormatAssociation(\"\") -> \"\"");
}

TEST(ReadTSTList, TheNoTSTReportHasTheNumber41) {
  SelectionBench bench;
  bench.Answers(L"TQT SHOWN", bench.scripted.Bag());
  bench.room.ReadTSTList();
  const Lines calls = bench.TakeCalls();
  EXPECT_TRUE(std::ranges::any_of(calls, [](const std::wstring& line) {
    return line.starts_with(L"ScriptErrorReporter.1.18 ShowError(-2147221463, ");
  }));
}

TEST(ReadTSTList, AMissingAirlineIsTakenFromTheFirstFlight) {
  SelectionBench bench;
  bench.HasOneTST({.firstFlightNo = L"LH3012", .fv = L""});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.mco.strAirlineCode, L"LH");
}

TEST(ReadTSTList, AnAirlineThatIsThereIsKept) {
  SelectionBench bench;
  bench.HasOneTST({.firstFlightNo = L"LH3012"});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.mco.strAirlineCode, L"SK");
}

TEST(ReadTSTList, ThePassengerAssociationIsRewrittenOnce) {
  SelectionBench bench;
  bench.HasOneTST({.names = L"1.A/A MR2.B/B MR3.C/C MR"});
  bench.pnrNames = {L"1.A/A MR", L"2.B/B MR", L"3.C/C MR"};
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.mco.strPasAsso, L"1-3");
  EXPECT_EQ(bench.TakeCalls().back(), L"ScriptGlobal.1.22 FormatAssociation(\"1,2,3\") -> \"1-3\"");
}

TEST(ReadTSTList, JoinedSegmentsBecomeNone) {
  SelectionBench bench;
  bench.HasList({{.number = L"1", .segment = L"2 + 3"}, {.number = L"2", .segment = L"2 + 3"}});
  bench.AgentPicks({0, 1});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.mco.strSegAsso, L"");
  EXPECT_EQ(bench.general.strSegAsso, L"2 + 3");
  EXPECT_EQ(bench.Filed(), (Lines{L"1", L"2"}));
}

TEST(ReadTSTList, AReissueWithTotal0GetsItsTotalComputed) {
  SelectionBench bench;
  bench.HasOneTST({.totalFare = L"SEK0", .isReissue = true});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.mco.strTotalFare, L"SEK1160");
}

TEST(ReadTSTList, AReissueWhoseTotalIsNoNumberGetsItComputedToo) {
  SelectionBench bench;
  bench.HasOneTST({.totalFare = L"NO ADC", .isReissue = true});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.mco.strTotalFare, L"SEK1160");
}

TEST(ReadTSTList, AReissueWithATotalKeepsIt) {
  SelectionBench bench;
  bench.HasOneTST({.totalFare = L"SEK90", .isReissue = true});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.mco.strTotalFare, L"SEK90");
}

TEST(ReadTSTList, Total0WithoutAReissueStays0) {
  SelectionBench bench;
  bench.HasOneTST({.totalFare = L"SEK0"});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.mco.strTotalFare, L"SEK0");
}

TEST(ReadTSTList, TheLastListCommandAndResponseAreKept) {
  SelectionBench bench;
  bench.HasList({{.number = L"1"}, {.number = L"2"}});
  bench.AgentPicks({1});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.room.LastTransaction(), L"TQT/T2");
  EXPECT_EQ(bench.room.CurrentResponse(), L"TQT/T2 SHOWN");
}

TEST(ReadTSTList, EveryBagAndRequestIsReleased) {
  SelectionBench bench;
  bench.HasList({{.number = L"1"}, {.number = L"2"}});
  bench.AgentPicks({0, 1});
  bench.global.ToText({});
  const int before = bench.recorder.LiveObjects();
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.recorder.LiveObjects(), before);
}

}  // namespace
}  // namespace tst
