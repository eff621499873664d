#include "app/UpdateRun.h"

#include "common/Text.h"

namespace app {
namespace {

std::wstring Trimmed(const ui::TextBox& field) { return common::Trim(field.Text()); }

}  // namespace

UpdateRun::UpdateRun(ui::frmPTA& dialog, errors::ErrorHandler& errors, common::RunEnd& runEnd,
                     const settings::Settings& settings, pnr::PNRInfo& pnr, pnr::MCOInfo& mco,
                     UpdateTransactions transactions)
    : dialog_(dialog),
      errors_(errors),
      runEnd_(runEnd),
      settings_(settings),
      pnr_(pnr),
      mco_(mco),
      transactions_(transactions) {}

void UpdateRun::Start() {
  errors_.Run(errors::procedures::kUpdateRun, [&] {
    const std::wstring officeID = Trimmed(dialog_.txtQueueingOfficeID);
    const std::wstring queue = Trimmed(dialog_.txtQueueCat);
    TakeDialog(officeID);
    Perform(officeID, queue);
    dialog_.Hide();
    runEnd_.UnloadForms();
  });
}

void UpdateRun::TakeDialog(const std::wstring& officeID) {
  pnr_.strRMPTATotal = Trimmed(dialog_.txtPTA);
  pnr_.strRMBODInfo = Trimmed(dialog_.txtRMBODInfo);
  pnr_.blnLH = common::Contains(officeID, L"LH0");
  TakePWCT();
  mco_.strAirlineCode = Trimmed(dialog_.txtCarrier);
  std::wstring formOfPayment = Trimmed(dialog_.txtFormOfPayment);
  if (!formOfPayment.empty()) mco_.strFormOfPayment = std::move(formOfPayment);
  mco_.strMCONumber =
      common::Joined({Trimmed(dialog_.txtAirlinePrefix), L"-", Trimmed(dialog_.txtMCONumber)});
  mco_.strCommission = Trimmed(dialog_.txtCommission);
}

// Afterwards a number means: change this remark; the flag means: create one.
void UpdateRun::TakePWCT() {
  std::wstring text = Trimmed(dialog_.txtPWCT);
  if (pnr_.strRMPWCTNumber.empty()) {
    newPWCT_ = true;
    pnr_.strRMPWCTAction = std::move(text);
  } else if (text == pnr_.strRMPWCTAction) {
    pnr_.strRMPWCTNumber.clear();
  } else {
    pnr_.strRMPWCTAction = std::move(text);
  }
}

void UpdateRun::Perform(const std::wstring& officeID, const std::wstring& queue) {
  transactions_.changes.UpdatePNR(officeID);
  transactions_.creation.EnterPNRElements(newPWCT_, officeID);
  if (!dialog_.chkTSTNoUpdate.Value()) transactions_.tstUpdater.UpdateTST();
  if (settings_.blnPrintPNR) transactions_.closing.PrintPNR();
  if (settings_.blnSendBOD) transactions_.closing.SendBT(officeID.empty() ? L"False" : L"True");
  if (!officeID.empty()) transactions_.queueing.SendQE(officeID, queue);
  if (settings_.blnPanelMode) transactions_.tsts.SendTQTP();
}

}  // namespace app
