#pragma once

#include <string>

#include "app/SendQETrans.h"
#include "common/EndOfRun.h"
#include "errors/ErrorHandler.h"
#include "pnr/MCOInfo.h"
#include "pnr/PNRInfo.h"
#include "settings/Settings.h"
#include "tst/SendTSTTrans.h"
#include "tst/TSTUpdater.h"
#include "ui/frmPTA.h"
#include "updates/ClosingCommands.h"
#include "updates/ElementChanges.h"
#include "updates/ElementCreation.h"

namespace app {

/// The host transactions of the update run, each in its own room.
struct UpdateTransactions {
  updates::ElementChanges& changes;
  updates::ElementCreation& creation;
  tst::TSTUpdater& tstUpdater;
  updates::ClosingCommands& closing;
  SendQETrans& queueing;
  tst::SendTSTTrans& tsts;
};

/// Takes the confirmed dialog into the records and performs the updates in their fixed order.
class UpdateRun {
 public:
  UpdateRun(ui::frmPTA& dialog, errors::ErrorHandler& errors, common::RunEnd& runEnd,
            const settings::Settings& settings, pnr::PNRInfo& pnr, pnr::MCOInfo& mco,
            UpdateTransactions transactions);

  /// Ends the run.
  void Start();

 private:
  void TakeDialog(const std::wstring& officeID);
  void TakePWCT();
  void Perform(const std::wstring& officeID, const std::wstring& queue);

  ui::frmPTA& dialog_;
  errors::ErrorHandler& errors_;
  common::RunEnd& runEnd_;
  const settings::Settings& settings_;
  pnr::PNRInfo& pnr_;
  pnr::MCOInfo& mco_;
  UpdateTransactions transactions_;
  bool newPWCT_ = false;
};

}  // namespace app
