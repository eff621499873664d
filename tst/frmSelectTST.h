#pragma once

#include <string>
#include <vector>

#include "common/EndOfRun.h"
#include "common/MessageBoxes.h"
#include "ui/controls/Form.h"
#include "ui/controls/SelectionRow.h"

namespace tst {

/// Lets the agent pick the TSTs that the PTA is for: all of one segment selection and one form of
/// payment. Cancel and the close box end the run.
class frmSelectTST : public ui::Form {
 public:
  frmSelectTST(common::MessageBoxes& boxes, common::RunEnd& runEnd);

  ui::Label lblSelectTST{*this, L"lblSelectTST", L"Select one or many TST(s) "};
  ui::ListHeading lblSelectHeading{*this, L"lblSelectHeading",
                                   L"TST              P                FOP"
                                   L"                                             SEGMENTS ",
                                   ui::RowColumns()};
  ui::ListBox lstTST{*this, L"lstTST", ui::ListBox::Selection::kMultiple};
  ui::Button cmdOK{*this, L"cmdOK", L"OK"};
  ui::Button cmdCancel{*this, L"cmdCancel", L"Cancel"};

  /// True after a valid OK.
  bool blnOK = false;
  // What OK found in the selected rows, in list order.
  std::vector<std::wstring> strTSTNumbers;
  std::vector<std::wstring> strPersons;
  std::vector<std::wstring> strFOPs;
  std::vector<std::wstring> strSegments;

  /// A field wider than its column is a RunTimeError.
  void addTSTtoList(std::wstring_view tstNumber, std::wstring_view segment,
                    std::wstring_view persons, std::wstring_view fop);
  /// The chosen TST numbers, joined with ",".
  std::wstring getStrSelectedTSTs() const;
  std::vector<std::wstring> getStrArraySelectedTSTs() const { return strTSTNumbers; }

  void OnCloseBox() override;

 private:
  void OnOK();
  void ForgetChoice();
  void CollectSelectedRows();
  bool ChoiceIsValid();
  void ShowInvalid(std::wstring_view text);

  common::MessageBoxes& boxes_;
  common::RunEnd& runEnd_;
};

}  // namespace tst
