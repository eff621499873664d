// Several TSTs: the agent picks, the picked ones are read.
#include "tests/tst/SelectionBench.h"

namespace tst {
namespace {

const Lines kListSent = {L"TerminalSession.1.11 SendEntry(\"TQT\")",
                         L"TerminalSession.1.15 SendDisplay(\"TQT\")"};

TEST(PickedTSTs, TwoTSTsAlwaysShowTheDialog) {
  SelectionBench bench;
  bench.HasList({{.number = L"1"}, {.number = L"2"}});
  bench.AgentPicks({0});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.desktop.log,
            (Lines{L"modal frmSelectTST", L"close frmSelectTST", L"show frmWorking"}));
  EXPECT_TRUE(bench.mco.blnMultTST);
}

TEST(PickedTSTs, ThePickedTSTsAreDisplayedAndReadInListOrder) {
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

TEST(PickedTSTs, TheDisplayOfAPickedTSTIsNotReadAsAList) {
  SelectionBench bench;
  bench.HasList({{.number = L"1"}, {.number = L"2"}});
  bench.AgentPicks({0, 1});
  bench.room.ReadTSTList();
  const Lines way = bench.TakeWay();
  EXPECT_EQ(std::ranges::count_if(
                way, [](const auto& line) { return line.starts_with(L"TstListRequest.1.10"); }),
            1);
}

TEST(PickedTSTs, TwentyTSTsAreReadInOrder) {
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

TEST(PickedTSTs, RowsWithoutSegmentsAreNotRead) {
  SelectionBench bench;
  bench.HasList({{.number = L"1", .segment = L""}, {.number = L"2", .segment = L""}});
  bench.AgentPicks({0, 1});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.Filed(), Lines{});
  EXPECT_EQ(bench.Sent(), kListSent);
  EXPECT_EQ(bench.ReportedBoxes(), Lines{});
  EXPECT_EQ(bench.room.SelectedTSTNumbers(), L"1,2");
}

TEST(PickedTSTs, ARowOfOtherSegmentsThanTheFirstOnesIsPassedOver) {
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

TEST(PickedTSTs, ASegmentAssociationThatIsThereAlreadyDecides) {
  SelectionBench bench;
  bench.HasList({{.number = L"1"}, {.number = L"2"}});
  bench.mco.strSegAsso = L"9";
  bench.AgentPicks({0, 1});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.Filed(), Lines{});
  EXPECT_EQ(bench.general.strSegAsso, L"");
}

TEST(PickedTSTs, APickedNumberThatIsNotInTheListAsItStandsIsIgnored) {
  // The dialog reads its rows back trimmed; the list is compared exactly.
  SelectionBench bench;
  bench.HasList({{.number = L" 1"}, {.number = L"2"}});
  bench.AgentPicks({0, 1});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.Filed(), Lines{L"2"});
}

TEST(PickedTSTs, ATSTThatIsListedTwiceCannotBeFiledTwice) {
  SelectionBench bench;
  bench.HasList({{.number = L"1"}, {.number = L"1"}});
  bench.AgentPicks({0});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.ReportedBoxes(), Lines{L"16 Error when reading the current TQT Response!"});
  EXPECT_EQ(bench.Filed(), Lines{L"1"});
  EXPECT_TRUE(bench.stop.isSet);
}

TEST(PickedTSTs, CancelInTheDialogEndsTheRun) {
  SelectionBench bench;
  bench.HasList({{.number = L"1"}, {.number = L"2"}});
  bench.desktop.inModal = [](ui::Form& form) {
    static_cast<frmSelectTST&>(form).cmdCancel.Clicked();
  };
  EXPECT_THROW(bench.room.ReadTSTList(), support::EndedByEndScript);
  EXPECT_EQ(bench.Sent(), kListSent);
  EXPECT_EQ(bench.ReportedBoxes(), Lines{});
}

TEST(PickedTSTs, TheCloseBoxOfTheDialogEndsTheRun) {
  SelectionBench bench;
  bench.HasList({{.number = L"1"}, {.number = L"2"}});
  bench.desktop.inModal = [](ui::Form& form) { form.OnCloseBox(); };
  EXPECT_THROW(bench.room.ReadTSTList(), support::EndedByEndScript);
  EXPECT_EQ(bench.Sent(), kListSent);
}

TEST(PickedTSTs, TheLastListCommandAndResponseAreKept) {
  SelectionBench bench;
  bench.HasList({{.number = L"1"}, {.number = L"2"}});
  bench.AgentPicks({1});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.room.LastTransaction(), L"TQT/T2");
  EXPECT_EQ(bench.room.CurrentResponse(), L"TQT/T2 SHOWN");
}

TEST(PickedTSTs, EveryBagAndRequestIsReleased) {
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
