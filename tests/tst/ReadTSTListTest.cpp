#include "tests/tst/SelectionBench.h"

namespace tst {
namespace {

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

TEST(ReadTSTList, EveryDisplayHasABagAndARequestOfItsOwn) {
  SelectionBench bench;
  bench.HasList({{.number = L"1"}});
  bench.global.ToText({});
  bench.recorder = hostlib::Recorder(hostlib::Recorder::Objects::kShow);
  bench.room.ReadTSTList();
  Lines made;
  for (const std::wstring& line : bench.TakeCalls()) {
    if (line.starts_with(L"+ ") || line.find(L" Send") != line.npos) made.push_back(line);
  }
  // The second bag of each display is the answer.
  EXPECT_EQ(Lines(made.begin(), made.begin() + 9),
            (Lines{L"+ TstListRequest", L"TerminalSession.1.11 SendEntry(\"TQT\") -> \"DONE\"",
                   L"+ ParameterBag", L"+ TstListRequest",
                   L"TerminalSession.1.15 SendDisplay(\"TQT\") -> \"TQT SHOWN\"", L"+ ParameterBag",
                   L"+ ParameterBag", L"+ TstListRequest",
                   L"TerminalSession.1.15 SendDisplay(\"TQT/T1\") -> \"TQT/T1 SHOWN\""}));
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

TEST(ReadTSTList, TheTSTOfAListOfOneCountsAsFoundWhateverTheDisplaysSay) {
  SelectionBench bench;
  bench.HasList({{.number = L"1"}});
  const hostlib::TextArray one{.items = {L"1"}, .lowerBound = 1};
  bench.Answers(L"TQT SHOWN", bench.scripted.Bag({{L"blnKeyTST", false},
                                                  {L"blnKeyTSTList", true},
                                                  {L"intKeyNoOfTST", L"1"},
                                                  {L"strKeyTSTSegment()", one},
                                                  {L"strKeyPersonNbrArray()", one},
                                                  {L"strKeyTSTNumArray()", one},
                                                  {L"strKeyFOPArray()", one}}));
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

}  // namespace
}  // namespace tst
