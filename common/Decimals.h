#pragma once

#include <string>
#include <string_view>

namespace common {

/// A number that is not negative, in decimal digits.
struct Decimals {
  std::string digits;  ///< without zeros at either end; "" is 0
  /// How many digits stand before the point: more than there are, zeros follow them; less than
  /// none, so many zeros stand between the point and the first.
  int whole = 0;
};

/// `number` (finite, not negative) rounded to 15 significant digits, halves to the even digit. What
/// a double is exactly decides what is a half.
Decimals DecimalsOf(double number);

/// The double that is nearest to `digits`, of which the last `decimals` stand behind the point; of
/// two as near the even one. "" is 0; what is too large for a double is infinite. Below the
/// smallest number of full precision (2 to the power of -1022) it may be the next one.
double FromDecimals(std::string_view digits, std::size_t decimals);

}  // namespace common
