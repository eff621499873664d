#include <gtest/gtest.h>

#include "practice/library/ParameterBagObject.h"
#include "tests/mco/TSMBench.h"

namespace mco {
namespace {

using namespace hostlib::operations;

TEST(GetTSMList, OneTSMAtOnceIsReadCallByCall) {
  TSMBench bench;
  bench.displays = {bench.OneTSM(250.0)};
  EXPECT_TRUE(bench.list.GetTSMList(0));
  EXPECT_EQ(bench.TakeCalls(),
            (Lines{L"TsmDisplayReader.1.7 BuildTQMEntry(<ParameterBag>) -> \"E1\"",
                   L"ParameterBag.1.7 SetValue(\"blnKeyRedisplayPNR\", True)",
                   L"TsmDisplayReader.1.7 BuildTQMEntry(<ParameterBag>) -> \"E2\"",
                   L"TerminalSession.1.10 SendCommand(\"E2\") -> \"TQM ANSWER\"",
                   L"TsmDisplayReader.1.8 ParseTQMResponse(\"TQM ANSWER\", <ParameterBag>) -> "
                   L"<ParameterBag>",
                   L"ParameterBag.1.8 GetValue(\"blnKeyDisplayOK\") -> True",
                   L"ScriptGlobal.1.16 ToBoolean(True) -> True",
                   L"ParameterBag.1.8 GetValue(\"blnKeyTSMFound\") -> True",
                   L"ScriptGlobal.1.16 ToBoolean(True) -> True",
                   L"ParameterBag.1.8 GetValue(\"blnMCOFeeFound\") -> True",
                   L"ScriptGlobal.1.16 ToBoolean(True) -> True",
                   L"ParameterBag.1.8 GetValue(\"dblMCOFee\") -> 250",
                   L"ScriptGlobal.1.13 ToText(250) -> \"250\""}));
}

TEST(GetTSMList, TheFirstEntryIsBuiltFromAnEmptyBag) {
  TSMBench bench;
  bench.displays = {bench.OneTSM(250.0)};
  std::vector<bool> redisplays;
  bench.scripted.On(tsm_display_reader::kBuildTQMEntry, [&](const hostlib::Arguments& arguments) {
    const auto& bag = practice::BagIn(arguments[0]);
    redisplays.push_back(bag.Has(L"blnKeyRedisplayPNR"));
    EXPECT_FALSE(bag.Has(L"strNoTSM"));
    return L"TQM";
  });
  bench.list.GetTSMList(0);
  EXPECT_EQ(redisplays, (std::vector<bool>{false, true}));
}

TEST(GetTSMList, ATSMIsAskedForByItsNumberAsAnInteger) {
  TSMBench bench;
  bench.displays = {bench.OneTSM(250.0)};
  bench.list.GetTSMList(7);
  const Lines calls = bench.TakeCalls();
  ASSERT_GE(calls.size(), 4u);
  EXPECT_EQ(calls[1], L"ParameterBag.1.7 SetValue(\"blnKeyRedisplayPNR\", True)");
  EXPECT_EQ(calls[2], L"ParameterBag.1.7 SetValue(\"strNoTSM\", 7)");
  EXPECT_EQ(calls[3], L"TsmDisplayReader.1.7 BuildTQMEntry(<ParameterBag>) -> \"E2\"");
}

TEST(GetTSMList, ATSMWithItsFeeSetsTheFeeAndBothFlags) {
  TSMBench bench;
  bench.displays = {bench.OneTSM(L"250.75")};
  EXPECT_TRUE(bench.list.GetTSMList(0));
  EXPECT_EQ(bench.tsm.dblMCOFee, 250.75);
  EXPECT_TRUE(bench.tsm.blnTSMFound);
  EXPECT_TRUE(bench.tsm.blnMCOFeeFound);
}

TEST(GetTSMList, TheFeeIsReadWithAPointWhateverTheUsersSeparator) {
  TSMBench bench;
  bench.scripted.platform.decimal = ",";
  bench.displays = {bench.OneTSM(L"1.5"), bench.OneTSM(L"1,5")};
  EXPECT_TRUE(bench.list.GetTSMList(0));
  EXPECT_EQ(bench.tsm.dblMCOFee, 1.5);
  EXPECT_FALSE(bench.list.GetTSMList(0));
}

TEST(GetTSMList, AFeeThatIsNoNumberIsAFailureWithItsDescription) {
  TSMBench bench;
  bench.displays = {bench.OneTSM(L"25O")};
  EXPECT_FALSE(bench.list.GetTSMList(0));
  EXPECT_EQ(bench.Reports(), Lines{Box110(L"Error sending TQM Transaction! Description=Type "
                                          L"mismatch: \"25O\" is no number")});
  EXPECT_EQ(bench.tsm.dblMCOFee, 0);
}

TEST(GetTSMList, AFeeThatIsMissingThoughFoundIsAFailure) {
  TSMBench bench;
  bench.displays = {bench.OneTSM({})};
  EXPECT_FALSE(bench.list.GetTSMList(0));
  EXPECT_EQ(bench.Reports().size(), 1u);
}

TEST(GetTSMList, ATSMWithoutAFeeIsReportedWithTheResponseAfterOneBlank) {
  TSMBench bench;
  bench.displays = {bench.TSMWithoutFee()};
  bench.tsm.blnTSMFound = true;
  bench.tsm.blnMCOFeeFound = true;
  EXPECT_FALSE(bench.list.GetTSMList(0));
  EXPECT_EQ(bench.Reports(), Lines{Box110(L"Error MCOFee was not found in the MCO NO FEE")});
  EXPECT_EQ(bench.tsm.strErrResponse, L"NO FEE");
  EXPECT_FALSE(bench.tsm.blnTSMFound);
  EXPECT_FALSE(bench.tsm.blnMCOFeeFound);
}

TEST(GetTSMList, ARefusedDisplayIsReportedWithTheResponseAfterOneBlank) {
  TSMBench bench;
  bench.displays = {bench.Refused()};
  bench.tsm.blnTSMFound = true;
  bench.tsm.blnMCOFeeFound = true;
  EXPECT_FALSE(bench.list.GetTSMList(0));
  EXPECT_EQ(bench.Reports(), Lines{Box110(L"Error sending TQM Transaction! NEED TSM - CHECK")});
  EXPECT_EQ(bench.tsm.strErrResponse, L"NEED TSM - CHECK");
  EXPECT_FALSE(bench.tsm.blnTSMFound);
  EXPECT_FALSE(bench.tsm.blnMCOFeeFound);
  EXPECT_FALSE(bench.stop.isSet);
}

TEST(GetTSMList, ARefusedDisplayIsLookedAtBeforeTheOtherFlags) {
  TSMBench bench;
  bench.displays = {bench.Display({{L"blnKeyDisplayOK", false},
                                   {L"blnKeyTSMFound", true},
                                   {L"blnMCOFeeFound", true},
                                   {L"dblMCOFee", 99.0}})};
  EXPECT_FALSE(bench.list.GetTSMList(0));
  EXPECT_EQ(bench.Reports(), Lines{Box110(L"Error sending TQM Transaction! ")});
  EXPECT_EQ(bench.tsm.dblMCOFee, 0);
}

TEST(GetTSMList, AListIsReadIntoAllEightArrays) {
  TSMBench bench;
  bench.displays = {bench.ListOfThree()};
  EXPECT_TRUE(bench.list.GetTSMList(0));
  EXPECT_EQ(bench.tsm.intNoTSM, 3);
  EXPECT_EQ(bench.tsm.GetArrIntM(), (std::vector<std::int16_t>{4, 7, 9}));
  EXPECT_EQ(bench.tsm.GetArrIntP(), (std::vector<std::int16_t>{1, 2, 3}));
  EXPECT_EQ(bench.tsm.GetArrDblAmount(), (std::vector<double>{4.5, 7.5, 9.5}));
  EXPECT_EQ(bench.tsm.GetArrStrR(), (Lines{L"R4", L"R7", L"R9"}));
  EXPECT_EQ(bench.tsm.GetArrStrL(), (Lines{L"1-2", L"3", L"4"}));
  EXPECT_EQ(bench.tsm.GetArrStrName(), (Lines{L"NAME1", L"NAME2", L"NAME3"}));
  EXPECT_EQ(bench.tsm.GetArrStrCurrency(), (Lines{L"C4", L"C7", L"C9"}));
  EXPECT_EQ(bench.tsm.GetArrStrFOP(), (Lines{L"CASH", L"CCVI", L"CHECK"}));
}

TEST(GetTSMList, AListClearsBothFlags) {
  TSMBench bench;
  bench.tsm.blnTSMFound = true;
  bench.tsm.blnMCOFeeFound = true;
  bench.displays = {bench.ListOfThree()};
  EXPECT_TRUE(bench.list.GetTSMList(0));
  EXPECT_FALSE(bench.tsm.blnTSMFound);
  EXPECT_FALSE(bench.tsm.blnMCOFeeFound);
}

TEST(GetTSMList, AListKeepsAnEarlierErrorResponse) {
  TSMBench bench;
  bench.tsm.strErrResponse = L"EARLIER";
  bench.displays = {bench.ListOfThree()};
  bench.list.GetTSMList(0);
  EXPECT_EQ(bench.tsm.strErrResponse, L"EARLIER");
}

TEST(GetTSMList, AListWithoutAFeeStoresTheFeeAsZero) {
  TSMBench bench;
  bench.tsm.dblMCOFee = 250;
  bench.displays = {bench.ListOfThree()};
  bench.list.GetTSMList(0);
  EXPECT_EQ(bench.tsm.dblMCOFee, 0);
}

TEST(GetTSMList, AListWithAFeeStoresIt) {
  TSMBench bench;
  bench.displays = {bench.ListOfThree()};
  practice::BagIn(bench.displays[0]).Set(L"dblMCOFee", L"12.5");
  EXPECT_TRUE(bench.list.GetTSMList(0));
  EXPECT_EQ(bench.tsm.dblMCOFee, 12.5);
  EXPECT_FALSE(bench.tsm.blnMCOFeeFound);
}

TEST(GetTSMList, AListIsReadCallByCall) {
  TSMBench bench;
  bench.displays = {bench.List({{4, 1, L"1-2", L"CASH"}})};
  bench.list.GetTSMList(0);
  Lines calls = bench.TakeCalls();
  calls.erase(calls.begin(), calls.begin() + 11);
  EXPECT_EQ(
      calls,
      (Lines{
          L"ParameterBag.1.8 GetValue(\"intNoTSM\") -> 1",
          L"ParameterBag.1.8 GetValue(\"intTSMListMArray\") -> <List>", L"List.1.0 ?() -> [4]",
          L"ParameterBag.1.8 GetValue(\"intTSMListPArray\") -> <List>", L"List.1.0 ?() -> [1]",
          L"ParameterBag.1.8 GetValue(\"strTSMListRArray\") -> <List>", L"List.1.0 ?() -> [\"R4\"]",
          L"ParameterBag.1.8 GetValue(\"strTSMListLArray\") -> <List>",
          L"List.1.0 ?() -> [\"1-2\"]",
          L"ParameterBag.1.8 GetValue(\"strTSMListNameArray\") -> <List>",
          L"List.1.0 ?() -> [\"NAME1\"]",
          L"ParameterBag.1.8 GetValue(\"strTSMListCurrencyArray\") -> <List>",
          L"List.1.0 ?() -> [\"C4\"]",
          L"ParameterBag.1.8 GetValue(\"dblTSMListAmountArray\") -> <List>",
          L"List.1.0 ?() -> [4.5]", L"ParameterBag.1.8 GetValue(\"strTSMListFOPArray\") -> <List>",
          L"List.1.0 ?() -> [\"CASH\"]", L"ParameterBag.1.8 GetValue(\"dblMCOFee\")",
          L"ScriptGlobal.1.13 ToText(Empty) -> \"\""}));
}

TEST(GetTSMList, MoreRowsThanTheCountAreLeftOut) {
  TSMBench bench;
  bench.displays = {bench.ListOfThree()};
  practice::BagIn(bench.displays[0]).Set(L"intNoTSM", std::int16_t{2});
  EXPECT_TRUE(bench.list.GetTSMList(0));
  EXPECT_EQ(bench.tsm.GetArrIntM(), (std::vector<std::int16_t>{4, 7}));
}

TEST(GetTSMList, FewerRowsThanTheCountAreAFailureThatLeavesTheRecord) {
  TSMBench bench;
  bench.displays = {bench.ListOfThree()};
  practice::BagIn(bench.displays[0]).Set(L"intNoTSM", std::int16_t{4});
  EXPECT_FALSE(bench.list.GetTSMList(0));
  EXPECT_EQ(bench.Reports(),
            Lines{Box110(L"Error sending TQM Transaction! Description=Subscript out of range")});
  EXPECT_EQ(bench.tsm.intNoTSM, 0);
  EXPECT_TRUE(bench.tsm.GetArrIntM().empty());
}

TEST(GetTSMList, RowsThatDoNotCountFromZeroAreAFailure) {
  TSMBench bench;
  bench.displays = {bench.List({{4, 1, L"1", L"CASH"}})};
  practice::BagIn(bench.displays[0])
      .Set(L"intTSMListMArray", bench.scripted.List(hostlib::IntegerArray{{4}, 1}));
  EXPECT_FALSE(bench.list.GetTSMList(0));
}

TEST(GetTSMList, AnEmptyListNeedsNoArrays) {
  TSMBench bench;
  bench.displays = {bench.Display({{L"blnKeyDisplayOK", true}})};
  EXPECT_TRUE(bench.list.GetTSMList(0));
  EXPECT_EQ(bench.tsm.intNoTSM, 0);
}

TEST(GetTSMList, AFailureOfTheLibraryIsReportedByTheLibrary) {
  TSMBench bench;
  bench.scripted.Fail(terminal_session::kSendCommand, 77, L"the line is down");
  EXPECT_FALSE(bench.list.GetTSMList(0));
  EXPECT_EQ(Last(bench.TakeCalls(), 2), (Lines{L"ScriptErrorReporter.1.10 LastErrorNumber() -> 77",
                                               L"ScriptErrorReporter.1.11 ReportLastError()"}));
}

TEST(GetTSMList, AFailureThatTheLibraryDoesNotKeepIsDescribed) {
  TSMBench bench;
  EXPECT_FALSE(bench.list.GetTSMList(0));
  EXPECT_EQ(bench.Reports(),
            Lines{Box110(L"Error sending TQM Transaction! Description=no display is left")});
}

TEST(GetTSMList, EveryObjectIsReleasedAlsoAfterAFailure) {
  TSMBench bench;
  bench.displays = {bench.ListOfThree(), bench.Refused()};
  bench.list.GetTSMList(0);  // the global object is made on first use, and stays
  const int before = bench.recorder.LiveObjects();
  bench.list.GetTSMList(0);
  bench.list.GetTSMList(0);
  EXPECT_EQ(bench.recorder.LiveObjects(), before);
}

}  // namespace
}  // namespace mco
