#include "common/Numbers.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "common/Decimals.h"
#include "common/RunTimeError.h"
#include "common/Text.h"

namespace common {
namespace {

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

/// Digits as they are read, with a point somewhere between them or none.
class DigitsRead {
 public:
  void Digit(wchar_t digit) {
    digits_ += static_cast<char>(digit);
    if (anyPoint_) ++decimals_;
  }
  void Point() { anyPoint_ = true; }

  bool anyDigit() const { return !digits_.empty(); }
  bool anyPoint() const { return anyPoint_; }
  double Number() const {
    const double number = FromDecimals(digits_, decimals_);
    if (std::isinf(number)) throw OverflowError();
    return number;
  }

 private:
  std::string digits_;
  std::size_t decimals_ = 0;
  bool anyPoint_ = false;
};

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

  DigitsRead digits;
  for (std::size_t at = 0; at < rest.size();) {
    if (IsDigit(rest[at])) {
      digits.Digit(rest[at++]);
    } else if (!digits.anyPoint() && !decimal.empty() &&
               rest.compare(at, decimal.size(), decimal) == 0) {
      digits.Point();
      at += decimal.size();
    } else {
      throw mismatch();
    }
  }
  if (!digits.anyDigit()) throw mismatch();
  return negative ? -digits.Number() : digits.Number();
}

std::wstring NumberText(double number, std::wstring_view decimal) {
  if (!std::isfinite(number)) throw OverflowError();
  // Most amounts are whole and need no search for their digits.
  if (std::abs(number) <= std::numeric_limits<std::int32_t>::max() &&
      std::trunc(number) == number) {
    return NumberText(static_cast<std::int32_t>(number));
  }
  const auto [digits, whole] = DecimalsOf(std::abs(number));
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
  DigitsRead digits;
  for (const wchar_t character : text) {
    if (IsDigit(character)) {
      digits.Digit(character);
    } else if (character == L'.' && !digits.anyPoint()) {
      digits.Point();
    } else {
      break;
    }
  }
  return digits.Number();
}

std::wstring HostNumberText(double number) { return NumberText(number, kPoint); }

}  // namespace common
