#include "mco/frmSelectMCO.h"

#include <algorithm>

#include "common/ConstDefintions.h"
#include "common/Numbers.h"
#include "common/Text.h"

namespace mco {
namespace {

constexpr int kMCOWidth = 9;
constexpr int kPersonWidth = 9;
constexpr int kFOPWidth = 26;

constexpr int kPersonColumn = 1 + kMCOWidth;
constexpr int kFOPColumn = kPersonColumn + kPersonWidth;
constexpr int kSegmentColumn = kFOPColumn + kFOPWidth;

// Never a whole column of blanks: after an empty field the line stands one position early, and is
// read back so.
std::wstring Column(std::wstring_view field, int width) {
  const int blanks = std::min(width - common::Length(field), width - 1);
  return std::wstring(field) + common::Space(blanks);
}

std::wstring ReadColumn(std::wstring_view line, int column, int width) {
  return common::Trim(common::Mid(line, column, width));
}

}  // namespace

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
  ForgetChoice();
  lstMCO.Clear();
  for (std::int16_t i = 0; i < tsm.intNoTSM; ++i) {
    const auto at = static_cast<std::size_t>(i);
    addMCOtoList(common::NumberText(numbers.at(at)), segments.at(at),
                 common::NumberText(persons.at(at)), fops.at(at));
  }
  lstMCO.Select(0);
}

void frmSelectMCO::addMCOtoList(std::wstring_view tsm, std::wstring_view segments,
                                std::wstring_view person, std::wstring_view fop) {
  std::wstring line = Column(tsm, kMCOWidth);
  line += Column(person, kPersonWidth);
  line += Column(fop, kFOPWidth);
  line += segments;
  lstMCO.Add(line);
}

void frmSelectMCO::OnCloseBox() { Unload(); }

void frmSelectMCO::ForgetChoice() {
  blnOK = false;
  strSelectedMCO.clear();
  strSelectedFOP.clear();
  strSelectedPerson.clear();
  strSelectedSegment.clear();
  intSelectedIndex = 0;
}

void frmSelectMCO::TakeChoice() {
  const int index = lstMCO.ListIndex();
  if (index < 0) return;
  const std::wstring& line = lstMCO.Items()[static_cast<std::size_t>(index)].text;
  strSelectedMCO = ReadColumn(line, 1, kMCOWidth);
  strSelectedPerson = ReadColumn(line, kPersonColumn, kPersonWidth);
  strSelectedFOP = ReadColumn(line, kFOPColumn, kFOPWidth);
  strSelectedSegment = common::Trim(common::Mid(line, kSegmentColumn));
  intSelectedIndex = static_cast<std::int16_t>(index);
  blnOK = true;
  Unload();
}

}  // namespace mco
