#include <gtest/gtest.h>

#include "platform/FixedPlatform.h"

namespace platform {
namespace {

TEST(FixedPlatform, ReadsADateOfTheCalendarAsYearMonthAndDay) {
  EXPECT_EQ(FixedPlatform().ReadShortDate(L"2007-03-16"),
            std::chrono::year_month_day(std::chrono::year(2007), std::chrono::month(3),
                                        std::chrono::day(16)));
}

TEST(FixedPlatform, ReadsNoOtherTextAsADate) {
  for (const wchar_t* text : {L"", L"16MAR07", L"2007-03", L"2007-02-30", L"2007-13-01"}) {
    EXPECT_EQ(FixedPlatform().ReadShortDate(text), std::nullopt) << text;
  }
}

TEST(FixedPlatform, TellsItsDecimalSeparatorWithTheClosingNUL) {
  char buffer[2] = {'x', 'x'};
  EXPECT_EQ(FixedPlatform().LocaleInfo(0, kDecimalSeparator, {}), 2);
  EXPECT_EQ(FixedPlatform().LocaleInfo(0, kDecimalSeparator, buffer), 2);
  EXPECT_STREQ(buffer, ",");
}

TEST(FixedPlatform, LeavesABufferAloneThatIsTooShort) {
  char buffer[1] = {'x'};
  EXPECT_EQ(FixedPlatform().LocaleInfo(0, kDecimalSeparator, buffer), 0);
  EXPECT_EQ(buffer[0], 'x');
}

TEST(FixedPlatform, TellsNothingElseOfTheLocale) {
  EXPECT_EQ(FixedPlatform().LocaleInfo(0, kDecimalSeparator + 1, {}), 0);
}

}  // namespace
}  // namespace platform
