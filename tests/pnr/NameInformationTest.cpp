#include <gtest/gtest.h>

#include "tests/pnr/TSTReadersBench.h"

namespace pnr {
namespace {

TEST(GetNameInformation, AsksTheLibraryInThisExactOrder) {
  TSTReadersBench bench;
  bench.HasNames({{L"1.SMITH/JOHN MR", L"1"}});
  bench.tst.strNames = L"1.SMITH/JOHN MR";
  bench.room.GetNameInformation(bench.tst);
  EXPECT_EQ(bench.TakeCalls(), Together({
                                   Call(L"PnrReader.1.27 CountNameElements() -> 1"),
                                   Put(L"intKeyIndex", L"0"),
                                   Call(L"PnrReader.2.15 GetNameElement(<ParameterBag>)"),
                                   Read(L"strKeyElement", L"1.SMITH/JOHN MR"),
                                   Read(L"strKeyElementNr", L"1"),
                               }));
}

TEST(GetNameInformation, AsksForNoNumberOfANameThatIsPassedOver) {
  TSTReadersBench bench;
  bench.HasNames({{L"1.SMITH/JOHN MR", L"1"}, {L"2.JONES/ANN MRS", L"2"}});
  bench.tst.strNames = L"2.JONES/ANN MRS";
  bench.room.GetNameInformation(bench.tst);
  EXPECT_EQ(bench.TakeCalls(), Together({
                                   Call(L"PnrReader.1.27 CountNameElements() -> 2"),
                                   Put(L"intKeyIndex", L"0"),
                                   Call(L"PnrReader.2.15 GetNameElement(<ParameterBag>)"),
                                   Read(L"strKeyElement", L"1.SMITH/JOHN MR"),
                                   Put(L"intKeyIndex", L"1"),
                                   Call(L"PnrReader.2.15 GetNameElement(<ParameterBag>)"),
                                   Read(L"strKeyElement", L"2.JONES/ANN MRS"),
                                   Read(L"strKeyElementNr", L"2"),
                               }));
}

TEST(GetNameInformation, ANameOfTheTSTFillsTheRecordsAndNothingBesides) {
  TSTReadersBench bench;
  bench.HasNames({{L"1.SMITH/JOHN MR", L"1"}});
  bench.tst.strNames = L"1.SMITH/JOHN MR";
  bench.room.GetNameInformation(bench.tst);
  MCOInfo mco;
  mco.strFirstName = L"SMITH/JOHN MR";
  mco.strNameList = L"SMITH/JOHN MR";
  mco.strPasAsso = L"1";
  EXPECT_EQ(Fields(bench.mco), Fields(mco));
  PNRInfo pnr;
  pnr.intTotalNames = 1;
  EXPECT_EQ(Fields(bench.pnr), Fields(pnr));
  EXPECT_EQ(bench.tst.intNoNames, 1);
  EXPECT_EQ(bench.tst.strPasAsso, L"1");
}

TEST(GetNameInformation, ListsAreJoinedWithTheirSeparatorAndStartWithoutIt) {
  TSTReadersBench bench;
  bench.HasNames({{L"1.SMITH/JOHN MR", L"2"}, {L"2.JONES/ANN MRS", L"3"}, {L"3.ROE/A", L"4"}});
  bench.tst.strNames = L"1.SMITH/JOHN MR;2.JONES/ANN MRS;3.ROE/A";
  bench.room.GetNameInformation(bench.tst);
  EXPECT_EQ(bench.mco.strFirstName, L"SMITH/JOHN MR");
  EXPECT_EQ(bench.mco.strNameList, L"SMITH/JOHN MR;JONES/ANN MRS;ROE/A");
  EXPECT_EQ(bench.mco.strPasAsso, L"2,3,4");
  EXPECT_EQ(bench.tst.strPasAsso, L"2,3,4");
  EXPECT_EQ(bench.tst.intNoNames, 3);
  EXPECT_EQ(bench.pnr.intTotalNames, 3);
}

TEST(GetNameInformation, AnAttachedInfantIsCutOffAndTheNameTrimmed) {
  TSTReadersBench bench;
  bench.HasNames({{L"1.SMITH/ANNA MRS (INFSMITH/BABY)", L"1"}});
  bench.tst.strNames = L"1.SMITH/ANNA MRS";
  bench.room.GetNameInformation(bench.tst);
  EXPECT_EQ(bench.mco.strFirstName, L"SMITH/ANNA MRS");
  EXPECT_EQ(bench.mco.strINFPasAsso, L"");
}

TEST(GetNameInformation, TheNameEndsAtTheFirstBracketWhateverStandsInIt) {
  TSTReadersBench bench;
  bench.HasNames({{L"1.SMITH/TOM(CHD/01JAN00)(INFSMITH/BABY)", L"1"}});
  bench.tst.strNames = L"1.SMITH/TOM";
  bench.room.GetNameInformation(bench.tst);
  EXPECT_EQ(bench.mco.strNameList, L"SMITH/TOM");
}

TEST(GetNameInformation, ANameWithoutABracketIsNotTrimmed) {
  TSTReadersBench bench;
  bench.HasNames({{L"1.SMITH/TOM ", L"1"}});
  bench.tst.strNames = L"1.SMITH/TOM";
  bench.room.GetNameInformation(bench.tst);
  EXPECT_EQ(bench.tst.intNoNames, 0);
}

TEST(GetNameInformation, NamesAreComparedWithoutRegardToCase) {
  TSTReadersBench bench;
  bench.HasNames({{L"1.Smith/John Mr", L"1"}});
  bench.tst.strNames = L"1.SMITH/JOHN MR";
  bench.room.GetNameInformation(bench.tst);
  EXPECT_EQ(bench.mco.strNameList, L"Smith/John Mr") << "listed as the PNR has it";
}

TEST(GetNameInformation, TheNameIsComparedTogetherWithItsNumberAndPoint) {
  TSTReadersBench bench;
  bench.HasNames({{L"1.SMITH/JOHN MR", L"1"}, {L"2.SMITH/JOHN MR", L"2"}});
  bench.tst.strNames = L"2.SMITH/JOHN MR";
  bench.room.GetNameInformation(bench.tst);
  EXPECT_EQ(bench.tst.strPasAsso, L"2");
}

TEST(GetNameInformation, ATSTWithoutNumbersInItsNamesHasNoNames) {
  TSTReadersBench bench;
  bench.HasNames({{L"1.SMITH/JOHN MR", L"1"}});
  bench.tst.strNames = L"SMITH/JOHN MR";
  bench.room.GetNameInformation(bench.tst);
  EXPECT_EQ(bench.tst.intNoNames, 0);
  EXPECT_EQ(bench.tst.strPasAsso, L"");
  EXPECT_EQ(Fields(bench.mco), Fields(MCOInfo()));
}

TEST(GetNameInformation, ATSTWithoutNamesHasNoneInThePNR) {
  TSTReadersBench bench;
  bench.HasNames({{L"1.SMITH/JOHN MR", L"1"}, {L"(INFSMITH/BABY)", L"2"}});
  bench.room.GetNameInformation(bench.tst);
  EXPECT_EQ(bench.tst.intNoNames, 0);
}

TEST(GetNameInformation, ATwoDigitNumberLeavesItsPointInFront) {
  TSTReadersBench bench;
  bench.HasNames({{L"12.SMITH/JOHN", L"12"}});
  bench.tst.strNames = L"12.SMITH/JOHN";
  bench.room.GetNameInformation(bench.tst);
  EXPECT_EQ(bench.mco.strFirstName, L".SMITH/JOHN");
  EXPECT_EQ(bench.mco.strNameList, L".SMITH/JOHN");
  EXPECT_EQ(bench.mco.strPasAsso, L"12");
}

TEST(GetNameInformation, AnInfantTSTCountsEveryNameWithAnInfantAndFillsOnlyTheInfantsList) {
  TSTReadersBench bench;
  bench.HasNames({{L"1.SMITH/ANNA MRS(INFSMITH/BABY)", L"1"},
                  {L"2.SMITH/JOHN MR", L"2"},
                  {L"3.JONES/EVE MRS(INF/TIM)", L"3"}});
  bench.tst.blnInf = true;
  bench.tst.strNames = L"1.SMITH/ANNA MRS(INF)";
  bench.room.GetNameInformation(bench.tst);
  EXPECT_EQ(bench.tst.intNoNames, 2);
  EXPECT_EQ(bench.tst.strPasAsso, L"");
  MCOInfo mco;
  mco.strINFPasAsso = L"1,3";
  EXPECT_EQ(Fields(bench.mco), Fields(mco));
  PNRInfo pnr;
  pnr.intTotalNames = 2;
  EXPECT_EQ(Fields(bench.pnr), Fields(pnr));
}

TEST(GetNameInformation, AnInfantWhoseNumberCannotBeReadLeavesTheInfantsListAsItWas) {
  TSTReadersBench bench;
  bench.HasNames({{L"1.SMITH/ANNA MRS(INFSMITH/BABY)", L"1"}});
  // The name is told, its number is not.
  bench.scripted.Answers(hostlib::operations::script_global::kToText,
                         {L"1.SMITH/ANNA MRS(INFSMITH/BABY)"});
  bench.tst.blnInf = true;
  bench.room.GetNameInformation(bench.tst);
  EXPECT_TRUE(bench.stop.isSet);
  EXPECT_EQ(bench.mco.strINFPasAsso, L"");
}

TEST(GetNameInformation, AnInfantIsFoundByItsOpeningBracketInAnyCase) {
  TSTReadersBench bench;
  bench.HasNames({{L"1.SMITH/ANNA(inf", L"1"}, {L"2.INFANTE/JO", L"2"}, {L"3.ROE/A( INF)", L"3"}});
  bench.tst.blnInf = true;
  bench.room.GetNameInformation(bench.tst);
  EXPECT_EQ(bench.mco.strINFPasAsso, L"1");
}

TEST(GetNameInformation, LaterTSTsAppendToTheListsOfTheMCOAndCountAnew) {
  TSTReadersBench bench;
  bench.HasNames({{L"1.SMITH/JOHN MR", L"1"}, {L"2.JONES/ANN MRS(INFJONES/BOB)", L"2"}});
  bench.tst.strNames = L"1.SMITH/JOHN MR";
  bench.room.GetNameInformation(bench.tst);
  tst::TSTInfo second;
  second.strNames = L"2.JONES/ANN MRS";
  second.intNoNames = 7;
  bench.room.GetNameInformation(second);
  tst::TSTInfo infant;
  infant.blnInf = true;
  bench.room.GetNameInformation(infant);
  EXPECT_EQ(bench.mco.strFirstName, L"SMITH/JOHN MR");
  EXPECT_EQ(bench.mco.strNameList, L"SMITH/JOHN MR;JONES/ANN MRS");
  EXPECT_EQ(bench.mco.strPasAsso, L"1,2");
  EXPECT_EQ(bench.mco.strINFPasAsso, L"2");
  EXPECT_EQ(bench.pnr.intTotalNames, 3);
  EXPECT_EQ(second.strPasAsso, L"2");
  EXPECT_EQ(second.intNoNames, 1);
  EXPECT_EQ(infant.intNoNames, 1);
}

TEST(GetNameInformation, OneLeadingSeparatorIsDroppedAndOnlyOne) {
  TSTReadersBench bench;
  bench.mco.strNameList = L";;A";
  bench.mco.strPasAsso = L",,1";
  bench.mco.strINFPasAsso = L",,2";
  bench.tst.strPasAsso = L",,3";
  bench.room.GetNameInformation(bench.tst);
  EXPECT_EQ(bench.mco.strNameList, L";A");
  EXPECT_EQ(bench.mco.strPasAsso, L",1");
  EXPECT_EQ(bench.mco.strINFPasAsso, L",2");
  EXPECT_EQ(bench.tst.strPasAsso, L",3");
}

TEST(GetNameInformation, EachListLosesOnlyItsOwnSeparator) {
  TSTReadersBench bench;
  bench.mco.strNameList = L",A";
  bench.mco.strPasAsso = L";1";
  bench.room.GetNameInformation(bench.tst);
  EXPECT_EQ(bench.mco.strNameList, L",A");
  EXPECT_EQ(bench.mco.strPasAsso, L";1");
}

TEST(GetNameInformation, TheNumberOfNamesStartsAtZeroAlsoWhenThereAreNone) {
  TSTReadersBench bench;
  bench.tst.intNoNames = 4;
  bench.pnr.intTotalNames = 4;
  bench.room.GetNameInformation(bench.tst);
  EXPECT_EQ(bench.tst.intNoNames, 0);
  EXPECT_EQ(bench.pnr.intTotalNames, 4);
  EXPECT_EQ(bench.TakeCalls(), Call(L"PnrReader.1.27 CountNameElements() -> 0"));
}

TEST(GetNameInformation, MoreNamesThanTheCountHoldsIsAFailureAndNoWrap) {
  TSTReadersBench bench;
  bench.pnr.intTotalNames = 32767;
  bench.HasNames({{L"1.SMITH/JOHN MR", L"1"}});
  bench.tst.strNames = L"1.SMITH/JOHN MR";
  bench.room.GetNameInformation(bench.tst);
  EXPECT_EQ(bench.pnr.intTotalNames, 32767);
  EXPECT_EQ(OnlyReports(bench.TakeCalls()),
            OwnFailure(31, L"Error when getting the name info!", 16));
}

TEST(GetNameInformation, AnOwnFailureShowsTheOwnTextAndStopsTheRun) {
  TSTReadersBench bench;
  bench.scripted.Answer(reader::kCountNameElements, L"many");
  bench.room.GetNameInformation(bench.tst);
  EXPECT_EQ(OnlyReports(bench.TakeCalls()),
            OwnFailure(31, L"Error when getting the name info!", 16));
  EXPECT_TRUE(bench.stop.isSet);
}

TEST(GetNameInformation, AFailureOfTheLibraryIsReportedByTheLibrary) {
  TSTReadersBench bench;
  bench.scripted.Answer(reader::kCountNameElements, std::int16_t{1});
  bench.scripted.Fail(reader::kGetNameElement, 79, L"name broken");
  bench.room.GetNameInformation(bench.tst);
  EXPECT_EQ(OnlyReports(bench.TakeCalls()), LibraryFailure(79));
  EXPECT_TRUE(bench.stop.isSet);
}

}  // namespace
}  // namespace pnr
