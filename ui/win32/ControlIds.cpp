#include "ui/win32/ControlIds.h"

#include "ui/win32/resource.h"

namespace ui {

namespace {

struct NamedId {
  std::wstring_view name;
  int id;
};

#define NAMED(name) \
  NamedId { L"" #name, ID_##name }

constexpr NamedId kIds[] = {
    NAMED(lblWorking),
    NAMED(fraOptions),
    NAMED(fraPrint),
    NAMED(chkPrintPNR),
    NAMED(fraTST),
    NAMED(chkTSTNoUpdate),
    NAMED(chkPanelMode),
    NAMED(fraTK),
    NAMED(chkTKNoUpdate),
    NAMED(fraOP),
    NAMED(chkOP),
    NAMED(lblOPText),
    NAMED(txtOPText),
    NAMED(fraBOD),
    NAMED(chkBOD),
    NAMED(chkPasSegAsso),
    NAMED(lblRMStar),
    NAMED(txtRMBODInfo),
    NAMED(fraDocumentInformation),
    NAMED(lblFoP),
    NAMED(txtFormOfPayment),
    NAMED(lblOriginalDocumentNumber),
    NAMED(txtAirlinePrefix),
    NAMED(lblDash),
    NAMED(txtMCONumber),
    NAMED(lblCarrier),
    NAMED(txtCarrier),
    NAMED(lblCommission),
    NAMED(txtCommission),
    NAMED(lblCityCode),
    NAMED(txtCityCode),
    NAMED(LblIataNr),
    NAMED(txtIATANumber),
    NAMED(fraRemarks),
    NAMED(lblMCOFee),
    NAMED(txtMCOFee),
    NAMED(lblPwct),
    NAMED(txtPWCT),
    NAMED(lblPTATotal),
    NAMED(txtPTA),
    NAMED(fraQueuingInformation),
    NAMED(lblOfficeID),
    NAMED(txtQueueingOfficeID),
    NAMED(lblQueuecatnumber),
    NAMED(txtQueueCat),
    NAMED(cmdOK),
    NAMED(cmdCancel),
    NAMED(staStatusText),
    NAMED(lblSelectMCO),
    NAMED(lblSelectMCOHeading),
    NAMED(lstMCO),
    NAMED(btnOK),
    NAMED(btnCancel),
    NAMED(lblTSTListMessage),
    NAMED(lstMCOElements),
    NAMED(lblSelectTST),
    NAMED(lblSelectHeading),
    NAMED(lstTST),
};

#undef NAMED

}  // namespace

int ControlId(std::wstring_view name) {
  for (const NamedId& entry : kIds) {
    if (entry.name == name) return entry.id;
  }
  return 0;
}

}  // namespace ui
