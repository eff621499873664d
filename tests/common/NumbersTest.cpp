#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <limits>

#include "common/Numbers.h"
#include "common/RunTimeError.h"

namespace common {
namespace {

struct Rounding {
  double number;
  std::int32_t whole;
};

constexpr Rounding kRoundings[] = {
    {0, 0},           {0.4999999, 0},  {0.5, 0},        {0.5000001, 1},   {1.5, 2},
    {2.5, 2},         {3.5, 4},        {100.5, 100},    {101.5, 102},     {-0.5, 0},
    {-0.5000001, -1}, {-1.5, -2},      {-2.5, -2},      {-3.5, -4},       {2.5000001, 3},
    {0.1 + 0.2, 0},   {1234.49, 1234}, {1234.51, 1235}, {32767.4, 32767}, {-32768.5, -32768},
};

TEST(Numbers, HalvesAreRoundedToEven) {
  for (const auto& [number, whole] : kRoundings) {
    EXPECT_EQ(ToLong(number), whole) << number;
    EXPECT_EQ(ToInteger(number), whole) << number;
  }
}

TEST(Numbers, TheRoundingModeOfTheThreadDoesNotMatter) {
  std::fesetround(FE_UPWARD);
  EXPECT_EQ(ToLong(0.25), 0);
  EXPECT_EQ(ToLong(2.5), 2);
  std::fesetround(FE_TONEAREST);
}

TEST(Numbers, ANumberPastTheWidthIsAnOverflow) {
  EXPECT_EQ(ToLong(2147483647.0), 2147483647);
  EXPECT_EQ(ToLong(2147483647.4), 2147483647);
  EXPECT_THROW(ToLong(2147483647.5), OverflowError);
  EXPECT_THROW(ToLong(2147483648.0), OverflowError);
  EXPECT_EQ(ToLong(-2147483648.0), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(ToLong(-2147483648.5), std::numeric_limits<std::int32_t>::min());
  EXPECT_THROW(ToLong(-2147483648.51), OverflowError);
  EXPECT_THROW(ToLong(1e300), OverflowError);
  EXPECT_EQ(ToInteger(32767.0), 32767);
  EXPECT_THROW(ToInteger(32767.5), OverflowError);
  EXPECT_THROW(ToInteger(32768.0), OverflowError);
  EXPECT_EQ(ToInteger(-32768.0), -32768);
  EXPECT_THROW(ToInteger(-32769.0), OverflowError);
}

TEST(Numbers, WhatIsNoNumberIsAnOverflow) {
  EXPECT_THROW(ToLong(std::nan("")), OverflowError);
  EXPECT_THROW(ToLong(std::numeric_limits<double>::infinity()), OverflowError);
  EXPECT_THROW(NumberText(std::nan(""), L"."), OverflowError);
  EXPECT_THROW(NumberText(-std::numeric_limits<double>::infinity(), L"."), OverflowError);
}

struct ReadRow {
  const wchar_t* text;
  const wchar_t* decimal;
  double number;
};

constexpr ReadRow kReads[] = {
    {L"120,5", L",", 120.5},
    {L"120.5", L".", 120.5},
    {L" 120.25 ", L".", 120.25},
    {L"-7", L".", -7},
    {L"+7", L".", 7},
    {L".5", L".", 0.5},
    {L",5", L",", 0.5},
    {L"5.", L".", 5},
    {L"007", L".", 7},
    {L"0", L".", 0},
    {L"-0.5", L".", -0.5},
    {L"1::5", L"::", 1.5},
    {L"2147483648", L".", 2147483648.0},
    {L"120", L"", 120},
};

TEST(Numbers, ATextIsReadWhole) {
  for (const auto& [text, decimal, number] : kReads) {
    EXPECT_EQ(ToDouble(text, decimal), number) << text;
  }
}

TEST(Numbers, ATextThatCannotBeReadWholeIsNotReadAtAll) {
  for (const wchar_t* text :
       {L"",     L" ",   L".",   L"-",   L"+",   L"-.",    L"1.2.3", L"12a",    L"a12", L"1e5",
        L"0x10", L"- 7", L"--7", L"1 2", L"1,5", L"1,000", L"\t1",   L"\u0661", L"5%",  L"1\r"}) {
    EXPECT_THROW(ToDouble(text, L"."), TypeMismatch) << text;
  }
  EXPECT_THROW(ToDouble(L"1.5", L","), TypeMismatch);
  EXPECT_THROW(ToDouble(L"1.5", L""), TypeMismatch);
}

TEST(Numbers, ATextOfMoreThanANumberHoldsIsAnOverflow) {
  EXPECT_THROW(ToDouble(std::wstring(400, L'9'), L"."), OverflowError);
  EXPECT_EQ(ToDouble(L"0." + std::wstring(400, L'0') + L"1", L"."), 0);
  EXPECT_EQ(ToDouble(std::wstring(400, L'0') + L"1", L"."), 1);
}

TEST(Numbers, ATextIsReadAsAnInteger) {
  EXPECT_EQ(ToInteger(L"12"), 12);
  EXPECT_EQ(ToInteger(L" 2.5 "), 2);
  EXPECT_THROW(ToInteger(L""), TypeMismatch);
  EXPECT_THROW(ToInteger(L"32768"), OverflowError);
}

struct WriteRow {
  double number;
  const wchar_t* text;  // with "." as decimal separator
};

constexpr WriteRow kWrites[] = {
    {0, L"0"},
    {-0.0, L"0"},
    {7, L"7"},
    {-7, L"-7"},
    {2147483647, L"2147483647"},
    {-2147483648.0, L"-2147483648"},
    {-3000000000.0, L"-3000000000"},
    {250, L"250"},
    {240.5, L"240.5"},
    {120.50, L"120.5"},
    {0.5, L"0.5"},
    {-0.05, L"-0.05"},
    {0.1 + 0.2, L"0.3"},
    {1.0 / 3, L"0.333333333333333"},
    {2.0 / 3, L"0.666666666666667"},
    {200.0 / 3, L"66.6666666666667"},
    {120.1 * 3, L"360.3"},
    {0.1 * 3, L"0.3"},
    {4.35 * 100, L"435"},
    {99.99999999999999, L"100"},
    {999999999999999, L"999999999999999"},
    {1e15, L"1000000000000000"},
    {1234567890123456, L"1234567890123460"},
    {1e20, L"100000000000000000000"},
    {0.00001, L"0.00001"},
    {1e-20, L"0.00000000000000000001"},
    {123456789012.345, L"123456789012.345"},
    {0.1234567890123456, L"0.123456789012346"},
    {2147483648.0, L"2147483648"},
    {10, L"10"},
    {100.10, L"100.1"},
};

TEST(Numbers, ANumberIsWrittenWithFifteenDigitsAndNoTrailingZeros) {
  for (const auto& [number, text] : kWrites) {
    EXPECT_EQ(NumberText(number, L"."), text);
    EXPECT_EQ(HostNumberText(number), text);
  }
  EXPECT_EQ(NumberText(240.5, L","), L"240,5");
  EXPECT_EQ(NumberText(-0.05, L","), L"-0,05");
  EXPECT_EQ(NumberText(250.0, L","), L"250");
  EXPECT_EQ(NumberText(std::int32_t{2147483647}), L"2147483647");
  EXPECT_EQ(NumberText(std::int32_t{-1}), L"-1");
}

TEST(Numbers, WithoutASeparatorDecimalsAreNotRunIntoTheWholePart) {
  EXPECT_EQ(NumberText(250.5, L""), L"250.5");
  EXPECT_EQ(NumberText(250.0, L""), L"250");
}

TEST(Numbers, WhatIsWrittenCanBeReadAgain) {
  for (const auto& [number, text] : kWrites) {
    const std::wstring written = NumberText(number, L",");
    EXPECT_EQ(NumberText(ToDouble(written, L","), L","), written);
  }
}

TEST(Numbers, TheHostsReadingStopsAtTheFirstOtherCharacter) {
  constexpr ReadRow kRows[] = {{L"120.50XT", L"", 120.5},
                               {L"1.2.3", L"", 1.2},
                               {L"XT", L"", 0},
                               {L"", L"", 0},
                               {L".", L"", 0},
                               {L"..5", L"", 0},
                               {L"-5", L"", 0},
                               {L" 5", L"", 0},
                               {L"007", L"", 7},
                               {L"5.", L"", 5},
                               {L".5", L"", 0.5},
                               {L"5,5", L"", 5},
                               {L"1E5", L"", 1},
                               {L"250", L"", 250},
                               {L"\u0661", L"", 0}};
  for (const auto& [text, none, number] : kRows) EXPECT_EQ(HostNumber(text), number) << text;
  EXPECT_THROW(HostNumber(std::wstring(400, L'9')), OverflowError);
}

}  // namespace
}  // namespace common
