#pragma once

#include <algorithm>
#include <cstdio>
#include <map>
#include <set>

#include "platform/Platform.h"

namespace platform {

/// A machine that never changes by itself. Short dates are YYYY-MM-DD.
class FixedPlatform : public Platform {
 public:
  std::wstring folder = L"C:\\PTA";
  std::set<std::wstring, std::less<>> files;
  /// By section and key; whatever the file.
  std::map<std::pair<std::wstring, std::wstring>, std::wstring> iniValues;
  std::chrono::year_month_day today{std::chrono::year(2007), std::chrono::month(2),
                                    std::chrono::day(20)};
  std::string decimal = ",";

  std::wstring ProgramFolder() const override { return folder; }
  bool FileExists(std::wstring_view path) const override { return files.contains(path); }
  std::wstring IniValue(const std::wstring&, const std::wstring& section,
                        const std::wstring& key) const override {
    const auto found = iniValues.find({section, key});
    return found == iniValues.end() ? std::wstring() : found->second;
  }
  std::chrono::year_month_day Today() const override { return today; }

  std::wstring ShortDateText(std::chrono::year_month_day date) const override {
    std::wstring text = L"YYYY-MM-DD";
    const auto write = [&](std::size_t at, std::size_t digits, unsigned number) {
      for (std::size_t i = at + digits; i > at; number /= 10) {
        text[--i] = static_cast<wchar_t>(L'0' + number % 10);
      }
    };
    write(0, 4, static_cast<unsigned>(static_cast<int>(date.year())));
    write(5, 2, static_cast<unsigned>(date.month()));
    write(8, 2, static_cast<unsigned>(date.day()));
    return text;
  }
  std::optional<std::chrono::year_month_day> ReadShortDate(std::wstring_view text) const override {
    int year = 0;
    unsigned month = 0;
    unsigned day = 0;
    if (std::swscanf(std::wstring(text).c_str(), L"%4d-%2u-%2u", &year, &month, &day) != 3) {
      return std::nullopt;
    }
    const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(month),
                                           std::chrono::day(day)};
    if (!date.ok()) return std::nullopt;
    return date;
  }

  std::uint32_t UserDefaultLocale() const override { return 0x041D; }
  int LocaleInfo(std::uint32_t, int type, std::span<char> buffer) const override {
    if (type != kDecimalSeparator) return 0;
    const std::size_t length = decimal.size() + 1;
    if (buffer.empty()) return static_cast<int>(length);
    if (buffer.size() < length) return 0;
    std::copy_n(decimal.c_str(), length, buffer.data());
    return static_cast<int>(length);
  }
};

}  // namespace platform
