#pragma once

#include <string>
#include <string_view>

#include "errors/ErrorHandler.h"
#include "platform/Platform.h"
#include "settings/Settings.h"
#include "tst/TSTInfo.h"
#include "tst/TSTTotals.h"

namespace fares {

/// An amount text begins with the currency code of this many characters.
inline constexpr int kCurrencyLength = 3;

/// What follows the currency code; "" when nothing does.
std::wstring_view WithoutCurrency(std::wstring_view amount);

/// The number behind the currency code, by the host's number reading: the same in every locale.
double AmountIn(std::wstring_view amount);

/// A number in the host's form.
std::wstring AmountText(double amount, const settings::Settings& settings);

/// The user's decimal separator; "" when the locale does not tell.
std::wstring GetDecimalSymbol(const platform::Platform& platform);

/// Reads amount texts and multiplies a TST's amounts per passenger. Amount texts have the host's
/// form: currency (3 characters), digits and ".", an optional suffix such as a tax code.
class Amounts {
 public:
  Amounts(const settings::Settings& settings, tst::TSTTotals& totals, errors::ErrorHandler& errors);

  /// `amount` is a text without its currency code; read up to the first character that is neither
  /// digit nor ".". Throws a RunTimeError when nothing converts.
  double ParseAmount(std::wstring_view amount) const;

  /// Multiplies an amount text in place by the TST's number of names. A text that does not convert
  /// is reported and stays as it was; the answer is then False.
  bool MultiplyAmount(std::wstring& amount, const tst::TSTInfo& tst) const;

  /// Multiplies the values of TSTTotals by the TST's number of names. Ends at the first that does
  /// not convert: its report stops the run, and a second box would tell the agent nothing new.
  void MultiplyTSTValues(const tst::TSTInfo& tst);

 private:
  std::wstring Product(std::wstring_view amount, const tst::TSTInfo& tst) const;
  bool MultiplyTaxes(const tst::TSTInfo& tst) const;
  bool MultiplyXFItems(const tst::TSTInfo& tst) const;
  void MultiplyXFItem(std::wstring& item, const tst::TSTInfo& tst) const;

  const settings::Settings& settings_;
  tst::TSTTotals& totals_;
  errors::ErrorHandler& errors_;
};

}  // namespace fares
