#include "common/RunTimeError.h"
#include "fuzz/Input.h"
#include "mco/frmSelectMCO.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/RoomBench.h"
#include "tst/frmSelectTST.h"
#include "ui/controls/SelectionRow.h"

// A row of both lists: any text can be read back, and what fits its columns comes back as it went.

namespace {

bool Fits(const std::wstring& field, std::size_t width) {
  return !field.empty() && field.size() <= width && common::Trim(field) == field;
}

void ReadBack(const std::vector<std::wstring>& lines) {
  const ui::SelectionRow row{fuzz::Line(lines, 0), fuzz::Line(lines, 1), fuzz::Line(lines, 2),
                             fuzz::Line(lines, 3)};
  try {
    const ui::SelectionRow read = ui::ReadRow(ui::RowText(row));
    const bool fits = Fits(row.number, 8) && Fits(row.persons, 8) && Fits(row.fop, 25);
    fuzz::Require(
        !fits || (read.number == row.number && read.persons == row.persons && read.fop == row.fop),
        "a row is read as it was written");
  } catch (const common::RunTimeError&) {
    // A field that is wider than its column.
  }
}

void ChooseTST(const std::wstring& text) {
  support::FakeDesktop desktop;
  support::ThrowingRunEnd runEnd;
  tst::frmSelectTST form(desktop, runEnd);
  form.lstTST.Add(text);
  form.lstTST.Add(text);
  form.lstTST.SelectionChanged({true, true});
  form.cmdOK.Clicked();
  fuzz::Require(form.blnOK, "two equal rows go together");
}

void ChooseMCO(const std::wstring& text) {
  mco::frmSelectMCO form;
  form.lstMCO.Add(text);
  form.lstMCO.Select(0);
  form.btnOK.Clicked();
  fuzz::Require(form.blnOK, "a selected row is taken");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::wstring text = fuzz::TextOf(data, size);
  ui::ReadRow(text);
  ReadBack(fuzz::LinesOf(text));
  ChooseTST(text);
  ChooseMCO(text);
  return 0;
}
