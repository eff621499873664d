// What becomes of the list reading when something in it fails: one box, nothing wrong filed,
// nothing more sent.
#include "tests/tst/SelectionBench.h"

namespace tst {
namespace {

namespace operations = hostlib::operations;

struct FailureBench : SelectionBench {
  FailureBench() {
    HasList({{.number = L"1"}, {.number = L"2"}});
    AgentPicks({0, 1});
  }

  /// Every box of the run, whoever shows it.
  Lines Boxes() const {
    Lines boxes = ReportedBoxes();
    for (const std::wstring& box : OwnBoxes()) boxes.push_back(box);
    return boxes;
  }
};

TEST(TSTFailures, AFailingListCommandIsReportedAndStopsTheRun) {
  FailureBench bench;
  bench.scripted.Fail(operations::terminal_session::kSendEntry, 77, L"gone");
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.TakeCalls().back(),
            L"ScriptErrorReporter.1.18 ShowError(-2147221463, \"  PTA Script \", \"Error when "
            L"verifying the TQT Response!\", 16)");
  EXPECT_TRUE(bench.stop.isSet);
  EXPECT_EQ(bench.mco.strFlightInfo, L"");
}

TEST(TSTFailures, ACountThatIsNoNumberIsReported) {
  FailureBench bench;
  bench.Answers(L"TQT SHOWN",
                bench.scripted.Bag({{L"blnKeyTSTList", true}, {L"intKeyNoOfTST", L"TWO"}}));
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.Boxes(), Lines{L"16 Error when verifying the TQT Response!"});
}

TEST(TSTFailures, AListOfOneWithoutARowIsReported) {
  FailureBench bench;
  bench.Answers(L"TQT SHOWN", bench.scripted.Bag(
                                  {{L"blnKeyTSTList", true}, {L"intKeyNoOfTST", std::int16_t{1}}}));
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.Boxes(), Lines{L"16 Error when verifying the TQT Response!"});
}

TEST(TSTFailures, AnArrayShorterThanTheSegmentsIsReported) {
  FailureBench bench;
  const hostlib::TextArray two{.items = {L"2", L"2"}, .lowerBound = 1};
  const hostlib::TextArray one{.items = {L"1"}, .lowerBound = 1};
  bench.Answers(L"TQT SHOWN", bench.scripted.Bag({{L"blnKeyTSTList", true},
                                                  {L"intKeyNoOfTST", std::int16_t{2}},
                                                  {L"strKeyTSTSegment()", two},
                                                  {L"strKeyPersonNbrArray()", two},
                                                  {L"strKeyTSTNumArray()", one},
                                                  {L"strKeyFOPArray()", two}}));
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.Boxes(), Lines{L"16 Error when verifying the TQT Response!"});
}

TEST(TSTFailures, ANumberTooLongForTheDialogIsReportedAndNothingIsRead) {
  FailureBench bench;
  bench.HasList({{.number = L"1234567890"}, {.number = L"2"}});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.Boxes(), Lines{L"16 Error when selecting TST from the TST list!"});
  EXPECT_EQ(bench.Filed(), Lines{});
  EXPECT_EQ(bench.desktop.log, Lines{});
  EXPECT_TRUE(bench.stop.isSet);
}

TEST(TSTFailures, ATSTThatCannotBeReadIsNotFiledAndNoOtherIsAskedFor) {
  FailureBench bench;
  bench.scripted.Fail(operations::tst_detail_request::kReadFare, 77, L"gone");
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.Boxes(), Lines{L"16 Error when retrieving data from the TST record!"});
  EXPECT_EQ(bench.Filed(), Lines{});
  EXPECT_EQ(bench.Sent().back(), L"TerminalSession.1.15 SendDisplay(\"TQT/T1\")");
  EXPECT_EQ(bench.mco.strFare, L"");
  EXPECT_EQ(bench.mco.strFlightInfo, L"");
  EXPECT_TRUE(bench.stop.isSet);
}

