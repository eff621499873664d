#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace common {

/// Rounded half to even. Throws OverflowError when the result does not fit, or is no number.
std::int16_t ToInteger(double number);
std::int32_t ToLong(double number);

/// A text read whole as a number (blanks around it allowed, sign, `decimal` as the decimal
/// separator, no exponent, no grouping), then rounded as above. Throws TypeMismatch.
std::int16_t ToInteger(std::wstring_view text);
double ToDouble(std::wstring_view text, std::wstring_view decimal);

/// At most 15 significant digits, no trailing zeros, never an exponent, `decimal` as the decimal
/// separator, "." when there is none; 0 is "0", a value below 1 begins with "0".
std::wstring NumberText(double number, std::wstring_view decimal);
std::wstring NumberText(std::int32_t number);

/// The host's number reading, the same in every locale: digits and "." from the first character
/// on; any other character or a second "." ends it; nothing read gives 0. Too much: OverflowError.
double HostNumber(std::wstring_view text);
/// The host's form of a number: "." as decimal point whatever the locale.
std::wstring HostNumberText(double number);

}  // namespace common
