#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>

#include "common/Decimals.h"
#include "tests/journal/CpuTime.h"

using common::Decimals;
using common::DecimalsOf;
using common::FromDecimals;

namespace {

constexpr int kDraws = 1000;

/// The same by the C library: 15 significant digits.
Decimals DecimalsByTheCLibrary(double number) {
  char form[64];
  std::snprintf(form, sizeof form, "%.14e", number);
  std::string digits(1, form[0]);
  digits.append(form + 2, 14);
  digits.erase(digits.find_last_not_of('0') + 1);
  if (digits.empty()) return {};
  return {digits, std::atoi(std::strchr(form, 'e') + 1) + 1};
}

void ExpectAsTheCLibrarySays(double number) {
  const Decimals expected = DecimalsByTheCLibrary(number);
  const Decimals decimals = DecimalsOf(number);
  EXPECT_EQ(decimals.digits, expected.digits) << number;
  EXPECT_EQ(decimals.whole, expected.whole) << number;
}

/// "12.50", with so many digits behind the point.
std::string Fixed(double number, int decimals) {
  std::string form(
      static_cast<std::size_t>(std::snprintf(nullptr, 0, "%.*f", decimals, number)) + 1, '\0');
  std::snprintf(form.data(), form.size(), "%.*f", decimals, number);
  form.pop_back();
  return form;
}

double Read(std::string form) {
  const std::size_t point = form.find('.');
  form.erase(point, 1);
  return FromDecimals(form, form.size() - point);
}

void ExpectReadAsTheCLibrarySays(double number) {
  for (const int decimals : {1, 15, 17, 40}) {
    const std::string form = Fixed(number, decimals);
    EXPECT_EQ(Read(form), std::strtod(form.c_str(), nullptr)) << form;
  }
}

class DrawnNumbers : public testing::Test {
 protected:
  double Amount() { return static_cast<double>(random_() % 10000000) / 100; }
  double Precise() { return std::nextafter(static_cast<double>(random_() % 100000) / 100, 1e9); }
  double HalfAtTheLastDigit() { return static_cast<double>(random_() % 1000000000000000) + 0.5; }
  double OfAnySize() {
    return std::ldexp(static_cast<double>(random_() >> 11),
                      static_cast<int>(random_() % 2000) - 1060);
  }

 private:
  std::mt19937_64 random_{20070220};
};

}  // namespace

TEST(Decimals, AnAmountHasTheDigitsThatItWasReadFrom) {
  EXPECT_EQ(DecimalsOf(1234.5).digits, "12345");
  EXPECT_EQ(DecimalsOf(1234.5).whole, 4);
  EXPECT_EQ(DecimalsOf(0.1).digits, "1");
  EXPECT_EQ(DecimalsOf(0.1).whole, 0);
  EXPECT_EQ(DecimalsOf(0.1 + 0.2).digits, "3");
}

TEST(Decimals, ZerosAtTheEndsAreNoDigits) {
  EXPECT_EQ(DecimalsOf(12000).digits, "12");
  EXPECT_EQ(DecimalsOf(12000).whole, 5);
  EXPECT_EQ(DecimalsOf(0.0012).digits, "12");
  EXPECT_EQ(DecimalsOf(0.0012).whole, -2);
  EXPECT_EQ(DecimalsOf(0).digits, "");
}

TEST(Decimals, AHalfGoesToTheEvenDigit) {
  EXPECT_EQ(DecimalsOf(100000000000000.5).digits, "1");
  EXPECT_EQ(DecimalsOf(100000000000001.5).digits, "100000000000002");
  EXPECT_EQ(DecimalsOf(99999999999999.75).digits, "999999999999998");
}

TEST(Decimals, RoundingUpNinesMakesTheNumberLonger) {
  EXPECT_EQ(DecimalsOf(999999999999999.5).digits, "1");
  EXPECT_EQ(DecimalsOf(999999999999999.5).whole, 16);
}

TEST(Decimals, TheLargestAndTheSmallestDoublesHaveTheirDigits) {
  for (const double number :
       {std::numeric_limits<double>::max(), std::numeric_limits<double>::min(),
        std::numeric_limits<double>::denorm_min()}) {
    ExpectAsTheCLibrarySays(number);
  }
}

TEST_F(DrawnNumbers, HaveTheDigitsThatTheCLibraryGivesThem) {
  for (int i = 0; i < kDraws; ++i) {
    for (const double number : {Amount(), Precise(), HalfAtTheLastDigit(), OfAnySize()}) {
      ExpectAsTheCLibrarySays(number);
    }
  }
}

TEST_F(DrawnNumbers, AreReadAsTheCLibraryReadsThem) {
  for (int i = 0; i < kDraws; ++i) {
    for (const double number : {Amount(), Precise(), HalfAtTheLastDigit(), OfAnySize()}) {
      ExpectReadAsTheCLibrarySays(number);
    }
  }
}

TEST(Decimals, AWholeNumberIsReadExactlyWhateverItsLength) {
  for (std::size_t length = 1; length <= 30; ++length) {
    const std::string nines(length, '9');
    EXPECT_EQ(FromDecimals(nines, 0), std::strtod(nines.c_str(), nullptr)) << nines;
  }
}

TEST(Decimals, AnAmountIsReadAsTheNearestDouble) {
  EXPECT_EQ(FromDecimals("12345", 1), 1234.5);
  EXPECT_EQ(FromDecimals("0000705", 2), 7.05);
  EXPECT_EQ(FromDecimals("", 0), 0);
  EXPECT_EQ(FromDecimals("000", 2), 0);
}

TEST(Decimals, HalfwayBetweenTwoDoublesTheEvenOneIsRead) {
  // 2 to the power of 53 and one, and the same with a rest far behind the point.
  EXPECT_EQ(FromDecimals("9007199254740993", 0), 9007199254740992.0);
  EXPECT_EQ(FromDecimals("9007199254740995", 0), 9007199254740996.0);
  EXPECT_EQ(FromDecimals("9007199254740993" + std::string(900, '0') + "1", 901),
            9007199254740994.0);
}

TEST(Decimals, TheLastBitOfALongNumberDecidesAHalf) {
  // 2 to the power of 80 and half of what its double can tell apart; the same and one.
  EXPECT_EQ(FromDecimals("1208925819614629308923904", 0), std::ldexp(1, 80));
  EXPECT_EQ(FromDecimals("1208925819614629308923905", 0), std::ldexp(1, 80) + std::ldexp(1, 28));
}

TEST(Decimals, WhatIsTooLargeForADoubleIsInfinite) {
  EXPECT_EQ(FromDecimals("1" + std::string(308, '0'), 0), 1e308);
  EXPECT_EQ(FromDecimals("2" + std::string(308, '0'), 0), std::numeric_limits<double>::infinity());
  EXPECT_EQ(FromDecimals(std::string(100000, '9'), 0), std::numeric_limits<double>::infinity());
}

TEST(Decimals, AMillionZerosBehindThePointTakeNoTimeToSpeakOf) {
  const journal::CpuTime time;
  EXPECT_EQ(FromDecimals(std::string(1000000, '0') + "1", 1000000), 0);
  EXPECT_EQ(FromDecimals("1" + std::string(1000000, '0'), 1000000), 1);
  EXPECT_LT(time.Seconds(), 1);
}

TEST(Decimals, WhatIsTooSmallForADoubleIsZero) {
  EXPECT_EQ(FromDecimals(std::string(400, '0') + "1", 400), 0);
}
