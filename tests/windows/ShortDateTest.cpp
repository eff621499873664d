#include <gtest/gtest.h>

#include "platform/win32/ShortDate.h"

namespace platform {

namespace {

using std::chrono::day;
using std::chrono::month;
using std::chrono::year;
using std::chrono::year_month_day;

constexpr year_month_day kDate{year(2007), month(2), day(20)};

ShortDateForm Form(std::wstring pattern) {
  ShortDateForm form;
  form.pattern = std::move(pattern);
  form.lastShortYear = 2049;
  form.shortMonths = {L"jan", L"feb", L"mar", L"apr", L"maj", L"jun",
                      L"jul", L"aug", L"sep", L"okt", L"nov", L"dec"};
  form.months[1] = L"februari";
  return form;
}

TEST(ShortDate, IsReadInTheOrderOfItsForm) {
  EXPECT_EQ(ReadShortDate(L"2007-02-20", Form(L"yyyy-MM-dd")), kDate);
  EXPECT_EQ(ReadShortDate(L"20/02/2007", Form(L"dd/MM/yyyy")), kDate);
  EXPECT_EQ(ReadShortDate(L"2/20/2007", Form(L"M/d/yyyy")), kDate);
}

TEST(ShortDate, TakesAYearOfTwoOrFourDigitsWhateverTheFormSays) {
  EXPECT_EQ(ReadShortDate(L"20.02.07", Form(L"dd.MM.yyyy")), kDate);
  EXPECT_EQ(ReadShortDate(L"20.02.2007", Form(L"dd.MM.yy")), kDate);
}

TEST(ShortDate, TakesAShortYearFromTheHundredYearsThatEndWithTheUsersLastOne) {
  EXPECT_EQ(ReadShortDate(L"01.01.49", Form(L"dd.MM.yy")),
            (year_month_day{year(2049), month(1), day(1)}));
  EXPECT_EQ(ReadShortDate(L"01.01.50", Form(L"dd.MM.yy")),
            (year_month_day{year(1950), month(1), day(1)}));
}

TEST(ShortDate, TakesNamesOfMonthsAndWordsOfTheForm) {
  EXPECT_EQ(ReadShortDate(L"20-feb-07", Form(L"dd-MMM-yy")), kDate);
  EXPECT_EQ(ReadShortDate(L"20 februari 2007", Form(L"d MMMM yyyy")), kDate);
  EXPECT_EQ(ReadShortDate(L"20.2.2007 d.", Form(L"d.M.yyyy 'd.'")), kDate);
}

TEST(ShortDate, IsNothingWhenTheTextIsNoSuchDate) {
  for (const wchar_t* text : {L"", L"2007", L"2007-02", L"2007-13-01", L"2007-02-30",
                              L"2007-02-20 x", L"abc", L"207-02-20", L"2007-02-201"}) {
    EXPECT_EQ(ReadShortDate(text, Form(L"yyyy-MM-dd")), std::nullopt);
  }
}

}  // namespace

}  // namespace platform
