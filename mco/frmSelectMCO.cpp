#include "mco/frmSelectMCO.h"

#include <utility>

#include "common/ConstDefintions.h"
#include "common/Numbers.h"

namespace mco {

frmSelectMCO::frmSelectMCO() : Form(L"frmSelectMCO") {
  SetCaption(std::wstring(common::kTitle) + L"- MCO Record list");
  btnOK.onClick = [this] { TakeChoice(); };
  btnCancel.onClick = [this] { Unload(); };
}

void frmSelectMCO::Populate(const TSMInfo& tsm) {
  const auto numbers = tsm.GetArrIntM();
  const auto segments = tsm.GetArrStrL();
  const auto fops = tsm.GetArrStrFOP();
  const auto persons = tsm.GetArrIntP();
  for (std::int16_t i = 0; i < tsm.intNoTSM; ++i) {
    const auto at = static_cast<std::size_t>(i);
    addMCOtoList(common::NumberText(numbers.at(at)), segments.at(at),
                 common::NumberText(persons.at(at)), fops.at(at));
  }
  lstMCO.Select(0);
}

void frmSelectMCO::addMCOtoList(std::wstring_view tsm, std::wstring_view segments,
                                std::wstring_view person, std::wstring_view fop) {
  lstMCO.Add(ui::RowText(
      {std::wstring(tsm), std::wstring(person), std::wstring(fop), std::wstring(segments)}));
}

void frmSelectMCO::OnCloseBox() { Unload(); }

void frmSelectMCO::TakeChoice() {
  const int index = lstMCO.ListIndex();
  if (index < 0) return;
  ui::SelectionRow row = ui::ReadRow(lstMCO.Items()[static_cast<std::size_t>(index)].text);
  strSelectedMCO = std::move(row.number);
  strSelectedPerson = std::move(row.persons);
  strSelectedFOP = std::move(row.fop);
  strSelectedSegment = std::move(row.segments);
  intSelectedIndex = static_cast<std::int16_t>(index);
  blnOK = true;
  Unload();
}

}  // namespace mco
