#include "common/Text.h"
#include "tests/support/RoomBench.h"
#include "tst/frmSelectTST.h"

namespace tst {
namespace {

using Lines = std::vector<std::wstring>;

struct DialogBench : support::RoomBench {
  frmSelectTST form{desktop, runEnd};

  void Add(std::wstring_view number, std::wstring_view segment, std::wstring_view fop = L"CASH") {
    form.addTSTtoList(number, segment, L"1", fop);
  }
  void Show() {
    form.Load();
    form.Shown(desktop);
  }
  void PickAndPressOK(const std::vector<bool>& picked) {
    form.lstTST.SelectionChanged(picked);
    form.cmdOK.Clicked();
  }
};

const std::wstring kSegmentBox =
    L"box 64 \"Invalid Field !\" \"Selected TST's must belong to the same segment\" -> 1";
const std::wstring kFOPBox =
    L"box 64 \"Invalid Field !\" \"Selected TST's must hav the same FOP\" -> 1";

TEST(frmSelectTST, TheCaptionsAreExact) {
  DialogBench bench;
  EXPECT_EQ(bench.form.Caption(), L"  PTA Script - TST Record list");
  EXPECT_EQ(bench.form.lblSelectTST.Text(), L"Select one or many TST(s) ");
  EXPECT_EQ(bench.form.cmdOK.Text(), L"OK");
  EXPECT_EQ(bench.form.cmdCancel.Text(), L"Cancel");
}

TEST(frmSelectTST, TheHeadingHas91CharactersInItsColumns) {
  DialogBench bench;
  const std::wstring_view heading = bench.form.lblSelectHeading.Text();
  EXPECT_EQ(heading.size(), 91U);
  EXPECT_EQ(common::InStr(heading, L"TST"), 1);
  EXPECT_EQ(common::InStr(heading, L"P"), 18);
  EXPECT_EQ(common::InStr(heading, L"FOP"), 35);
  EXPECT_EQ(common::InStr(heading, L"SEGMENTS"), 83);
  EXPECT_EQ(heading.back(), L' ');
}

TEST(frmSelectTST, TheControlsStandInTabOrder) {
  DialogBench bench;
  Lines names;
  for (const ui::Control* control : bench.form.controls()) names.emplace_back(control->name());
  EXPECT_EQ(names,
            (Lines{L"lblSelectTST", L"lblSelectHeading", L"lstTST", L"cmdOK", L"cmdCancel"}));
}

TEST(frmSelectTST, SeveralRowsCanBeSelected) {
  DialogBench bench;
  EXPECT_EQ(bench.form.lstTST.selection(), ui::ListBox::Selection::kMultiple);
}

TEST(frmSelectTST, ARowShowsNumberPersonsFormOfPaymentAndSegments) {
  DialogBench bench;
  bench.form.addTSTtoList(L"1", L"2-3", L"4", L"CASH");
  EXPECT_EQ(
      bench.form.lstTST.Items().front().text,
      L"1" + common::Space(8) + L"4" + common::Space(8) + L"CASH" + common::Space(22) + L"2-3");
}

TEST(frmSelectTST, OKWithAValidChoiceKeepsTheFieldsAndHidesTheDialog) {
  DialogBench bench;
  bench.form.addTSTtoList(L"1", L"2-3", L"1", L"CASH");
  bench.form.addTSTtoList(L"2", L"4", L"2", L"CHECK");
  bench.form.addTSTtoList(L"3", L"2-3", L"3", L"CASH");
  bench.Show();
  bench.PickAndPressOK({true, false, true});
  EXPECT_TRUE(bench.form.blnOK);
  EXPECT_FALSE(bench.form.IsVisible());
  EXPECT_EQ(bench.form.strTSTNumbers, (Lines{L"1", L"3"}));
  EXPECT_EQ(bench.form.strPersons, (Lines{L"1", L"3"}));
  EXPECT_EQ(bench.form.strFOPs, (Lines{L"CASH", L"CASH"}));
  EXPECT_EQ(bench.form.strSegments, (Lines{L"2-3", L"2-3"}));
  EXPECT_EQ(bench.form.getStrSelectedTSTs(), L"1,3");
  EXPECT_EQ(bench.form.getStrArraySelectedTSTs(), (Lines{L"1", L"3"}));
}

TEST(frmSelectTST, OneChoiceStandsWithoutAComma) {
  DialogBench bench;
  bench.Add(L"1", L"2");
  bench.Add(L"2", L"2");
  bench.Show();
  bench.PickAndPressOK({false, true});
  EXPECT_EQ(bench.form.getStrSelectedTSTs(), L"2");
}

TEST(frmSelectTST, OKWithNothingSelectedLeavesTheDialogOpenWithoutABox) {
  DialogBench bench;
  bench.Add(L"1", L"2");
  bench.Show();
  bench.PickAndPressOK({false});
  EXPECT_FALSE(bench.form.blnOK);
  EXPECT_TRUE(bench.form.IsVisible());
  EXPECT_EQ(bench.desktop.log, Lines{});
}

TEST(frmSelectTST, DifferentSegmentsAreRefusedAndTheDialogStaysOpen) {
  DialogBench bench;
  bench.Add(L"1", L"2");
  bench.Add(L"2", L"3");
  bench.Show();
  bench.PickAndPressOK({true, true});
  EXPECT_EQ(bench.desktop.log, Lines{kSegmentBox});
  EXPECT_FALSE(bench.form.blnOK);
  EXPECT_TRUE(bench.form.IsVisible());
}

TEST(frmSelectTST, DifferentFormsOfPaymentAreRefusedAndTheDialogStaysOpen) {
  DialogBench bench;
  bench.Add(L"1", L"2", L"CASH");
  bench.Add(L"2", L"2", L"CHECK");
  bench.Show();
  bench.PickAndPressOK({true, true});
  EXPECT_EQ(bench.desktop.log, Lines{kFOPBox});
  EXPECT_FALSE(bench.form.blnOK);
  EXPECT_TRUE(bench.form.IsVisible());
}

TEST(frmSelectTST, TheSegmentIsLookedAtBeforeTheFormOfPaymentOfTheSameRow) {
  DialogBench bench;
  bench.Add(L"1", L"2", L"CASH");
  bench.Add(L"2", L"3", L"CHECK");
  bench.Show();
  bench.PickAndPressOK({true, true});
  EXPECT_EQ(bench.desktop.log, Lines{kSegmentBox});
}

TEST(frmSelectTST, TheFirstFailingRowStopsTheCheck) {
  DialogBench bench;
  bench.Add(L"1", L"2", L"CASH");
  bench.Add(L"2", L"2", L"CHECK");
  bench.Add(L"3", L"9", L"CASH");
  bench.Show();
  bench.PickAndPressOK({true, true, true});
  EXPECT_EQ(bench.desktop.log, Lines{kFOPBox});
}

TEST(frmSelectTST, SegmentsThatDifferOnlyAfterTheSixthCharacterAreTheSame) {
  DialogBench bench;
  bench.Add(L"1", L"2,3,4,5");
  bench.Add(L"2", L"2,3,4,6");
  bench.Show();
  bench.PickAndPressOK({true, true});
  EXPECT_TRUE(bench.form.blnOK);
  EXPECT_EQ(bench.desktop.log, Lines{L"close frmSelectTST"});
}

TEST(frmSelectTST, RowsThatAreNotSelectedTakeNoPartInTheCheck) {
  DialogBench bench;
  bench.Add(L"1", L"9", L"CHECK");
  bench.Add(L"2", L"2");
  bench.Add(L"3", L"2");
  bench.Show();
  bench.PickAndPressOK({false, true, true});
  EXPECT_TRUE(bench.form.blnOK);
}

TEST(frmSelectTST, ASecondOKStartsAfresh) {
  DialogBench bench;
  bench.Add(L"1", L"2");
  bench.Add(L"2", L"3");
  bench.Show();
  bench.PickAndPressOK({true, true});
  bench.PickAndPressOK({false, true});
  EXPECT_TRUE(bench.form.blnOK);
  EXPECT_EQ(bench.form.getStrArraySelectedTSTs(), Lines{L"2"});
}

TEST(frmSelectTST, CancelEndsTheRun) {
  DialogBench bench;
  bench.Add(L"1", L"2");
  bench.Show();
  EXPECT_THROW(bench.form.cmdCancel.Clicked(), support::EndedByEndScript);
}

TEST(frmSelectTST, TheCloseBoxEndsTheRun) {
  DialogBench bench;
  bench.Show();
  EXPECT_THROW(bench.form.OnCloseBox(), support::EndedByEndScript);
}

}  // namespace
}  // namespace tst
