#include <gtest/gtest.h>
#include <windows.h>

#include "platform/win32/WindowsPlatform.h"

namespace platform {

namespace {

TEST(WindowsPlatform, ReadsBackEveryShortDateThatItWrites) {
  const WindowsPlatform machine;
  for (unsigned month = 1; month <= 12; ++month) {
    const std::chrono::year_month_day date{std::chrono::year(2007), std::chrono::month(month),
                                           std::chrono::day(2 * month + 7)};
    EXPECT_EQ(machine.ReadShortDate(machine.ShortDateText(date)), date);
  }
}

TEST(WindowsPlatform, TodayIsTheLocalDate) {
  SYSTEMTIME before = {};
  GetLocalTime(&before);
  const std::chrono::year_month_day today = WindowsPlatform().Today();
  SYSTEMTIME after = {};
  GetLocalTime(&after);
  EXPECT_TRUE(static_cast<unsigned>(today.day()) == before.wDay ||
              static_cast<unsigned>(today.day()) == after.wDay);
  EXPECT_EQ(static_cast<int>(today.year()), after.wYear);
}

TEST(WindowsPlatform, AFolderIsNoFile) {
  const WindowsPlatform machine;
  const std::wstring folder = machine.ProgramFolder();
  EXPECT_TRUE(machine.FileExists(folder + L"\\test_platform_win32.exe"));
  EXPECT_FALSE(machine.FileExists(folder));
  EXPECT_FALSE(machine.FileExists(folder + L"\\there is none.ini"));
}

TEST(WindowsPlatform, GivesTheDecimalSeparatorWithItsLength) {
  const WindowsPlatform machine;
  const std::uint32_t locale = machine.UserDefaultLocale();
  const int size = machine.LocaleInfo(locale, kDecimalSeparator, {});
  ASSERT_GE(size, 2);
  std::string text(static_cast<std::size_t>(size), '?');
  EXPECT_EQ(machine.LocaleInfo(locale, kDecimalSeparator, text), size);
  EXPECT_TRUE(text[0] == '.' || text[0] == ',') << text;
  EXPECT_EQ(text.back(), '\0');
}

}  // namespace

}  // namespace platform
