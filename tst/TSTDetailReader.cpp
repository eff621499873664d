#include "tst/TSTDetailReader.h"

#include "common/Numbers.h"
#include "common/Text.h"
#include "tst/TSTFieldReader.h"

namespace tst {
namespace {

namespace procedures = errors::procedures;

}  // namespace

TSTDetailReader::TSTDetailReader(hostlib::Library& library, hostlib::ScriptGlobal& global,
                                 errors::ErrorHandler& errors, const errors::StopFlag& stop,
                                 common::MessageBoxes& boxes, common::RunEnd& runEnd,
                                 TSTRecords records, TSTServices services)
    : library_(library),
      global_(global),
      errors_(errors),
      stop_(stop),
      records_(records),
      services_(services),
      warnings_(boxes, runEnd),
      formsOfPayment_(records.pnr, records.mco, records.general, warnings_) {}

void TSTDetailReader::ReadCurrentTST(std::wstring_view responseText) {
  errors_.Run(procedures::kReadCurrentTST, [&] {
    TSTInfo tst;
    if (!ReadTSTDetail(responseText, tst)) return;
    // A step that has reported a failure has left the values half-made: nothing is built on them.
    services_.readers.GetNameInformation(tst);
    if (stop_.isSet) return;
    services_.readers.GetFareInformation(tst);
    if (tst.intNoNames > 1) services_.amounts.MultiplyTSTValues(tst);
    if (stop_.isSet) return;
    AddToFirstOrLaterTotal();
    services_.sums.AddTSTValues();
    if (stop_.isSet) return;
    records_.tsts.Add(std::move(tst));
  });
}

bool TSTDetailReader::ReadTSTDetail(std::wstring_view responseText, TSTInfo& tst) {
  return errors_.Run(procedures::kReadTSTDetail, [&] {
    TSTFieldReader fields(library_, global_, responseText);
    fields.ReadNames(tst);
    MarkInfant(tst);
    fields.ReadGeneral(tst, records_.general, records_.mco);
    fields.ReadFare(tst);
    records_.mco.blnReissue = fields.IsReissue();
    TakeOriginCity(tst.strFareCalc);
    const std::wstring salesIndicator = fields.SalesIndicator();
    fields.ReadTaxes(tst);
    if (tst.strFare == L"NOFARE") warnings_.RefuseNoFare();
    if (records_.mco.blnReissue) warnings_.WarnOfReissue();
    TakeTotals(tst);
    fields.ReadFareElements(tst);
    TakeAirlineAndCommission(tst);
    formsOfPayment_.Add(tst.strFPElementValue);
    TakeCurrency(tst);
    CheckSalesIndicator(salesIndicator);
  });
}

void TSTDetailReader::MarkInfant(TSTInfo& tst) {
  if (!common::Contains(tst.strNames, L"(INF)")) return;
  tst.blnInf = true;
  records_.mco.blnInf = true;
}

// A fare calculation that begins with a date has its first city behind it.
void TSTDetailReader::TakeOriginCity(const std::wstring& fareCalc) {
  std::wstring& city = records_.general.strOriginCity;
  if (!city.empty()) return;
  city = common::Like(fareCalc, L"##*") ? common::Mid(fareCalc, 8, 3) : common::Left(fareCalc, 3);
}

void TSTDetailReader::TakeTotals(const TSTInfo& tst) {
  TSTTotals& totals = records_.totals;
  totals.strFare = tst.strFare;
  totals.strEquivalentFare = tst.strEquivalentFare;
  totals.strTotalFare = tst.strTotalFare;
  totals.strXFTax = tst.strXFTax;
  totals.strTaxList = tst.strTaxList;
}

void TSTDetailReader::TakeAirlineAndCommission(const TSTInfo& tst) {
  pnr::MCOInfo& mco = records_.mco;
  if (!tst.strFVElementValue.empty()) {
    if (mco.strAirlineCode.empty()) mco.strAirlineCode = tst.strFVElementValue;
    records_.pnr.blnFVExists = true;
  }
  if (!tst.strFMElementValue.empty()) {
    if (mco.strCommission.empty()) mco.strCommission = tst.strFMElementValue;
    records_.pnr.blnFMExists = true;
  }
}

void TSTDetailReader::TakeCurrency(const TSTInfo& tst) {
  std::wstring& currency = records_.mco.strCurrency;
  if (!currency.empty()) return;
  currency = common::Left(tst.strEquivalentFare.empty() ? tst.strFare : tst.strEquivalentFare, 3);
}

void TSTDetailReader::CheckSalesIndicator(const std::wstring& indicator) {
  if (indicator.empty() || indicator == L"SOTI" || indicator == L"SITI") return;
  warnings_.WarnOfSalesIndicator(indicator);
}

void TSTDetailReader::AddToFirstOrLaterTotal() {
  TSTTotals& totals = records_.totals;
  if (totals.strTotalFareFirstTST.empty()) {
    totals.strTotalFareFirstTST = totals.strTotalFare;
    return;
  }
  const double sum =
      fares::AmountIn(totals.strTotalFareLastTSTs) + fares::AmountIn(totals.strTotalFare);
  totals.strTotalFareLastTSTs = records_.mco.strCurrency + common::HostNumberText(sum);
}

}  // namespace tst
