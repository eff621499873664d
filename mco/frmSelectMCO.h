#pragma once

#include <cstdint>
#include <string>

#include "mco/TSMInfo.h"
#include "ui/controls/Form.h"
#include "ui/controls/SelectionRow.h"

namespace mco {

/// Lets the agent choose the MCO that the PTA is for, when the PNR has several.
class frmSelectMCO : public ui::Form {
 public:
  frmSelectMCO();

  ui::Label lblSelectMCO{*this, L"lblSelectMCO", L"Select a MCO"};
  ui::ListHeading lblSelectMCOHeading{*this, L"lblSelectMCOHeading",
                                      L"TSM   P     FOP                        SEGMENTS     ",
                                      ui::RowColumns()};
  ui::ListBox lstMCO{*this, L"lstMCO", ui::ListBox::Selection::kSingle};
  ui::Button btnOK{*this, L"btnOK", L"OK"};
  ui::Button btnCancel{*this, L"btnCancel", L"Cancel"};

  // What the agent chose, trimmed; to be read after the form has closed.
  bool blnOK = false;  ///< a line was chosen: without it the fields below say nothing
  std::wstring strSelectedMCO;
  std::wstring strSelectedFOP;
  std::wstring strSelectedPerson;
  std::wstring strSelectedSegment;
  std::int16_t intSelectedIndex = 0;  ///< 0-based

  /// One line for each TSM, the first one selected.
  void Populate(const TSMInfo& tsm);
  /// Adds one line. Throws RunTimeError when a field is longer than its column.
  void addMCOtoList(std::wstring_view tsm, std::wstring_view segments, std::wstring_view person,
                    std::wstring_view fop);

  void OnCloseBox() override;

 private:
  void TakeChoice();
};

}  // namespace mco
