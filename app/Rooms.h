#pragma once

#include "app/Common.h"
#include "app/DialogFields.h"
#include "app/SendQETrans.h"
#include "app/UpdateRun.h"
#include "fares/Amounts.h"
#include "fares/DateHelpers.h"
#include "fares/Totals.h"
#include "mco/TSMList.h"
#include "mco/WaitForMCO.h"
#include "mco/frmWaitForMCO.h"
#include "pnr/GetPTAPNRinfo.h"
#include "pnr/MCOSegmentReader.h"
#include "pnr/PNRChecks.h"
#include "pnr/TSTReaders.h"
#include "settings/FileHandeling.h"
#include "settings/OfficeIdentification.h"
#include "settings/OfficeProfile.h"
#include "settings/SettingsFile.h"
#include "tst/SendTSTTrans.h"
#include "tst/TQTSender.h"
#include "tst/TSTDetailReader.h"
#include "tst/TSTUpdater.h"
#include "ui/frmPTA.h"
#include "ui/frmWorking.h"
#include "updates/BackOfficeRemark.h"
#include "updates/ClosingCommands.h"
#include "updates/ElementChanges.h"
#include "updates/ElementCreation.h"

namespace app {

/// Every room of the run, each given what it may touch. Made once the records are there, gone
/// before they go.
struct Rooms {
  Rooms(hostlib::Library& library, ui::Desktop& desktop, const platform::Platform& platform,
        errors::ErrorHandler& errors, common::RunEnd& runEnd, Common& common,
        ui::frmWorking& working, ui::frmPTA& dialog);

  settings::OfficeProfile profile;
  settings::OfficeIdentification office;
  settings::FileHandeling fileHandeling;
  settings::SettingsFile settingsFile;

  fares::Amounts amounts;
  fares::Totals totals;
  fares::DateHelpers dates;

  pnr::GetPTAPNRinfo pnrReading;
  pnr::TSTReaders tstReaders;
  pnr::PNRChecks checks;
  pnr::MCOSegmentReader mcoSegment;

  mco::TSMList tsmList;
  mco::WaitForMCO waitForMCO;

  tst::TQTSender tqtSender;
  tst::TSTDetailReader tstDetails;
  tst::SendTSTTrans tsts;
  tst::TSTUpdater tstUpdater;

  updates::ElementChanges changes;
  updates::BackOfficeRemark backOfficeRemark;
  updates::ElementCreation creation;
  updates::ClosingCommands closing;
  SendQETrans queueing;

  DialogFields dialogFields;
  UpdateRun updateRun;
};

}  // namespace app
