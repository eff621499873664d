#pragma once

#include <string_view>

#include "common/EndOfRun.h"
#include "common/MessageBoxes.h"

namespace tst {

/// What the agent is told about a TST that is read. Cancel ends the run; OK goes on, and three of
/// the warnings are then not shown again in the run.
class TSTWarnings {
 public:
  TSTWarnings(common::MessageBoxes& boxes, common::RunEnd& runEnd);

  void RefuseNoFare();
  /// Asked for every TST anew.
  void WarnOfReissue();
  void WarnOfMissingFP();
  void WarnOfThirdFP();
  void WarnOfSalesIndicator(std::wstring_view indicator);

 private:
  void Warn(std::wstring_view text);
  void WarnOnce(std::wstring_view text, bool& answered);

  common::MessageBoxes& boxes_;
  common::RunEnd& runEnd_;
  bool missingFPAnswered_ = false;
  bool thirdFPAnswered_ = false;
  bool salesIndicatorAnswered_ = false;
};

}  // namespace tst
