#include "tst/TSTWarnings.h"

#include <string>

#include "common/ConstDefintions.h"

namespace tst {

TSTWarnings::TSTWarnings(common::MessageBoxes& boxes, common::RunEnd& runEnd)
    : boxes_(boxes), runEnd_(runEnd) {}

void TSTWarnings::RefuseNoFare() {
  boxes_.ShowBox(L"The script can not handle NOFARE TST's.\rThe script will terminate!",
                 common::kPlain, common::kTitle);
  runEnd_.EndScript();
}

void TSTWarnings::WarnOfReissue() {
  Warn(
      L"Some/all PTA changes already made for this TST. "
      L"\rSelect 'OK' if you still want to use this TST, or 'Cancel' to terminate!");
}

void TSTWarnings::WarnOfMissingFP() {
  WarnOnce(
      L"Warning: Form of Payments missing for one or more TST(s). "
      L"\rSelect 'OK' if you want to continue using the same FP "
      L"\rfor all TST's, or 'Cancel' to terminate!",
      missingFPAnswered_);
}

void TSTWarnings::WarnOfThirdFP() {
  WarnOnce(
      L"Warning: More than two different Form of Payments exist. "
      L"\rSelect 'OK' if you want to continue using the FP in the "
      L"\rfirst two TST's, or 'Cancel' to terminate!",
      thirdFPAnswered_);
}

void TSTWarnings::WarnOfSalesIndicator(std::wstring_view indicator) {
  WarnOnce(L"The displayed TST has an incorrect Sales Indicator " + std::wstring(indicator) +
               L"\r\nPress 'OK' to continue or 'Cancel' to terminate.",
           salesIndicatorAnswered_);
}

void TSTWarnings::Warn(std::wstring_view text) {
  const int answer = boxes_.ShowBox(text, common::kOkCancel, common::kTitle);
  if (answer == common::kCancel) runEnd_.EndScript();
}

void TSTWarnings::WarnOnce(std::wstring_view text, bool& answered) {
  if (answered) return;
  Warn(text);
  answered = true;
}

}  // namespace tst
