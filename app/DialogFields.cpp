#include "app/DialogFields.h"

#include "common/Text.h"

namespace app {
namespace {

constexpr int kPrefixLength = 3;
constexpr int kDocumentStart = 5;  // after prefix and "-"
constexpr std::wstring_view kOSIPrefix = L"117";
constexpr std::wstring_view kCityPlaceholder = L"XXX";
constexpr std::wstring_view kCityOfAirport = L"TRF";

void FillIfEmpty(ui::TextBox& field, const std::wstring& value) {
  if (field.Text().empty() && !value.empty()) field.SetText(value);
}

}  // namespace

DialogFields::DialogFields(hostlib::ScriptGlobal& global, ui::frmPTA& dialog, pnr::MCOInfo& mco,
                           pnr::PNRInfo& pnr, tst::TSTGeneral& general,
                           const tst::TSTTotals& totals)
    : global_(global), dialog_(dialog), mco_(mco), pnr_(pnr), general_(general), totals_(totals) {}

void DialogFields::FillDocument() {
  dialog_.txtMCONumber.SetText(common::Mid(mco_.strMCONumber, kDocumentStart));
  dialog_.txtAirlinePrefix.SetText(common::Left(mco_.strMCONumber, kPrefixLength));
  dialog_.txtCarrier.SetText(mco_.strAirlineCode);
  dialog_.txtFormOfPayment.SetText(mco_.strFormOfPayment);
  if (pnr_.strFP1.empty()) pnr_.strFP1 = mco_.strFormOfPayment;
}

bool DialogFields::NeedsOSI() const { return mco_.strMCONumber.starts_with(kOSIPrefix); }

void DialogFields::FillCommission() {
  if (common::LeftTrim(mco_.strCommission).starts_with(L'*')) {
    mco_.strCommission = global_.GetField(mco_.strCommission, 3, L"*");
  }
  dialog_.txtCommission.SetText(mco_.strCommission);
}

void DialogFields::FillPWCT() {
  const std::wstring proposal = common::Joined(
      {mco_.strAirlineCode, L" AT ", general_.strOriginAirport, L" A/P BEFORE DEPARTURE"});
  dialog_.txtPWCT.SetText(pnr_.strRMPWCTNumber.empty() ? proposal : pnr_.strRMPWCTAction);
}

void DialogFields::FillQueueing(std::wstring office, const std::wstring& queue) {
  if (general_.strOriginAirport == kCityOfAirport) general_.strOriginCity = kCityOfAirport;
  if (office.empty()) return;
  if (office.starts_with(kCityPlaceholder)) {
    office = common::Replace(office, kCityPlaceholder, general_.strOriginCity);
  }
  // The office comes first: its Change handler writes the queue that stands when none is found.
  dialog_.txtQueueingOfficeID.SetText(office);
  if (!queue.empty()) dialog_.txtQueueCat.SetText(queue);
}

void DialogFields::RebuildFormOfPayment() {
  if (!general_.blnMultipleFP || totals_.strTotalFareLastTSTs.empty()) return;
  const std::wstring first = common::Trim(global_.GetField(mco_.strFormOfPayment, 1, L"+"));
  const std::wstring second = common::Trim(global_.GetField(mco_.strFormOfPayment, 2, L"+"));
  mco_.strFormOfPayment = common::Joined({first, L"/", totals_.strTotalFareFirstTST, L" + ", second,
                                          L"/", totals_.strTotalFareLastTSTs});
  dialog_.txtFormOfPayment.SetText(mco_.strFormOfPayment);
}

void DialogFields::FillWhatIsStillEmpty() {
  FillIfEmpty(dialog_.txtCarrier, mco_.strAirlineCode);
  FillIfEmpty(dialog_.txtFormOfPayment, mco_.strFormOfPayment);
  if (dialog_.txtCommission.Text().empty() && !mco_.strCommission.empty()) FillCommission();
}

}  // namespace app
