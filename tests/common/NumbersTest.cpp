#include <gtest/gtest.h>

#include "common/Numbers.h"
#include "common/RunTimeError.h"

namespace common {
namespace {

TEST(Numbers, HalvesAreRoundedToEven) {
  EXPECT_EQ(ToLong(100.5), 100);
  EXPECT_EQ(ToLong(101.5), 102);
  EXPECT_EQ(ToLong(-0.5), 0);
  EXPECT_EQ(ToLong(-1.5), -2);
  EXPECT_EQ(ToLong(2.5000001), 3);
}

TEST(Numbers, ANumberPastTheWidthIsAnOverflow) {
  EXPECT_EQ(ToLong(2147483647.0), 2147483647);
  EXPECT_EQ(ToLong(2147483647.4), 2147483647);
  EXPECT_THROW(ToLong(2147483647.5), OverflowError);
  EXPECT_EQ(ToInteger(32767.0), 32767);
  EXPECT_THROW(ToInteger(32768.0), OverflowError);
  EXPECT_EQ(ToInteger(-32768.0), -32768);
  EXPECT_THROW(ToInteger(-32769.0), OverflowError);
}

TEST(Numbers, ATextIsReadWholeOrNotAtAll) {
  EXPECT_EQ(ToDouble(L"120,5", L","), 120.5);
  EXPECT_EQ(ToDouble(L" 120.25 ", L"."), 120.25);
  EXPECT_EQ(ToDouble(L"-7", L"."), -7);
  EXPECT_EQ(ToDouble(L".5", L"."), 0.5);
  for (const wchar_t* text : {L"", L" ", L".", L"1.2.3", L"12a", L"1e5", L"0x10", L"- 7", L"--7"}) {
    EXPECT_THROW(ToDouble(text, L"."), TypeMismatch);
  }
}

TEST(Numbers, ANumberIsWrittenWithFifteenDigitsAndNoTrailingZeros) {
  EXPECT_EQ(NumberText(250.0, L","), L"250");
  EXPECT_EQ(NumberText(240.5, L","), L"240,5");
  EXPECT_EQ(NumberText(0.1 + 0.2, L"."), L"0.3");
  EXPECT_EQ(NumberText(1.0 / 3, L"."), L"0.333333333333333");
  EXPECT_EQ(NumberText(-0.05, L"."), L"-0.05");
  EXPECT_EQ(NumberText(0.0, L"."), L"0");
  EXPECT_EQ(NumberText(1e15, L"."), L"1000000000000000");
  EXPECT_EQ(NumberText(123456789012.345, L"."), L"123456789012.345");
}

TEST(Numbers, TheHostsReadingStopsAtTheFirstOtherCharacter) {
  EXPECT_EQ(HostNumber(L"120.50XT"), 120.5);
  EXPECT_EQ(HostNumber(L"1.2.3"), 1.2);
  EXPECT_EQ(HostNumber(L"XT"), 0);
  EXPECT_EQ(HostNumber(L""), 0);
  EXPECT_EQ(HostNumber(L"."), 0);
  EXPECT_EQ(HostNumber(L"-5"), 0);
  EXPECT_EQ(HostNumber(L"007"), 7);
  EXPECT_EQ(HostNumber(L"5."), 5);
}

}  // namespace
}  // namespace common
