#pragma once

#include "ui/frmPTA.h"

namespace ui {

/// Every field right, as the run fills them.
inline void FillDialog(frmPTA& form) {
  form.txtMCONumber.SetText(L"4012345678");
  form.txtAirlinePrefix.SetText(L"117");
  form.txtCarrier.SetText(L"SK");
  form.txtFormOfPayment.SetText(L"CASH");
  form.txtCommission.SetText(L"10");
  form.txtCityCode.SetText(L"STO");
  form.txtIATANumber.SetText(L"80246878");
  form.txtPWCT.SetText(L"SK AT ARN A/P BEFORE DEPARTURE");
  form.txtPTA.SetText(L"SEK1000/TAX SEK120XT");
  form.txtQueueingOfficeID.SetText(L"STOSK08AA");
}

}  // namespace ui
