#pragma once

#include <string>
#include <string_view>

#include "errors/ErrorHandler.h"
#include "platform/Platform.h"
#include "settings/Settings.h"
#include "tst/TSTInfo.h"
#include "tst/TSTTotals.h"

namespace fares {

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
  /// is reported, once, and stays as it was.
  void MultiplyAmount(std::wstring& amount, const tst::TSTInfo& tst) const;

  /// Multiplies the values of TSTTotals by the TST's number of names.
  void MultiplyTSTValues(const tst::TSTInfo& tst);

 private:
  const settings::Settings& settings_;
  tst::TSTTotals& totals_;
  errors::ErrorHandler& errors_;
};

}  // namespace fares
