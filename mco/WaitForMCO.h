#pragma once

#include "mco/frmWaitForMCO.h"

namespace mco {

/// The wait for the MCO segments, as the run sees it.
class WaitForMCO {
 public:
  explicit WaitForMCO(frmWaitForMCO::Reach reach);

  /// Returns only when the agent did not cancel: the segments are complete, or a report has marked
  /// the run to stop.
  void ShowWaitForMCO();

  const frmWaitForMCO& form() const { return form_; }

 private:
  ui::Desktop& desktop_;
  common::RunEnd& runEnd_;
  bool waitCancelled_ = false;
  frmWaitForMCO form_;
};

}  // namespace mco
