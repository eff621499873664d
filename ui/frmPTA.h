#pragma once

#include <array>

#include "common/EndOfRun.h"
#include "errors/ErrorHandler.h"
#include "pnr/MCOInfo.h"
#include "tst/TSTCollection.h"
#include "tst/TSTGeneral.h"
#include "ui/FieldValidation.h"
#include "ui/controls/Desktop.h"

namespace ui {

/// What the dialog sets going beyond itself.
class PTADialogActions {
 public:
  virtual ~PTADialogActions() = default;
  virtual void LoadSettings() = 0;
  virtual void SaveSettings() = 0;
  /// Does not come back when all goes well: the update run ends the program.
  virtual void StartUpdateRun() = 0;
  /// The dialog has been unloaded: the terminal session is no longer needed.
  virtual void ReleaseSession() = 0;
};

/// The one dialog in which the agent confirms and edits the PTA before anything is written.
class frmPTA : public Form {
 public:
  frmPTA(Desktop& desktop, errors::ErrorHandler& errors, common::RunEnd& runEnd);

  Frame fraOptions{*this, L"fraOptions", L"Options"};
  Frame fraPrint{*this, L"fraPrint", L"Print"};
  CheckBox chkPrintPNR{*this, L"chkPrintPNR", L"Print PNR"};
  Frame fraTST{*this, L"fraTST", L"TST"};
  CheckBox chkTSTNoUpdate{*this, L"chkTSTNoUpdate", L"No TST Update"};
  CheckBox chkPanelMode{*this, L"chkPanelMode", L"Return to TST Panel Mode"};
  Frame fraTK{*this, L"fraTK", L"TK Element"};
  CheckBox chkTKNoUpdate{*this, L"chkTKNoUpdate", L"No TK Update"};
  Frame fraOP{*this, L"fraOP", L"OP Element"};
  CheckBox chkOP{*this, L"chkOP", L"PNR Follow Up"};
  Label lblOPText{*this, L"lblOPText", L"&Text:"};
  TextBox txtOPText{*this, L"txtOPText"};
  Frame fraBOD{*this, L"fraBOD", L"Backoffice Data"};
  CheckBox chkBOD{*this, L"chkBOD", L"Send B.O.D. (BT)"};
  CheckBox chkPasSegAsso{*this, L"chkPasSegAsso", L"Add Passenger and Segment Association"};
  Label lblRMStar{*this, L"lblRMStar", L"&RM* Info:"};
  TextBox txtRMBODInfo{*this, L"txtRMBODInfo"};
  Frame fraDocumentInformation{*this, L"fraDocumentInformation", L"Document Information"};
  Label lblFoP{*this, L"lblFoP", L"&Form of Payment:"};
  TextBox txtFormOfPayment{*this, L"txtFormOfPayment"};
  Label lblOriginalDocumentNumber{*this, L"lblOriginalDocumentNumber", L"&MCO Number:"};
  TextBox txtAirlinePrefix{*this, L"txtAirlinePrefix"};
  Label lblDash{*this, L"lblDash", L"-"};
  TextBox txtMCONumber{*this, L"txtMCONumber"};
  Label lblCarrier{*this, L"lblCarrier", L"&Airline:"};
  TextBox txtCarrier{*this, L"txtCarrier"};
  Label lblCommission{*this, L"lblCommission", L"&Commission:"};
  TextBox txtCommission{*this, L"txtCommission"};
  Label lblCityCode{*this, L"lblCityCode", L"City Code:"};
  TextBox txtCityCode{*this, L"txtCityCode"};
  Label LblIataNr{*this, L"LblIataNr", L"IATA Number:"};
  TextBox txtIATANumber{*this, L"txtIATANumber"};
  Frame fraRemarks{*this, L"fraRemarks", L"Remarks"};
  Label lblMCOFee{*this, L"lblMCOFee", L"MCO F&ee:"};
  TextBox txtMCOFee{*this, L"txtMCOFee"};
  Label lblPwct{*this, L"lblPwct", L"P&WCT:"};
  TextBox txtPWCT{*this, L"txtPWCT"};
  Label lblPTATotal{*this, L"lblPTATotal", L"&PTA Total:"};
  TextBox txtPTA{*this, L"txtPTA"};
  Frame fraQueuingInformation{*this, L"fraQueuingInformation", L"Queueing Information"};
  Label lblOfficeID{*this, L"lblOfficeID", L"&Office ID:"};
  TextBox txtQueueingOfficeID{*this, L"txtQueueingOfficeID"};
  Label lblQueuecatnumber{*this, L"lblQueuecatnumber", L"&Number/Category:"};
  TextBox txtQueueCat{*this, L"txtQueueCat"};
  Button cmdOK{*this, L"cmdOK", L"OK"};
  Button cmdCancel{*this, L"cmdCancel", L"Cancel"};
  StatusBar staStatusText{*this, L"staStatusText"};

  /// Must be set before the dialog is used: the run that the dialog belongs to.
  void SetActions(PTADialogActions& actions) { actions_ = &actions; }

  /// Called once, before the fields are filled: hourglass, settings, every Change body once.
  void Form_Init();
  /// Called once, after the fields are filled: shows the dialog, sets the focus, warns.
  /// `decimal` is the user's decimal separator, for the fee.
  void Form_Display(const pnr::MCOInfo& mco, const tst::TSTGeneral& general,
                    const tst::TSTCollection& tsts, std::wstring_view decimal);
  /// Enables OK exactly when every required field is filled.
  void UpdateOKButton();
  /// The document's own fields can be looked at and copied from now on, not edited.
  void LockDocumentFields();

  void OnCloseBox() override;
  void OnLostFocus(Control& control) override;
  void OnGotFocus(Control& control) override;
  void OnKeyDown(Control& control, int key) override;

 protected:
  void OnLoad() override;
  void OnUnload() override;

 private:
  /// A field that is yellow until it is complete.
  struct RequiredField {
    TextBox& field;
    const Label& label;
    std::size_t completeLength;
  };

  void BindTextBoxes();
  void BindCheckBoxes();
  void BindButtons();

  void RequiredFieldChanged(const RequiredField& required);
  void OfficeIDChanged();
  void OKClicked();
  void Cancel();
  /// Empty when every field is complete.
  std::wstring IncompleteFields() const;

  void EnableOPText(bool enabled);
  void EnableBODDetails(bool enabled);
  void SetInitialFocus();
  void WarnOfTicketingAirline(const tst::TSTGeneral& general, const tst::TSTCollection& tsts);
  void WarnOfCommission(const pnr::MCOInfo& mco, const tst::TSTCollection& tsts);

  Desktop& desktop_;
  errors::ErrorHandler& errors_;
  common::RunEnd& runEnd_;
  PTADialogActions* actions_ = nullptr;
  FieldValidation validation_;
  const std::array<RequiredField, 5> required_{{
      {txtCityCode, lblCityCode, kCityCodeLength},
      {txtIATANumber, LblIataNr, kIATANumberLength},
      {txtCommission, lblCommission, 1},
      {txtPTA, lblPTATotal, 1},
      {txtPWCT, lblPwct, 1},
  }};
};

}  // namespace ui
