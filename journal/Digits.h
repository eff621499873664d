#pragma once

#include <chrono>
#include <string>

#include "common/Numbers.h"

namespace journal {

/// A 32-bit number with zeros in front, up to this width.
inline std::wstring Digits(long long number, std::size_t width) {
  const std::wstring digits = common::NumberText(static_cast<std::int32_t>(number));
  return digits.size() < width ? std::wstring(width - digits.size(), L'0') + digits : digits;
}

/// 2007-02-20.
inline std::wstring DayText(std::chrono::year_month_day day) {
  return Digits(static_cast<int>(day.year()), 4) + L"-" +
         Digits(static_cast<unsigned>(day.month()), 2) + L"-" +
         Digits(static_cast<unsigned>(day.day()), 2);
}

}  // namespace journal
