#include "mco/WaitForMCO.h"

namespace mco {

WaitForMCO::WaitForMCO(frmWaitForMCO::Reach reach)
    : desktop_(reach.desktop), runEnd_(reach.runEnd), form_(reach, waitCancelled_) {}

void WaitForMCO::ShowWaitForMCO() {
  waitCancelled_ = false;
  desktop_.ShowModal(form_);
  if (waitCancelled_) runEnd_.EndScript();
}

}  // namespace mco
