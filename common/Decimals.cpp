#include "common/Decimals.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

#include "common/WholeNumber.h"

namespace common {
namespace {

constexpr std::size_t kSignificantDigits = 15;
constexpr int kMantissaBits = std::numeric_limits<double>::digits;

// Multiplied and divided by as much as one step takes.
constexpr std::size_t kDigitsOfStep = 9;
constexpr std::uint32_t kPowersOfTen[] = {1,      10,      100,      1000,      10000,
                                          100000, 1000000, 10000000, 100000000, 1000000000};
constexpr int kFivesOfStep = 13;
constexpr int kTwosOfStep = 31;

// Digits beyond these cannot be those that decide, but for not being 0.
constexpr std::size_t kDecidingDigits = 800;
constexpr std::size_t kMostZerosBehindPoint = 400;
constexpr int kBitsOfDigit = 4;
constexpr int kBitsToRound = 64;

void MultiplyByFives(WholeNumber& number, int fives) {
  for (; fives > 0; fives -= kFivesOfStep) {
    std::uint32_t factor = 1;
    for (int i = std::min(fives, kFivesOfStep); i > 0; --i) factor *= 5;
    number.MultiplyAdd(factor, 0);
  }
}

void MultiplyByTwos(WholeNumber& number, int twos) {
  for (; twos > 0; twos -= kTwosOfStep) {
    number.MultiplyAdd(1U << std::min(twos, kTwosOfStep), 0);
  }
}

std::string DigitsOf(WholeNumber number) {
  std::string digits;  // the last first
  while (!number.IsZero()) {
    std::uint32_t step = number.DivideBy(kPowersOfTen[kDigitsOfStep]);
    for (std::size_t i = 0; i < kDigitsOfStep; ++i, step /= 10) {
      digits += static_cast<char>('0' + step % 10);
    }
  }
  digits.erase(digits.find_last_not_of('0') + 1);
  std::ranges::reverse(digits);
  return digits;
}

/// Of at most nine digits.
std::uint32_t NumberOf(std::string_view step) {
  std::uint32_t number = 0;
  for (const char digit : step) number = number * 10 + static_cast<std::uint32_t>(digit - '0');
  return number;
}

bool RoundsUp(std::string_view digits) {
  const char next = digits[kSignificantDigits];
  if (next != '5') return next > '5';
  if (digits.find_first_not_of('0', kSignificantDigits + 1) != digits.npos) return true;
  return (digits[kSignificantDigits - 1] - '0') % 2 != 0;
}

void Round(Decimals& number) {
  std::string& digits = number.digits;
  if (digits.size() > kSignificantDigits) {
    const bool up = RoundsUp(digits);
    digits.resize(kSignificantDigits);
    if (up) {
      digits.erase(digits.find_last_not_of('9') + 1);
      if (digits.empty()) {
        digits = "1";
        ++number.whole;
      } else {
        ++digits.back();
      }
    }
  }
  digits.erase(digits.find_last_not_of('0') + 1);
}

}  // namespace

Decimals DecimalsOf(double number) {
  if (number == 0) return {};
  int twos = 0;
  auto mantissa = static_cast<std::uint64_t>(std::ldexp(std::frexp(number, &twos), kMantissaBits));
  const int spare = std::countr_zero(mantissa);
  mantissa >>= spare;
  twos += spare - kMantissaBits;

  // A half is five tenths: so many fives, so many digits behind the point.
  WholeNumber exact(mantissa);
  MultiplyByTwos(exact, twos);
  MultiplyByFives(exact, -twos);
  Decimals decimals{DigitsOf(std::move(exact))};
  decimals.whole = static_cast<int>(decimals.digits.size()) + std::min(twos, 0);
  Round(decimals);
  return decimals;
}

double FromDecimals(std::string_view digits, std::size_t decimals) {
  digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
  // Most numbers are whole and short.
  if (decimals == 0 && digits.size() <= kDigitsOfStep) return NumberOf(digits);
  if (digits.size() > decimals + std::numeric_limits<double>::max_exponent10 + 1) {
    return std::numeric_limits<double>::infinity();
  }
  // The same at the other end: smaller than any double. Longer numbers take more than their share.
  if (digits.empty() || decimals > digits.size() + kMostZerosBehindPoint) return 0;
  bool anyRest = false;
  if (digits.size() > kDecidingDigits) {
    anyRest = digits.find_first_not_of('0', kDecidingDigits) != digits.npos;
    decimals -= digits.size() - kDecidingDigits;
    digits = digits.substr(0, kDecidingDigits);
  }

  WholeNumber number;
  for (std::size_t at = 0; at < digits.size(); at += kDigitsOfStep) {
    const std::string_view step = digits.substr(at, kDigitsOfStep);
    number.MultiplyAdd(kPowersOfTen[step.size()], NumberOf(step));
  }
  // So large that enough bits are left by the division.
  const int bits = kBitsToRound + kBitsOfDigit * static_cast<int>(decimals);
  const int twos = std::max(bits - number.Bits(), 0);
  MultiplyByTwos(number, twos);
  for (std::size_t left = decimals; left > 0;) {
    const std::size_t step = std::min(left, kDigitsOfStep);
    anyRest |= number.DivideBy(kPowersOfTen[step]) != 0;
    left -= step;
  }
  const int below = number.Bits() - kBitsToRound;
  return std::ldexp(static_cast<double>(number.HighestBits() | (anyRest ? 1 : 0)), below - twos);
}

}  // namespace common
