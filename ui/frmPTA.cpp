#include "ui/frmPTA.h"

#include <algorithm>
#include <optional>

#include "common/Numbers.h"
#include "common/Text.h"

namespace ui {
namespace {

constexpr std::wstring_view kDesignerCaption = L"PTA - Prepaid Ticket Advice";
constexpr std::wstring_view kCaptionAfterTitle = L"- Prepaid Ticket Advice";
constexpr std::wstring_view kTicketingAirlineVaries =
    L"Warning: The Ticketing Airline varies in the TST's and/or does not match first Airline in "
    L"the TST(s) selected !";
constexpr std::wstring_view kCommissionVaries =
    L"Warning: The Commission varies in the TST's selected ! Only one commission is valid.";
constexpr int kAirlineInFlight = 2;

/// Whether a TST holds a value of its own that is not the one expected.
bool AnyDiffers(const tst::TSTCollection& tsts, std::wstring tst::TSTInfo::*value,
                const std::wstring& expected) {
  return std::any_of(tsts.begin(), tsts.end(), [&](const tst::TSTInfo& tst) {
    return !(tst.*value).empty() && tst.*value != expected;
  });
}

}  // namespace

frmPTA::frmPTA(Desktop& desktop, errors::ErrorHandler& errors, common::RunEnd& runEnd)
    : Form(L"frmPTA"),
      desktop_(desktop),
      errors_(errors),
      runEnd_(runEnd),
      validation_({txtQueueingOfficeID, txtIATANumber, txtCityCode, txtCarrier}, desktop, errors) {
  SetCaption(kDesignerCaption);
  // The fee is shown and never read back.
  txtMCOFee.SetLocked(true);
  EnableOPText(false);
  EnableBODDetails(false);
  BindTextBoxes();
  BindCheckBoxes();
  BindButtons();
}

void frmPTA::Form_Init() {
  errors_.Run(errors::procedures::kFormInit, [&] {
    SetKeyPreview(true);
    cmdOK.SetEnabled(false);
    SetPointer(MousePointer::kHourglass);
    actions_->LoadSettings();
    for (const RequiredField& required : required_) RequiredFieldChanged(required);
    OfficeIDChanged();
    cmdOK.SetEnabled(false);
  });
}

void frmPTA::Form_Display(const pnr::MCOInfo& mco, const tst::TSTGeneral& general,
                          const tst::TSTCollection& tsts, std::wstring_view decimal) {
  errors_.Run(errors::procedures::kFormDisplay, [&] {
    desktop_.Show(*this);
    SetPointer(MousePointer::kDefault);
    txtMCOFee.SetText(common::NumberText(mco.dblMCOFee, decimal));
    SetInitialFocus();
    WarnOfTicketingAirline(general, tsts);
    WarnOfCommission(mco, tsts);
    UpdateOKButton();
  });
}

void frmPTA::SetInitialFocus() {
  if (txtPWCT.Text().empty()) {
    txtPWCT.SetFocus();
  } else if (txtQueueingOfficeID.Text().empty()) {
    txtQueueingOfficeID.SetFocus();
  } else {
    txtPTA.SetFocus();
  }
}

void frmPTA::WarnOfTicketingAirline(const tst::TSTGeneral& general,
                                    const tst::TSTCollection& tsts) {
  const std::wstring airline = common::Left(general.strFirstFlightNo, kAirlineInFlight);
  if (!AnyDiffers(tsts, &tst::TSTInfo::strFVElementValue, airline)) return;
  desktop_.ShowBox(kTicketingAirlineVaries, common::kPlain, common::kTitle);
  txtCarrier.SelectAll();
}

void frmPTA::WarnOfCommission(const pnr::MCOInfo& mco, const tst::TSTCollection& tsts) {
  if (!AnyDiffers(tsts, &tst::TSTInfo::strFMElementValue, mco.strCommission)) return;
  desktop_.ShowBox(kCommissionVaries, common::kPlain, common::kTitle);
  txtCommission.SetEnabled(true);
  txtCommission.SelectAll();
}

void frmPTA::UpdateOKButton() {
  const TextBox* const needed[] = {&txtMCONumber,     &txtCarrier,   &txtCityCode,
                                   &txtPTA,           &txtPWCT,      &txtCommission,
                                   &txtFormOfPayment, &txtIATANumber};
  const bool anyEmpty = std::any_of(std::begin(needed), std::end(needed),
                                    [](const TextBox* field) { return field->Text().empty(); });
  const bool queues = !txtQueueingOfficeID.Text().empty();
  cmdOK.SetEnabled(!anyEmpty && (!queues || !txtQueueCat.Text().empty()));
}

void frmPTA::LockDocumentFields() {
  for (TextBox* field : {&txtFormOfPayment, &txtAirlinePrefix, &txtMCONumber, &txtCarrier}) {
    field->SetLocked(true);
  }
}

void frmPTA::OKClicked() {
  // Held beyond the handler's own report: a second OK while that box is up would write twice.
  std::optional<InputGate::Shut> noInput;
  const bool done = errors_.Run(errors::procedures::kOkClicked, [&] {
    if (!validation_.VerifyWindowFields()) return;
    noInput.emplace(desktop_.input());
    actions_->SaveSettings();
    SetPointer(MousePointer::kHourglass);
    actions_->StartUpdateRun();
  });
  if (!done) SetPointer(MousePointer::kDefault);
}

void frmPTA::Cancel() { runEnd_.EndScript(); }

void frmPTA::OnCloseBox() { Cancel(); }

void frmPTA::OnLoad() { SetCaption(std::wstring(common::kTitle).append(kCaptionAfterTitle)); }

void frmPTA::OnUnload() {
  if (actions_ != nullptr) actions_->ReleaseSession();
}

}  // namespace ui
