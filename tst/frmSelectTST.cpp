#include "tst/frmSelectTST.h"

#include "common/ConstDefintions.h"

namespace tst {
namespace {

// Only the beginning of the segments says which belong together.
constexpr int kSegmentsCompared = 6;

}  // namespace

frmSelectTST::frmSelectTST(common::MessageBoxes& boxes, common::RunEnd& runEnd)
    : Form(L"frmSelectTST"), boxes_(boxes), runEnd_(runEnd) {
  SetCaption(std::wstring(common::kTitle) + L"- TST Record list");
  cmdOK.onClick = [this] { OnOK(); };
  cmdCancel.onClick = [this] { OnCloseBox(); };
}

void frmSelectTST::ForgetChoice() {
  blnOK = false;
  strTSTNumbers.clear();
  strPersons.clear();
  strFOPs.clear();
  strSegments.clear();
}

void frmSelectTST::addTSTtoList(std::wstring_view tstNumber, std::wstring_view segment,
                                std::wstring_view persons, std::wstring_view fop) {
  lstTST.Add(ui::RowText(
      {std::wstring(tstNumber), std::wstring(persons), std::wstring(fop), std::wstring(segment)}));
}

std::wstring frmSelectTST::getStrSelectedTSTs() const {
  std::wstring joined;
  for (std::size_t i = 0; i < strTSTNumbers.size(); ++i) {
    if (i > 0) joined += L",";
    joined += strTSTNumbers[i];
  }
  return joined;
}

void frmSelectTST::OnCloseBox() { runEnd_.EndScript(); }

void frmSelectTST::OnOK() {
  ForgetChoice();
  CollectSelectedRows();
  if (strTSTNumbers.empty() || !ChoiceIsValid()) return;
  blnOK = true;
  Hide();
}

void frmSelectTST::CollectSelectedRows() {
  for (const ui::ListBox::Item& item : lstTST.Items()) {
    if (!item.selected) continue;
    ui::SelectionRow row = ui::ReadRow(item.text, kSegmentsCompared);
    strTSTNumbers.push_back(std::move(row.number));
    strPersons.push_back(std::move(row.persons));
    strFOPs.push_back(std::move(row.fop));
    strSegments.push_back(std::move(row.segments));
  }
}

bool frmSelectTST::ChoiceIsValid() {
  for (std::size_t i = 0; i < strTSTNumbers.size(); ++i) {
    if (strSegments[i] != strSegments.front()) {
      ShowInvalid(L"Selected TST's must belong to the same segment");
      return false;
    }
    if (strFOPs[i] != strFOPs.front()) {
      ShowInvalid(L"Selected TST's must hav the same FOP");
      return false;
    }
  }
  return true;
}

void frmSelectTST::ShowInvalid(std::wstring_view text) {
  boxes_.ShowBox(text, common::kInformation, L"Invalid Field !");
}

}  // namespace tst
