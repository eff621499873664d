#include "updates/BackOfficeRemark.h"

#include <algorithm>
#include <cmath>

#include "common/Numbers.h"
#include "common/Text.h"
#include "fares/Amounts.h"

namespace updates {
namespace {

constexpr std::wstring_view kVATCountry = L"SE";
constexpr std::wstring_view kVATCode = L"XSGO";

}  // namespace

BackOfficeRemark::BackOfficeRemark(hostlib::ScriptGlobal& global, errors::ErrorHandler& errors,
                                   const settings::Settings& settings,
                                   const tst::TSTCollection& tsts, const pnr::MCOInfo& mco)
    : global_(global), errors_(errors), settings_(settings), tsts_(tsts), mco_(mco) {}

std::wstring BackOfficeRemark::CreateRMStarElement() {
  std::wstring remark;
  errors_.Run(errors::procedures::kCreateRMStar, [&] {
    const int passengers = CountPassengers();
    const std::wstring fee = FeeGroup(passengers);
    const double fare = fares::AmountIn(mco_.strTotalFare) / passengers;
    const Taxes taxes = TaxesEach(passengers);
    remark = L"*" + Group(L"FARE", fare) + GroupUnlessZero(L",TAX", taxes.tax) + fee +
             GroupUnlessZero(L",VAT", taxes.vat);
  });
  return remark;
}

int BackOfficeRemark::CountPassengers() const {
  int passengers = 0;
  for (const tst::TSTInfo& tst : tsts_) {
    passengers += tst.intNoNames;
    if (!mco_.blnMultTST) break;
  }
  return std::max(passengers, 1);
}

// Only the fee is truncated; a fee that is there is told even when nothing of it is left.
std::wstring BackOfficeRemark::FeeGroup(int passengers) const {
  if (mco_.dblMCOFee == 0) return {};
  return Group(L",PTA", passengers > 1 ? std::trunc(mco_.dblMCOFee / passengers) : mco_.dblMCOFee);
}

BackOfficeRemark::Taxes BackOfficeRemark::TaxesEach(int passengers) {
  Taxes taxes;
  for (int number = 1;; ++number) {
    const std::wstring entry = global_.GetField(mco_.strTaxList, number, L";");
    if (entry.empty()) return taxes;
    const bool isVAT = settings_.strCountryCode == kVATCountry &&
                       common::Right(entry, common::Length(kVATCode)) == kVATCode;
    (isVAT ? taxes.vat : taxes.tax) += fares::AmountIn(entry) / passengers;
  }
}

std::wstring BackOfficeRemark::Group(std::wstring_view name, double amount) const {
  return std::wstring(name) + L":" + common::NumberText(amount, settings_.strSymbol);
}

std::wstring BackOfficeRemark::GroupUnlessZero(std::wstring_view name, double amount) const {
  return amount == 0 ? std::wstring() : Group(name, amount);
}

}  // namespace updates
