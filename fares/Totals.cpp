#include "fares/Totals.h"

#include <algorithm>

#include "common/Numbers.h"
#include "common/RunTimeError.h"
#include "common/Text.h"
#include "fares/ItemLists.h"
#include "fares/XFItems.h"

namespace fares {
namespace {

std::int32_t WholeAmountIn(std::wstring_view text) { return common::ToLong(AmountIn(text)); }

// Each addend is rounded before it is added; a sum that does not fit is a failure.
std::int32_t WholeSum(std::wstring_view held, std::wstring_view added) {
  return common::ToLong(static_cast<double>(WholeAmountIn(held)) + WholeAmountIn(added));
}

void AddAmount(std::wstring& held, const std::wstring& added, std::wstring_view currency) {
  if (added.empty()) return;
  if (held.empty()) {
    held = added;
  } else {
    held = common::Joined({currency, common::NumberText(WholeSum(held, added))});
  }
}

// What follows the amount. Counted by the digits of the rounded amount, so that decimals that the
// host wrote count as part of the code.
std::wstring TaxCode(std::wstring_view item) {
  const int digits = common::Length(common::NumberText(WholeAmountIn(item)));
  return common::Mid(item, kCurrencyLength + digits + 1);
}

}  // namespace

Totals::Totals(const Amounts& amounts, const settings::Settings& settings,
               const tst::TSTTotals& tst, pnr::MCOInfo& mco, pnr::PNRInfo& pnr, ui::TextBox& txtPTA,
               errors::ErrorHandler& errors)
    : amounts_(amounts),
      settings_(settings),
      tst_(tst),
      mco_(mco),
      pnr_(pnr),
      txtPTA_(txtPTA),
      errors_(errors) {}

void Totals::AddTSTValues() {
  errors_.Run(errors::procedures::kAddTSTValues, [&] {
    AddAmount(mco_.strFare, tst_.strFare, common::Left(tst_.strFare, kCurrencyLength));
    AddAmount(mco_.strEquivalentFare, tst_.strEquivalentFare, mco_.strCurrency);
    AddAmount(mco_.strNetFare, tst_.strNetFare, mco_.strCurrency);
    AddAmount(mco_.strSellingFare, tst_.strSellingFare, mco_.strCurrency);
    if (mco_.strTourCode.empty()) mco_.strTourCode = tst_.strTourCode;
    AddAmount(mco_.strTotalFare, tst_.strTotalFare, mco_.strCurrency);
    AddXFTax();
    AddTaxes();
  });
}

void Totals::AddXFTax() {
  if (tst_.strXFTax.empty()) return;
  if (mco_.strXFTax.empty()) {
    mco_.strXFTax = tst_.strXFTax;
    return;
  }
  // A failure here is that of reading an amount, which has words and a number of its own.
  errors_.Run(errors::procedures::kMultiplyAmount, [&] {
    const double sum = XFAmount(mco_.strXFTax) + XFAmount(tst_.strXFTax);
    mco_.strXFTax = mco_.strCurrency + AmountText(sum, settings_);
  });
}

double Totals::XFAmount(std::wstring_view items) const {
  double sum = 0;
  bool anyAmount = false;
  for (const std::wstring& item : SplitItems(items)) {
    const std::wstring amount = CutXFItem(item).amount;
    if (amount.empty()) continue;
    sum += amounts_.ParseAmount(amount);
    anyAmount = true;
  }
  if (!anyAmount) throw common::TypeMismatch(L"no amount in " + std::wstring(items));
  return sum;
}

void Totals::AddTaxes() {
  if (tst_.strTaxList.empty()) return;
  std::vector<std::wstring> items = LeadingItems(tst_.strTaxList);
  if (taxes_.empty()) {
    taxes_ = std::move(items);
    return;
  }
  for (const std::wstring& item : items) AddTax(item);
}

void Totals::JoinTaxes() {
  if (!taxes_.empty()) mco_.strTaxList = JoinItems(taxes_);
}

void Totals::AddTax(std::wstring_view item) {
  const std::int32_t amount = WholeAmountIn(item);
  const std::wstring code = TaxCode(item);
  const auto holdsCode = [&](const std::wstring& held) { return common::Contains(held, code); };
  const auto match =
      code.empty() ? taxes_.end() : std::find_if(taxes_.begin(), taxes_.end(), holdsCode);
  if (match != taxes_.end()) {
    *match = common::Joined({mco_.strCurrency, common::NumberText(WholeSum(*match, item)), code});
  } else if (amount > 0) {
    taxes_.push_back(common::Joined({mco_.strCurrency, common::NumberText(amount), code}));
  }
}

void Totals::CalculateTotalFare() {
  errors_.Run(errors::procedures::kTotalFare, [&] {
    std::int32_t total =
        WholeAmountIn(mco_.strEquivalentFare.empty() ? mco_.strFare : mco_.strEquivalentFare);
    // Rounded again at each step, as the agencies' totals have always been.
    for (const std::wstring& tax : LeadingItems(mco_.strTaxList)) {
      total = common::ToLong(total + AmountIn(tax));
    }
    mco_.strTotalFare = mco_.strCurrency + common::NumberText(total);
  });
}

void Totals::BuildPTATotalRemark() {
  errors_.Run(errors::procedures::kPTATotalRemark, [&] {
    std::wstring remark = mco_.strFare;
    if (!mco_.strEquivalentFare.empty()) remark.append(L"/EQUIV ").append(mco_.strEquivalentFare);
    if (!mco_.strTaxList.empty()) {
      remark.append(L"/TAX ").append(common::Replace(mco_.strTaxList, L";", L", "));
    }
    pnr_.strRMPTATotal = std::move(remark);
    txtPTA_.SetText(pnr_.strRMPTATotal);
  });
}

}  // namespace fares
