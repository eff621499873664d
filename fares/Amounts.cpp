#include "fares/Amounts.h"

#include <algorithm>

#include "common/Numbers.h"
#include "common/RunTimeError.h"
#include "common/Text.h"
#include "fares/ItemLists.h"
#include "fares/XFItems.h"

namespace fares {
namespace {

std::wstring LeadingAmount(std::wstring_view text) {
  const auto end = std::find_if_not(text.begin(), text.end(),
                                    [](wchar_t c) { return common::IsDigit(c) || c == L'.'; });
  return {text.begin(), end};
}

// Changes the items of a list, up to the first that cannot be changed. True when all could.
template <typename Change>
bool ForEachItem(std::wstring& list, const Change& change) {
  std::vector<std::wstring> items = SplitItems(list);
  bool all = true;
  for (std::size_t i = 0; i < items.size() && all; ++i) all = change(items[i]);
  list = JoinItems(items);
  return all;
}

}  // namespace

std::wstring_view WithoutCurrency(std::wstring_view amount) {
  amount.remove_prefix(std::min<std::size_t>(kCurrencyLength, amount.size()));
  return amount;
}

double AmountIn(std::wstring_view amount) { return common::HostNumber(WithoutCurrency(amount)); }

std::wstring AmountText(double amount, const settings::Settings& settings) {
  const std::wstring text = common::NumberText(amount, settings.strSymbol);
  return common::Replace(text, settings.strSymbol, L".");
}

std::wstring GetDecimalSymbol(const platform::Platform& platform) {
  const std::uint32_t locale = platform.UserDefaultLocale();
  const int length = platform.LocaleInfo(locale, platform::kDecimalSeparator, {});
  if (length <= 0) return {};
  std::string buffer(static_cast<std::size_t>(length), '\0');
  if (platform.LocaleInfo(locale, platform::kDecimalSeparator, buffer) <= 0) return {};
  // The length that the locale gives counts the closing NUL.
  buffer.resize(std::min(buffer.find('\0'), buffer.size()));
  std::wstring symbol;
  for (const char c : buffer) symbol += static_cast<wchar_t>(static_cast<unsigned char>(c));
  return symbol;
}

Amounts::Amounts(const settings::Settings& settings, tst::TSTTotals& totals,
                 errors::ErrorHandler& errors)
    : settings_(settings), totals_(totals), errors_(errors) {}

double Amounts::ParseAmount(std::wstring_view amount) const {
  const std::wstring kept = LeadingAmount(amount);
  if (settings_.strSymbol.empty() && common::Contains(kept, L".")) {
    // Dropping the point would read a hundred times the amount.
    throw common::TypeMismatch(L"no decimal separator is known to read " + kept);
  }
  return common::ToDouble(common::Replace(kept, L".", settings_.strSymbol), settings_.strSymbol);
}

bool Amounts::MultiplyAmount(std::wstring& amount, const tst::TSTInfo& tst) const {
  return errors_.Run(errors::procedures::kMultiplyAmount, [&] { amount = Product(amount, tst); });
}

std::wstring Amounts::Product(std::wstring_view amount, const tst::TSTInfo& tst) const {
  const double value = ParseAmount(WithoutCurrency(amount));
  // Counted in the shortest text of the value: zeros that the host wrote beyond it are taken for
  // the suffix.
  const int digits = common::Length(common::HostNumberText(value));
  const std::wstring result = common::Left(amount, kCurrencyLength) +
                              common::NumberText(value * tst.intNoNames, settings_.strSymbol) +
                              common::Mid(amount, digits + kCurrencyLength + 1);
  return common::Replace(result, settings_.strSymbol, L".");
}

void Amounts::MultiplyTSTValues(const tst::TSTInfo& tst) {
  errors_.Run(errors::procedures::kMultiplyTSTValues, [&] {
    const auto multiplyGiven = [&](std::wstring& amount) {
      return amount.empty() || MultiplyAmount(amount, tst);
    };
    [[maybe_unused]] const bool all =
        MultiplyAmount(totals_.strFare, tst) && multiplyGiven(totals_.strEquivalentFare) &&
        multiplyGiven(totals_.strNetFare) && multiplyGiven(totals_.strSellingFare) &&
        MultiplyTaxes(tst) && MultiplyXFItems(tst) && multiplyGiven(totals_.strTotalFare);
  });
}

bool Amounts::MultiplyTaxes(const tst::TSTInfo& tst) const {
  return ForEachItem(totals_.strTaxList,
                     [&](std::wstring& tax) { return tax.empty() || MultiplyAmount(tax, tst); });
}

bool Amounts::MultiplyXFItems(const tst::TSTInfo& tst) const {
  return ForEachItem(totals_.strXFTax, [&](std::wstring& item) {
    return errors_.Run(errors::procedures::kMultiplyAmount, [&] { MultiplyXFItem(item, tst); });
  });
}

void Amounts::MultiplyXFItem(std::wstring& item, const tst::TSTInfo& tst) const {
  const XFItem cut = CutXFItem(item);
  if (cut.amount.empty()) return;
  item = cut.before + AmountText(ParseAmount(cut.amount) * tst.intNoNames, settings_) + cut.after;
}

}  // namespace fares
