#include "tests/tst/SelectionBench.h"
#include "ui/controls/SelectionRow.h"

namespace tst {
namespace {

using hostlib::TextArray;
using ui::RowText;

TextArray Rows(std::vector<std::wstring> items) {
  return {.items = std::move(items), .lowerBound = 1};
}

struct ThreeRows : SelectionBench {
  void Select() {
    room.SelectTSTFromList(Rows({L"2-3", L"4", L"2-3"}), Rows({L"1", L"2", L"3"}),
                           Rows({L"P1", L"P2", L"P3"}), Rows({L"CASH", L"CHECK", L"CASH"}));
  }
};

TEST(SelectTSTFromList, TheRowsStandInTheDialogWhenItOpens) {
  ThreeRows bench;
  Lines texts;
  bench.desktop.inModal = [&](ui::Form& form) {
    for (const auto& item : static_cast<frmSelectTST&>(form).lstTST.Items()) {
      texts.push_back(item.text);
    }
  };
  bench.Select();
  EXPECT_EQ(texts,
            (Lines{RowText({L"1", L"P1", L"CASH", L"2-3"}), RowText({L"2", L"P2", L"CHECK", L"4"}),
                   RowText({L"3", L"P3", L"CASH", L"2-3"})}));
}

TEST(SelectTSTFromList, ThePickedNumbersAreKept) {
  ThreeRows bench;
  bench.AgentPicks({0, 2});
  bench.Select();
  EXPECT_EQ(bench.room.SelectedTSTNumbers(), L"1,3");
  EXPECT_EQ(bench.room.SelectedTSTArray(), (Lines{L"1", L"3"}));
}

TEST(SelectTSTFromList, AnInvalidChoiceCanBeMadeGood) {
  ThreeRows bench;
  bench.desktop.inModal = [](ui::Form& form) {
    auto& selection = static_cast<frmSelectTST&>(form);
    selection.lstTST.SelectionChanged({true, true, false});
    selection.cmdOK.Clicked();
    selection.lstTST.SelectionChanged({true, false, false});
    selection.cmdOK.Clicked();
  };
  bench.Select();
  EXPECT_EQ(bench.room.SelectedTSTNumbers(), L"1");
  EXPECT_EQ(bench.OwnBoxes(), Lines{L"box 64 \"Invalid Field !\" \"Selected TST's must belong to "
                                    L"the same segment\" -> 1"});
}

TEST(SelectTSTFromList, WithoutAnOKNothingIsSelected) {
  ThreeRows bench;
  bench.AgentPicks({0});
  bench.Select();
  bench.desktop.inModal = nullptr;
  bench.Select();
  EXPECT_EQ(bench.room.SelectedTSTNumbers(), L"");
  EXPECT_EQ(bench.room.SelectedTSTArray(), Lines());
}

TEST(SelectTSTFromList, AnInvalidChoiceAloneSelectsNothing) {
  ThreeRows bench;
  bench.AgentPicks({0, 1});
  bench.Select();
  EXPECT_EQ(bench.room.SelectedTSTNumbers(), L"");
}

TEST(SelectTSTFromList, TheProgressFormComesBackUnderTheProgramsTitle) {
  ThreeRows bench;
  bench.AgentPicks({0});
  bench.Select();
  EXPECT_EQ(bench.working.Caption(), L"  PTA Script ");
  EXPECT_EQ(bench.desktop.log.back(), L"show frmWorking");
}

TEST(SelectTSTFromList, AFailureIsReportedWithTheNumber41) {
  SelectionBench bench;
  bench.room.SelectTSTFromList(Rows({L"2"}), Rows({L"1234567890"}), Rows({L"1"}), Rows({L"CASH"}));
  EXPECT_EQ(bench.TakeCalls(),
            Lines{L"ScriptErrorReporter.1.18 ShowError(-2147221463, \"  PTA Script \", \"Error "
                  L"when selecting TST from the TST list!\", 16)"});
  EXPECT_TRUE(bench.stop.isSet);
}

}  // namespace
}  // namespace tst
