#include "common/Numbers.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include "common/RunTimeError.h"
#include "common/Text.h"

namespace common {
namespace {

constexpr int kSignificantDigits = 15;
constexpr std::wstring_view kPoint = L".";

// Half to even whatever the thread's rounding mode is.
double RoundHalfToEven(double number) {
  const double below = std::floor(number);
  const double rest = number - below;
  if (rest < 0.5) return below;
  if (rest > 0.5) return below + 1;
  return std::fmod(below, 2.0) == 0.0 ? below : below + 1;
}

template <typename Whole>
Whole ToWhole(double number) {
  const double rounded = RoundHalfToEven(number);
  if (!(rounded >= static_cast<double>(std::numeric_limits<Whole>::min()) &&
        rounded <= static_cast<double>(std::numeric_limits<Whole>::max()))) {
    throw OverflowError();
  }
  return static_cast<Whole>(rounded);
}

// `digits` with "." as point, nothing else; the longest run that is a number has been cut already.
double FromDigits(std::wstring_view digits) {
  std::string narrow;
  for (const wchar_t c : digits) narrow += static_cast<char>(c);
  // The C library's, which the program never takes out of its own locale; those of <charconv> bring
  // two hundred kilobytes of tables with them.
  const double number = std::strtod(narrow.c_str(), nullptr);
  if (std::isinf(number)) throw OverflowError();
  return number;
}

}  // namespace

std::int16_t ToInteger(double number) { return ToWhole<std::int16_t>(number); }

std::int32_t ToLong(double number) { return ToWhole<std::int32_t>(number); }

std::int16_t ToInteger(std::wstring_view text) { return ToInteger(ToDouble(text, kPoint)); }

double ToDouble(std::wstring_view text, std::wstring_view decimal) {
  const auto mismatch = [&] {
    return TypeMismatch(L"\"" + std::wstring(text) + L"\" is no number");
  };
  std::wstring rest = Trim(text);
  const bool negative = !rest.empty() && rest.front() == L'-';
  if (!rest.empty() && (negative || rest.front() == L'+')) rest.erase(0, 1);

  std::wstring digits;
  bool anyDigit = false;
  bool anyPoint = false;
  for (std::size_t at = 0; at < rest.size();) {
    if (IsDigit(rest[at])) {
      digits += rest[at++];
      anyDigit = true;
    } else if (!anyPoint && !decimal.empty() && rest.compare(at, decimal.size(), decimal) == 0) {
      digits += L'.';
      at += decimal.size();
      anyPoint = true;
    } else {
      throw mismatch();
    }
  }
  if (!anyDigit) throw mismatch();
  const double number = FromDigits(digits);
  return negative ? -number : number;
}

std::wstring NumberText(double number, std::wstring_view decimal) {
  if (!std::isfinite(number)) throw OverflowError();
  // Scientific form fixes the count of significant digits; the point is then set by hand.
  char buffer[64];
  const int length =
      std::snprintf(buffer, sizeof buffer, "%.*e", kSignificantDigits - 1, std::abs(number));
  const std::string_view form(buffer, static_cast<std::size_t>(length));
  const std::size_t mark = form.find('e');
  std::string digits(1, form.front());
  digits += form.substr(2, mark - 2);
  int exponent = 0;
  const char* first = form.data() + mark + (form[mark + 1] == '+' ? 2 : 1);
  std::from_chars(first, form.data() + form.size(), exponent);

  digits.erase(digits.find_last_not_of('0') + 1);
  if (digits.empty()) return L"0";
  const int whole = exponent + 1;  // digits before the point
  std::string before = "0";
  std::string after;
  if (whole <= 0) {
    after = std::string(static_cast<std::size_t>(-whole), '0') + digits;
  } else if (static_cast<std::size_t>(whole) >= digits.size()) {
    before = digits + std::string(static_cast<std::size_t>(whole) - digits.size(), '0');
  } else {
    before = digits.substr(0, static_cast<std::size_t>(whole));
    after = digits.substr(static_cast<std::size_t>(whole));
  }
  std::wstring text = number < 0 ? L"-" : L"";
  text.append(before.begin(), before.end());
  if (!after.empty()) {
    text.append(decimal.empty() ? kPoint : decimal).append(after.begin(), after.end());
  }
  return text;
}

std::wstring NumberText(std::int32_t number) {
  char digits[std::numeric_limits<std::int32_t>::digits10 + 3];
  const auto [end, error] = std::to_chars(std::begin(digits), std::end(digits), number);
  return {digits, end};
}

double HostNumber(std::wstring_view text) {
  std::size_t length = 0;
  bool anyPoint = false;
  for (; length < text.size(); ++length) {
    if (text[length] == L'.' && !anyPoint) {
      anyPoint = true;
    } else if (!IsDigit(text[length])) {
      break;
    }
  }
  return FromDigits(text.substr(0, length));
}

std::wstring HostNumberText(double number) { return NumberText(number, kPoint); }

}  // namespace common
