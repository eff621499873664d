#pragma once

#include <string>

#include "hostlib/ScriptGlobal.h"
#include "pnr/MCOInfo.h"
#include "pnr/PNRInfo.h"
#include "tst/TSTGeneral.h"
#include "tst/TSTTotals.h"
#include "ui/frmPTA.h"

namespace app {

/// Fills the dialog's document and remark fields with what the run proposes.
class DialogFields {
 public:
  DialogFields(hostlib::ScriptGlobal& global, ui::frmPTA& dialog, pnr::MCOInfo& mco,
               pnr::PNRInfo& pnr, tst::TSTGeneral& general, const tst::TSTTotals& totals);

  /// Number, prefix, airline and form of payment of the MCO.
  void FillDocument();
  /// True for an MCO whose number begins with the prefix that needs an OSI.
  bool NeedsOSI() const;
  /// The commission without the "*" form; also stored back.
  void FillCommission();
  /// The PWCT remark of the PNR, or a proposal.
  void FillPWCT();
  /// The collecting office and its queue; `office` may stand for the departure city ("XXX").
  void FillQueueing(std::wstring office, const std::wstring& queue);
  /// With two forms of payment: each with the amount it pays.
  void RebuildFormOfPayment();
  /// A document field that is still empty takes what the TSTs have given.
  void FillWhatIsStillEmpty();

 private:
  hostlib::ScriptGlobal& global_;
  ui::frmPTA& dialog_;
  pnr::MCOInfo& mco_;
  pnr::PNRInfo& pnr_;
  tst::TSTGeneral& general_;
  const tst::TSTTotals& totals_;
};

}  // namespace app
