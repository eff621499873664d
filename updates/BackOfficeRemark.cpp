#include "updates/BackOfficeRemark.h"

#include <algorithm>
#include <cmath>

#include "common/Numbers.h"
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
    const double fare = fares::AmountIn(mco_.strTotalFare) / passengers;
    const Taxes taxes = TaxesEach(passengers);
    std::wstring groups = L"*";
    AddGroup(groups, L"FARE", fare);
    if (taxes.tax != 0) AddGroup(groups, L",TAX", taxes.tax);
    // A fee that is there is told even when nothing of it is left.
    if (mco_.dblMCOFee != 0) AddGroup(groups, L",PTA", FeeEach(passengers));
    if (taxes.vat != 0) AddGroup(groups, L",VAT", taxes.vat);
    remark = std::move(groups);
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

// Only the fee is truncated.
double BackOfficeRemark::FeeEach(int passengers) const {
  return passengers > 1 ? std::trunc(mco_.dblMCOFee / passengers) : mco_.dblMCOFee;
}

BackOfficeRemark::Taxes BackOfficeRemark::TaxesEach(int passengers) {
  Taxes taxes;
  for (int number = 1;; ++number) {
    const std::wstring entry = global_.GetField(mco_.strTaxList, number, L";");
    if (entry.empty()) return taxes;
    const bool isVAT = settings_.strCountryCode == kVATCountry && entry.ends_with(kVATCode);
    (isVAT ? taxes.vat : taxes.tax) += fares::AmountIn(entry) / passengers;
  }
}

void BackOfficeRemark::AddGroup(std::wstring& groups, std::wstring_view name, double amount) const {
  groups.append(name).append(L":").append(common::NumberText(amount, settings_.strSymbol));
}

}  // namespace updates
