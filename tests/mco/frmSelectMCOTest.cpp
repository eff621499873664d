#include <gtest/gtest.h>

#include "common/RunTimeError.h"
#include "mco/frmSelectMCO.h"
#include "tests/support/FakeDesktop.h"

namespace mco {
namespace {

std::wstring Blanks(std::size_t count) { return std::wstring(count, L' '); }

std::wstring LineOf(std::wstring_view tsm, std::wstring_view segments, std::wstring_view person,
                    std::wstring_view fop) {
  frmSelectMCO form;
  form.addMCOtoList(tsm, segments, person, fop);
  return form.lstMCO.Items().at(0).text;
}

TSMInfo TwoTSMs() {
  TSMInfo tsm;
  tsm.intNoTSM = 2;
  tsm.SetArrIntM({12, 7});
  tsm.SetArrIntP({3, 4});
  tsm.SetArrStrL({L"SEG A", L"SEG B"});
  tsm.SetArrStrFOP({L"CASH", L"CCVI4444"});
  return tsm;
}

// Loads the form with a line of these fields, selects it and presses OK.
struct Chosen {
  Chosen(std::wstring_view tsm, std::wstring_view segments, std::wstring_view person,
         std::wstring_view fop) {
    form.Load();
    form.addMCOtoList(tsm, segments, person, fop);
    form.lstMCO.SelectionChanged({true});
    form.btnOK.Clicked();
  }
  frmSelectMCO form;
};

TEST(FrmSelectMCO, ItsCaptionsAreExact) {
  const frmSelectMCO form;
  EXPECT_EQ(form.Caption(), L"  PTA Script - MCO Record list");
  EXPECT_EQ(form.lblSelectMCO.Text(), L"Select a MCO");
  EXPECT_EQ(form.lblSelectMCOHeading.Text(),
            L"TSM" + Blanks(3) + L"P" + Blanks(5) + L"FOP" + Blanks(24) + L"SEGMENTS" + Blanks(5));
  EXPECT_EQ(form.btnOK.Text(), L"OK");
  EXPECT_EQ(form.btnCancel.Text(), L"Cancel");
}

TEST(FrmSelectMCO, TheListIsFirstInTheTabOrderThenTheButtons) {
  const frmSelectMCO form;
  std::vector<std::wstring> order;
  for (const ui::Control* control : form.controls()) {
    if (control->CanFocus()) order.emplace_back(control->name());
  }
  EXPECT_EQ(order, (std::vector<std::wstring>{L"lstMCO", L"btnOK", L"btnCancel"}));
}

TEST(FrmSelectMCO, ALineStandsInTheColumns1And10And19And45) {
  EXPECT_EQ(LineOf(L"7", L"SEG", L"2", L"CASH"),
            L"7" + Blanks(8) + L"2" + Blanks(8) + L"CASH" + Blanks(22) + L"SEG");
}

TEST(FrmSelectMCO, FieldsAsLongAsTheirColumnsAreLegal) {
  const std::wstring fop(26, L'F');
  EXPECT_EQ(LineOf(L"123456789", L"SEG", L"987654321", fop), L"123456789987654321" + fop + L"SEG");
}

TEST(FrmSelectMCO, AFieldLongerThanItsColumnIsAnError) {
  EXPECT_THROW(LineOf(L"1234567890", L"", L"1", L""), common::RunTimeError);
  EXPECT_THROW(LineOf(L"1", L"", L"1234567890", L""), common::RunTimeError);
  EXPECT_THROW(LineOf(L"1", L"", L"1", std::wstring(27, L'F')), common::RunTimeError);
}

TEST(FrmSelectMCO, ALineThatIsAnErrorIsNotAdded) {
  frmSelectMCO form;
  EXPECT_THROW(form.addMCOtoList(L"1", L"", L"1234567890", L""), common::RunTimeError);
  EXPECT_EQ(form.lstMCO.Count(), 0);
}

TEST(FrmSelectMCO, AnEmptyFieldLeavesItsColumnOneBlankShort) {
  EXPECT_EQ(LineOf(L"", L"SEG", L"2", L"CASH"),
            Blanks(8) + L"2" + Blanks(8) + L"CASH" + Blanks(22) + L"SEG");
  EXPECT_EQ(LineOf(L"7", L"SEG", L"", L"CASH"),
            L"7" + Blanks(8) + Blanks(8) + L"CASH" + Blanks(22) + L"SEG");
  EXPECT_EQ(LineOf(L"7", L"SEG", L"2", L""),
            L"7" + Blanks(8) + L"2" + Blanks(8) + Blanks(25) + L"SEG");
}

TEST(FrmSelectMCO, TheSegmentTextIsNeitherPaddedNorCut) {
  const std::wstring segments(200, L'S');
  EXPECT_EQ(LineOf(L"7", segments, L"2", L"CASH").substr(44), segments);
}

TEST(FrmSelectMCO, PopulateAddsALineForEachTSMFromItsNumberSegmentsPersonAndFOP) {
  frmSelectMCO form;
  form.Populate(TwoTSMs());
  ASSERT_EQ(form.lstMCO.Count(), 2);
  EXPECT_EQ(form.lstMCO.Items()[0].text,
            L"12" + Blanks(7) + L"3" + Blanks(8) + L"CASH" + Blanks(22) + L"SEG A");
  EXPECT_EQ(form.lstMCO.Items()[1].text,
            L"7" + Blanks(8) + L"4" + Blanks(8) + L"CCVI4444" + Blanks(18) + L"SEG B");
}

TEST(FrmSelectMCO, PopulateSelectsTheFirstLine) {
  frmSelectMCO form;
  form.Populate(TwoTSMs());
  EXPECT_EQ(form.lstMCO.ListIndex(), 0);
  EXPECT_FALSE(form.blnOK);
}

TEST(FrmSelectMCO, OKReadsTheSelectedLineBackTrimmed) {
  frmSelectMCO form;
  form.Populate(TwoTSMs());
  form.Load();
  form.lstMCO.SelectionChanged({false, true});
  form.btnOK.Clicked();
  EXPECT_TRUE(form.blnOK);
  EXPECT_EQ(form.strSelectedMCO, L"7");
  EXPECT_EQ(form.strSelectedPerson, L"4");
  EXPECT_EQ(form.strSelectedFOP, L"CCVI4444");
  EXPECT_EQ(form.strSelectedSegment, L"SEG B");
  EXPECT_EQ(form.intSelectedIndex, 1);
}

TEST(FrmSelectMCO, OKClosesTheForm) {
  const Chosen chosen(L"1", L"", L"1", L"CASH");
  EXPECT_FALSE(chosen.form.IsLoaded());
}

TEST(FrmSelectMCO, FieldsThatFillTheirColumnsAreReadBackWhole) {
  const std::wstring fop(26, L'F');
  const std::wstring segments(60, L'S');
  const Chosen chosen(L"123456789", segments, L"987654321", fop);
  EXPECT_EQ(chosen.form.strSelectedMCO, L"123456789");
  EXPECT_EQ(chosen.form.strSelectedPerson, L"987654321");
  EXPECT_EQ(chosen.form.strSelectedFOP, fop);
  EXPECT_EQ(chosen.form.strSelectedSegment, segments);
}

TEST(FrmSelectMCO, ALineWithAnEmptyFOPIsReadBackShiftedByOne) {
  const Chosen chosen(L"7", L"3-4", L"2", L"");
  EXPECT_EQ(chosen.form.strSelectedFOP, L"3");
  EXPECT_EQ(chosen.form.strSelectedSegment, L"-4");
}

TEST(FrmSelectMCO, ALineWithAnEmptyPersonIsReadBackShiftedByOne) {
  const Chosen chosen(L"7", L"3-4", L"", L"CASH");
  EXPECT_EQ(chosen.form.strSelectedPerson, L"C");
  EXPECT_EQ(chosen.form.strSelectedFOP, L"ASH" + Blanks(22) + L"3");
  EXPECT_EQ(chosen.form.strSelectedSegment, L"-4");
}

TEST(FrmSelectMCO, OKWithoutASelectedLineLeavesTheFormOpen) {
  frmSelectMCO form;
  form.Populate(TwoTSMs());
  form.Load();
  form.lstMCO.SelectionChanged({false, false});
  form.btnOK.Clicked();
  EXPECT_TRUE(form.IsLoaded());
  EXPECT_FALSE(form.blnOK);
}

TEST(FrmSelectMCO, CancelClosesWithoutAChoice) {
  frmSelectMCO form;
  form.Populate(TwoTSMs());
  form.Load();
  form.btnCancel.Clicked();
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_FALSE(form.blnOK);
  EXPECT_EQ(form.strSelectedMCO, L"");
}

TEST(FrmSelectMCO, TheCloseBoxClosesWithoutAChoice) {
  frmSelectMCO form;
  form.Populate(TwoTSMs());
  form.Load();
  form.OnCloseBox();
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_FALSE(form.blnOK);
}

}  // namespace
}  // namespace mco
