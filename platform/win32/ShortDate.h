#pragma once

#include <array>
#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// How a user writes a short date.
struct ShortDateForm {
  std::wstring pattern;      ///< Windows' date picture, such as "yyyy-MM-dd" or "d-MMM-yy"
  int lastShortYear = 2049;  ///< what the two-digit years reach up to
  std::array<std::wstring, 12> months;       ///< names, for "MMMM"
  std::array<std::wstring, 12> shortMonths;  ///< names, for "MMM"
};

/// Reads a date that is written in this form, with any separators; a year may have two or four
/// digits whatever the form says. Nothing when the text is no such date.
std::optional<std::chrono::year_month_day> ReadShortDate(std::wstring_view text,
                                                         const ShortDateForm& form);

}  // namespace platform
