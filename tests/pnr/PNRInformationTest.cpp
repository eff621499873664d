#include <gtest/gtest.h>

#include "tests/pnr/ReadingBench.h"

namespace pnr {
namespace {

const std::wstring kNoLocator =
    L"PNR Record Locator missing. \rPlease do End Transaction and restart the script.";
const std::wstring kNoTK = L"TK-element missing !\rPlease add and restart the script.";
const std::wstring kMissing =
    L"Mandatory element(s) missing!\rPlease add elements and restart the script.\r\r"
    L"Missing elements are: ";

Lines Search(std::wstring_view element, int fields, std::wstring_view list) {
  const std::wstring code(element);
  return Together({
      Call(L"ScriptGlobal.1.7 GetField(\"" + std::wstring(list) + L"\", " +
           std::to_wstring(fields) + L", \",\") -> \"" + code + L"\""),
      Put(L"strKeyPNRElement", L"\"ALL\""),
      Put(L"strKeyFind()", L"[\"\", \"" + code + L"\"]"),
      Call(L"PnrReader.3.7 FindElements(<ParameterBag>) -> <ParameterBag>"),
      Call(L"ParameterBag.1.8 GetValue(\"strKeyResult()\") -> <List>"),
  });
}

TEST(GetPNRInformation, AsksTheLibraryInThisExactOrder) {
  ReadingBench bench;
  bench.room.GetPNRInformation();
  EXPECT_EQ(bench.TakeCalls(), Together({
                                   Call(L"PnrReader.1.29 GetRecordLocator() -> \"ABC123\""),
                                   Search(L"AP", 1, L"AP,TK"),
                                   Call(L"List.1.0 ?() -> [\"\", \"AP ARN 08 123456\"]"),
                                   Search(L"TK", 2, L"AP,TK"),
                                   Call(L"List.1.0 ?() -> [\"\", \"TK TL15MAR\"]"),
                                   Call(L"ScriptGlobal.1.7 GetField(\"AP,TK\", 3, \",\") -> \"\""),
                                   Call(L"PnrReader.1.26 CountTKElements() -> 1"),
                                   Put(L"intKeyIndex", L"0"),
                                   Call(L"PnrReader.2.19 GetTKElement(<ParameterBag>)"),
                                   Read(L"strKeyElementNr", L"5"),
                                   Read(L"strKeyAction", L"TL"),
                                   Read(L"strKeyElement", L"TL15MAR"),
                                   Call(L"PnrReader.1.19 CountSegments() -> 2"),
                                   Put(L"intKeyIndex", L"0"),
                                   Call(L"PnrReader.2.7 GetSegment(<ParameterBag>)"),
                                   Read(L"strKeySegment", L"SK1234 Y 15MAR ARNCPH HK1"),
                                   Read(L"strKeyDepCity", L"ARN"),
                                   Read(L"strKeyArrCity", L"CPH"),
                                   Call(L"PnrReader.1.24 CountFPElements() -> 1"),
                                   Call(L"PnrReader.2.17 GetHeader(<ParameterBag>)"),
                                   Read(L"strKeyOfficeID", L"ARNAG2100"),
                               }));
}

TEST(GetPNRInformation, FillsTheRecordsAndNothingBesides) {
  ReadingBench bench;
  bench.room.GetPNRInformation();
  PNRInfo pnr;
  pnr.strTKElementNumber = L"5";
  pnr.strTicketingAction = L"TL";
  pnr.strTicketingText = L"TL15MAR";
  pnr.strOrigin = L"ARN";
  pnr.strDestination = L"CPH";
  pnr.blnFPExists = true;
  pnr.strResponsibleOffice = L"ARNAG2100";
  EXPECT_EQ(Fields(bench.pnr), Fields(pnr));
  MCOInfo mco;
  mco.strRecordLocator = L"ABC123";
  EXPECT_EQ(Fields(bench.mco), Fields(mco));
  EXPECT_FALSE(bench.stop.isSet);
}

TEST(GetPNRInformation, MakesOneReaderAndAFreshBagForEachRequestAndReleasesThemAll) {
  ReadingBench bench;
  hostlib::Recorder objects(hostlib::Recorder::Objects::kShow);
  hostlib::InterposedLibrary library(bench.scripted, objects);
  hostlib::ScriptGlobal global(library);
  global.GetField(L"", 1, L",");
  objects.Clear();
  GetPTAPNRinfo room(library, global, bench.session, bench.errors, bench.dates, bench.settings,
                     bench.general, bench.pnr, bench.mco,
                     {bench.form.chkOP, bench.form.lblOPText, bench.form.txtOPText});
  room.GetPNRInformation();
  EXPECT_EQ(Only(L"+ PnrReader", objects.lines()).size(), 1U);
  // Two searches with an answer bag each, TK, segment, header.
  EXPECT_EQ(Only(L"+ ParameterBag", objects.lines()).size(), 7U);
  EXPECT_EQ(objects.lines().back(), L"- PnrReader");
  EXPECT_EQ(objects.LiveObjects(), 1) << "the global object alone is kept";
}

TEST(GetPNRInformation, AMissingRecordLocatorIsReportedAndTheReadingGoesOn) {
  ReadingBench bench;
  bench.mco.strRecordLocator = L"OLD111";
  bench.scripted.Answer(reader::kGetRecordLocator, L"");
  bench.room.GetPNRInformation();
  EXPECT_EQ(OnlyReports(bench.TakeCalls()), ShowError(30, kNoLocator, 48));
  EXPECT_EQ(bench.mco.strRecordLocator, L"OLD111");
  EXPECT_EQ(bench.pnr.strResponsibleOffice, L"ARNAG2100");
  EXPECT_TRUE(bench.stop.isSet);
}

TEST(GetPNRInformation, TheSearchTextStandsAtIndexOneBehindAnEmptyOne) {
  ReadingBench bench;
  bench.settings.strMandatoryElements = L"AP";
  bench.room.GetPNRInformation();
  EXPECT_EQ(bench.searches, (std::vector<hostlib::TextArray>{{{L"", L"AP"}, 0}}));
}

TEST(GetPNRInformation, AnEmptyListOfMandatoryElementsMakesNoSearch) {
  ReadingBench bench;
  bench.settings.strMandatoryElements = L"";
  bench.room.GetPNRInformation();
  const Lines calls = bench.TakeCalls();
  EXPECT_TRUE(Only(L"ScriptGlobal.1.7", calls).empty());
  EXPECT_TRUE(bench.searches.empty());
  EXPECT_EQ(calls.at(1), L"PnrReader.1.26 CountTKElements() -> 1");
}

TEST(GetPNRInformation, AnEmptyPieceEndsTheListOfMandatoryElements) {
  ReadingBench bench;
  bench.settings.strMandatoryElements = L"AP,,TK";
  bench.found.clear();
  bench.room.GetPNRInformation();
  EXPECT_EQ(bench.searches.size(), 1U);
  EXPECT_EQ(OnlyReports(bench.TakeCalls()), ShowError(37, kMissing + L"AP", 48));
}

TEST(GetPNRInformation, ALeadingSeparatorLeavesNothingMandatory) {
  ReadingBench bench;
  bench.settings.strMandatoryElements = L",AP";
  bench.found.clear();
  bench.room.GetPNRInformation();
  EXPECT_TRUE(bench.searches.empty());
  EXPECT_FALSE(bench.stop.isSet);
}

TEST(GetPNRInformation, TwoMissingElementsAreListedWithACommaAndABlank) {
  ReadingBench bench;
  bench.found.clear();
  bench.room.GetPNRInformation();
  EXPECT_EQ(OnlyReports(bench.TakeCalls()), ShowError(37, kMissing + L"AP, TK", 48));
  EXPECT_TRUE(bench.stop.isSet);
  EXPECT_EQ(bench.pnr.strResponsibleOffice, L"ARNAG2100") << "the reading goes on";
}

TEST(GetPNRInformation, OnlyTheMissingOfTheMandatoryElementsAreListed) {
  ReadingBench bench;
  bench.settings.strMandatoryElements = L"RM,AP,FM,TK";
  bench.room.GetPNRInformation();
  EXPECT_EQ(OnlyReports(bench.TakeCalls()), ShowError(37, kMissing + L"RM, FM", 48));
}

TEST(GetPNRInformation, ThePiecesOfTheListAreNotTrimmed) {
  ReadingBench bench;
  bench.settings.strMandatoryElements = L"AP, TK";
  bench.room.GetPNRInformation();
  EXPECT_EQ(bench.searches.at(1).items.at(1), L" TK");
  EXPECT_EQ(OnlyReports(bench.TakeCalls()), ShowError(37, kMissing + L" TK", 48));
}

TEST(GetPNRInformation, AnArrayThatEndsAtZeroMeansNotFoundWhateverItHolds) {
  ReadingBench bench;
  bench.found[L"AP"] = {{L"AP ARN 08 123456"}};
  bench.found[L"TK"] = {{}, 1};
  bench.room.GetPNRInformation();
  EXPECT_EQ(OnlyReports(bench.TakeCalls()), ShowError(37, kMissing + L"AP, TK", 48));
}

TEST(GetPNRInformation, AnArrayThatEndsElsewhereThanAtZeroMeansFound) {
  ReadingBench bench;
  bench.found[L"AP"] = {};
  bench.found[L"TK"] = {{L"TK TL15MAR"}, 1};
  bench.room.GetPNRInformation();
  EXPECT_TRUE(OnlyReports(bench.TakeCalls()).empty());
}

TEST(GetPNRInformation, WithoutATKElementTheAgentIsToldAndTheTKFieldsStay) {
  ReadingBench bench;
  bench.scripted.Answer(reader::kCountTKElements, std::int16_t{0});
  bench.room.GetPNRInformation();
  const Lines calls = bench.TakeCalls();
  EXPECT_EQ(OnlyReports(calls), ShowError(30, kNoTK, 48));
  EXPECT_TRUE(Only(L"PnrReader.2.19", calls).empty());
  EXPECT_EQ(
      bench.pnr.strTKElementNumber + bench.pnr.strTicketingAction + bench.pnr.strTicketingText,
      L"");
  EXPECT_EQ(bench.pnr.strOrigin, L"ARN") << "the reading goes on";
  EXPECT_TRUE(bench.stop.isSet);
}

TEST(GetPNRInformation, OfSeveralTKElementsTheFirstIsRead) {
  ReadingBench bench;
  bench.Has(reader::kCountTKElements, reader::kGetTKElement,
            {{{L"strKeyElementNr", std::int16_t{5}}, {L"strKeyAction", L"OK"}},
             {{L"strKeyElementNr", std::int16_t{6}}, {L"strKeyAction", L"XL"}}});
  bench.room.GetPNRInformation();
  EXPECT_EQ(bench.pnr.strTKElementNumber, L"5");
  EXPECT_EQ(bench.pnr.strTicketingAction, L"OK");
  EXPECT_EQ(bench.pnr.strTicketingText, L"");
}

TEST(GetPNRInformation, LocatorMandatoryElementsAndTKAreReportedOneAfterTheOther) {
  ReadingBench bench;
  bench.scripted.Answer(reader::kGetRecordLocator, L"");
  bench.scripted.Answer(reader::kCountTKElements, std::int16_t{0});
  bench.found.erase(L"TK");
  bench.room.GetPNRInformation();
  EXPECT_EQ(OnlyReports(bench.TakeCalls()),
            Together({ShowError(30, kNoLocator, 48), ShowError(37, kMissing + L"TK", 48),
                      ShowError(30, kNoTK, 48)}));
  EXPECT_TRUE(bench.pnr.blnFPExists);
  EXPECT_EQ(bench.pnr.strResponsibleOffice, L"ARNAG2100");
}

TEST(GetPNRInformation, AnOpenFirstSegmentGivesTheCities) {
  ReadingBench bench;
  bench.Has(reader::kCountSegments, reader::kGetSegment,
            {ReadingBench::Segment(L"SKOPEN Y ARNOSL", L"ARN", L"OSL"),
             ReadingBench::Segment(L"SK1234 Y 15MAR OSLCPH HK1", L"OSL", L"CPH")});
  bench.room.GetPNRInformation();
  EXPECT_EQ(bench.pnr.strOrigin, L"ARN");
  EXPECT_EQ(bench.pnr.strDestination, L"OSL");
  EXPECT_EQ(Only(L"PnrReader.2.7", bench.TakeCalls()).size(), 1U);
}

TEST(GetPNRInformation, ASingleSegmentGivesTheCities) {
  ReadingBench bench;
  bench.Has(reader::kCountSegments, reader::kGetSegment,
            {ReadingBench::Segment(L"SK1234 Y 15MAR OSLCPH HK1", L"OSL", L"CPH")});
  bench.room.GetPNRInformation();
  EXPECT_EQ(bench.pnr.strOrigin, L"OSL");
  EXPECT_EQ(bench.pnr.strDestination, L"CPH");
}

TEST(GetPNRInformation, WithoutSegmentsOriginAndDestinationStayEmpty) {
  ReadingBench bench;
  bench.scripted.Answer(reader::kCountSegments, std::int16_t{0});
  bench.room.GetPNRInformation();
  EXPECT_EQ(bench.pnr.strOrigin, L"");
  EXPECT_EQ(bench.pnr.strDestination, L"");
  EXPECT_TRUE(Only(L"PnrReader.2.7", bench.TakeCalls()).empty());
  EXPECT_FALSE(bench.stop.isSet);
}

TEST(GetPNRInformation, FPExistsIsNeverSetBack) {
  ReadingBench bench;
  bench.scripted.Answer(reader::kCountFPElements, std::int16_t{0});
  bench.room.GetPNRInformation();
  EXPECT_FALSE(bench.pnr.blnFPExists);
  bench.pnr.blnFPExists = true;
  bench.room.GetPNRInformation();
  EXPECT_TRUE(bench.pnr.blnFPExists);
}

TEST(GetPNRInformation, AnOwnFailureShowsTheOwnTextAndLeavesTheRest) {
  ReadingBench bench;
  bench.scripted.Answer(reader::kCountTKElements, L"many");
  bench.room.GetPNRInformation();
  const Lines calls = bench.TakeCalls();
  EXPECT_EQ(Last(2, calls), OwnFailure(30, L"Error when getting the PNR information!", 16));
  EXPECT_EQ(bench.pnr.strResponsibleOffice, L"");
  EXPECT_TRUE(bench.stop.isSet);
}

TEST(GetPNRInformation, AFailureOfTheLibraryIsReportedByTheLibrary) {
  ReadingBench bench;
  bench.scripted.Fail(reader::kGetHeader, 77, L"header broken");
  const int live = bench.recorder.LiveObjects();
  bench.room.GetPNRInformation();
  EXPECT_EQ(OnlyReports(bench.TakeCalls()), LibraryFailure(77));
  EXPECT_TRUE(bench.stop.isSet);
  EXPECT_EQ(bench.recorder.LiveObjects(), live + 1) << "only the global object has come";
}

TEST(GetPNRInformation, AReaderThatCannotBeMadeIsAFailureOfTheStep) {
  ReadingBench bench;
  bench.scripted.FailToCreate(L"PnrReader");
  bench.room.GetPNRInformation();
  EXPECT_EQ(bench.TakeCalls(), OwnFailure(30, L"Error when getting the PNR information!", 16));
}

}  // namespace
}  // namespace pnr
