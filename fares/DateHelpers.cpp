#include "fares/DateHelpers.h"

#include <algorithm>
#include <array>

#include "common/Numbers.h"
#include "common/RunTimeError.h"
#include "common/Text.h"

namespace fares {
namespace {

using std::chrono::year_month_day;

constexpr std::array<std::wstring_view, 12> kMonths = {
    L"JAN", L"FEB", L"MAR", L"APR", L"MAY", L"JUN", L"JUL", L"AUG", L"SEP", L"OCT", L"NOV", L"DEC"};
constexpr int kCentury = 2000;

// From 1; 0 for what is no month.
unsigned MonthIn(std::wstring_view hostDate) {
  const std::wstring month = common::Mid(hostDate, 3, 3);
  const auto found = std::find(kMonths.begin(), kMonths.end(), month);
  return found == kMonths.end() ? 0 : static_cast<unsigned>(found - kMonths.begin()) + 1;
}

unsigned DigitsIn(std::wstring_view text) {
  const std::wstring digits = common::Trim(text);
  if (!std::all_of(digits.begin(), digits.end(), common::IsDigit)) {
    throw common::TypeMismatch(L"no part of a date: " + std::wstring(text));
  }
  return static_cast<unsigned>(common::ToInteger(digits));
}

year_month_day FullDate(std::wstring_view dayMonthYear, unsigned month) {
  const unsigned twoDigitYear = DigitsIn(common::Right(dayMonthYear, 2));
  const year_month_day date{std::chrono::year(kCentury + static_cast<int>(twoDigitYear)),
                            std::chrono::month(month),
                            std::chrono::day(DigitsIn(common::Left(dayMonthYear, 2)))};
  if (!date.ok()) throw common::TypeMismatch(L"no date: " + std::wstring(dayMonthYear));
  return date;
}

}  // namespace

DateHelpers::DateHelpers(hostlib::ScriptGlobal& global, const platform::Platform& platform,
                         errors::ErrorHandler& errors)
    : global_(global), platform_(platform), errors_(errors) {}

std::wstring DateHelpers::AddDay(std::wstring_view hostDate) {
  std::wstring nextDay;
  errors_.Run(errors::procedures::kAddDay, [&] {
    const unsigned month = MonthIn(hostDate);
    const year_month_day date = FullDate(global_.HostDateToText(hostDate), month);
    const year_month_day next = std::chrono::sys_days(date) + std::chrono::days(1);
    nextDay = global_.TextToHostDate(platform_.ShortDateText(next));
  });
  return nextDay;
}

}  // namespace fares