TEST(TSTFailures, TheReportOfAnUnreadableTSTHasTheNumber41) {
  FailureBench bench;
  bench.scripted.Fail(operations::tst_detail_request::kReadNames, 77, L"gone");
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.TakeCalls().back(),
            L"ScriptErrorReporter.1.18 ShowError(-2147221463, \"  PTA Script \", \"Error when "
            L"retrieving data from the TST record!\", 16)");
}

TEST(TSTFailures, TheSecondTSTFailingKeepsTheFirst) {
  FailureBench bench;
  bench.shown.erase(L"TQT/T2 SHOWN");
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.Boxes(), Lines{L"16 Error when retrieving data from the TST record!"});
  EXPECT_EQ(bench.Filed(), Lines{L"1"});
}

TEST(TSTFailures, FailingNamesStopTheReadingOfTheTST) {
  FailureBench bench;
  bench.scripted.Fail(operations::pnr_reader::kCountNameElements, 77, L"gone");
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.Boxes(), Lines{L"last error"});
  EXPECT_EQ(bench.TakeCalls().back(), L"ScriptErrorReporter.1.11 ReportLastError()");
  EXPECT_EQ(bench.Filed(), Lines{});
  EXPECT_EQ(bench.mco.strFare, L"");
  EXPECT_TRUE(bench.stop.isSet);
}

TEST(TSTFailures, AFailingFareElementLetsTheReadingGoOn) {
  FailureBench bench;
  bench.scripted.Fail(operations::pnr_reader::kCountFSElements, 77, L"gone");
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.Boxes(), (Lines{L"last error", L"last error"}));
  EXPECT_EQ(bench.Filed(), (Lines{L"1", L"2"}));
  EXPECT_FALSE(bench.stop.isSet);
}

TEST(TSTFailures, AFareThatCannotBeMultipliedIsNotAdded) {
  FailureBench bench;
  bench.Shows({.number = L"1", .names = L"1.A/A MR2.B/B MR", .fare = L"SEKIT"});
  bench.pnrNames = {L"1.A/A MR", L"2.B/B MR"};
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.Boxes(), Lines{L"16 Error when multiplying values!"});
  EXPECT_EQ(bench.Filed(), Lines{});
  EXPECT_EQ(bench.totals.strTotalFareFirstTST, L"");
  EXPECT_EQ(bench.mco.strFare, L"");
}

TEST(TSTFailures, ASumThatDoesNotFitLeavesTheTSTUnfiled) {
  FailureBench bench;
  for (const wchar_t* number : {L"1", L"2"}) {
    bench.Shows({.number = number, .fare = L"SEK2000000000"});
  }
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.Boxes(), Lines{L"16 Error adding TST values!"});
  EXPECT_EQ(bench.Filed(), Lines{L"1"});
}

TEST(TSTFailures, AnAnswerThatCannotBeReadIsReported) {
  FailureBench bench;
  bench.scripted.Fail(operations::tst_list_request::kReadResponse, 77, L"gone");
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.Boxes(), Lines{L"16 Error when verifying the TQT Response!"});
}

TEST(TSTFailures, AReadingThatFailsAtOnceLeavesNothingOfTheOneBefore) {
  FailureBench bench;
  bench.room.ReadTSTList();
  ASSERT_EQ(bench.Filed().size(), 2U);
  bench.scripted.Fail(operations::tst_list_request::kBuildListCommand, 77, L"gone");
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.Filed(), Lines{});
  EXPECT_EQ(bench.room.CurrentResponse(), L"");
  EXPECT_EQ(bench.room.LastTransaction(), L"");
}

TEST(TSTFailures, TheListCommandIsKeptEvenWhenTheHostDoesNotAnswer) {
  FailureBench bench;
  bench.scripted.Fail(operations::terminal_session::kSendEntry, 77, L"gone");
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.room.LastTransaction(), L"TQT");
}

TEST(TSTFailures, EverythingHeldIsReleased) {
  FailureBench bench;
  bench.scripted.Fail(operations::tst_detail_request::kReadFareElements, 77, L"gone");
  bench.global.ToText({});
  const int before = bench.recorder.LiveObjects();
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.recorder.LiveObjects(), before);
}

}  // namespace
}  // namespace tst
