#include "app/MainModule.h"

#include "app/AttachObjects.h"
#include "app/Rooms.h"

namespace app {

namespace procedures = errors::procedures;

MainModule::MainModule(hostlib::Library& library, ui::Desktop& desktop,
                       const platform::Platform& platform)
    : library_(library),
      desktop_(desktop),
      platform_(platform),
      common_(library),
      errors_(common_.reporter, desktop, *this, common_.stop),
      connection_(library, errors_),
      progressFormObject_(MakeProgressFormObject(frmWorking_, frmWorking_.lblWorking)),
      applicationObject_(MakeApplicationObject(platform)),
      frmPTA_(desktop, errors_, *this) {
  frmPTA_.SetActions(*this);
}

MainModule::~MainModule() {
  // An end without the end procedure leaves forms on the screen.
  frmWorking_.Hide();
  frmPTA_.Hide();
}

void MainModule::Main() {
  errors_.Run(procedures::kMain, [&] {
    ShowProgress();
    Connect();
    frmPTA_.Form_Init();
    ReadPNR();
    ChooseMCO();
    ReadMCO();
    ReadTSTs();
    ReadRemarks();
    ProposeQueueing();
    ShowDialog();
  });
}

void MainModule::ShowProgress() {
  if (!connection_.Make([this](hostlib::Library&) { common_.global.Create(); })) EndScript();
  const bool endAtOnce = common_.global.Attach(progressFormObject_, applicationObject_);
  if (endAtOnce) EndAtOnce();
  desktop_.Show(frmWorking_);
  frmWorking_.SetCaption(common::kTitle);
  desktop_.Refresh(frmWorking_);
}

void MainModule::Connect() {
  const bool reporterMade =
      connection_.Make([this](hostlib::Library& library) { common_.reporter.Create(library); });
  if (!reporterMade) EndScript();
  common_.CreateRecords();
  connection_.Connect(common_.session);
  if (!common_.session.IsConnected()) EndScript();
  rooms_ = std::make_unique<Rooms>(library_, desktop_, platform_, errors_, *this, common_,
                                   frmWorking_, frmPTA_);
  rooms_->fileHandeling.LocateIniFile();
  EndIfStopped();
}

void MainModule::ReadPNR() {
  rooms_->pnrReading.RetrievePNR();
  EndIfStopped();
  rooms_->pnrReading.GetPNRInformation();
  EndIfStopped();
}

void MainModule::ChooseMCO() {
  rooms_->waitForMCO.ShowWaitForMCO();
  EndIfStopped();
  const bool chosen = rooms_->tqtSender.SendTQT() && rooms_->tsmList.SelectMCO();
  if (!chosen) EndAtOnce();
}

void MainModule::ReadMCO() {
  rooms_->mcoSegment.GetMCOInformation(common_.tsm->intSelectedMCOIndex);
  EndIfStopped();
  rooms_->dialogFields.FillDocument();
  if (rooms_->dialogFields.NeedsOSI()) rooms_->checks.CheckSKOSI();
  frmPTA_.LockDocumentFields();
  rooms_->dialogFields.FillCommission();
}

void MainModule::ReadTSTs() {
  common_.settings->strSymbol = fares::GetDecimalSymbol(platform_);
  rooms_->tsts.ReadTSTList();
  EndIfStopped();
  if (common_.mco->blnReissue) frmPTA_.chkTSTNoUpdate.SetValue(true);
  if (common_.settings->blnTKNoUpdate) frmPTA_.chkTKNoUpdate.SetValue(true);
}

void MainModule::ReadRemarks() {
  rooms_->pnrReading.GetOptionInformation();
  rooms_->checks.GetPWCTInformation();
  rooms_->dialogFields.FillPWCT();
}

void MainModule::ProposeQueueing() {
  const std::wstring& airline = common_.mco->strAirlineCode;
  std::wstring office = rooms_->profile.Read(L"OfficeID" + airline, L"OfficeID", airline);
  const std::wstring queue = rooms_->profile.Read(L"QueNumber" + airline, L"QueNumber", airline);
  rooms_->dialogFields.FillQueueing(std::move(office), queue);
}

void MainModule::ShowDialog() {
  rooms_->totals.BuildPTATotalRemark();
  EndIfStopped();
  rooms_->dialogFields.RebuildFormOfPayment();
  rooms_->dialogFields.FillWhatIsStillEmpty();
  frmPTA_.UpdateOKButton();
  frmPTA_.Form_Display(*common_.mco, *common_.general, common_.tsts, common_.settings->strSymbol);
  frmWorking_.Unload();
}

void MainModule::EndIfStopped() {
  if (common_.stop.isSet) EndScript();
}

void MainModule::UnloadForms() {
  frmWorking_.Unload();
  frmPTA_.Unload();
}

void MainModule::EndScript() {
  UnloadForms();
  throw common::EndOfRun();
}

void MainModule::EndAtOnce() { throw common::EndOfRun(); }

void MainModule::LoadSettings() { rooms_->settingsFile.ReadSettings(); }

void MainModule::SaveSettings() { rooms_->settingsFile.WriteSettings(); }

void MainModule::StartUpdateRun() { rooms_->updateRun.Start(); }

void MainModule::ReleaseSession() { common_.session.Release(); }

}  // namespace app
