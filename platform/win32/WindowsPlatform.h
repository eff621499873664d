#pragma once

#include "platform/Platform.h"

namespace platform {

/// The machine and its user, as Windows tells of them.
class WindowsPlatform : public Platform {
 public:
  std::wstring ProgramFolder() const override;
  bool FileExists(std::wstring_view path) const override;
  std::wstring IniValue(const std::wstring& path, const std::wstring& section,
                        const std::wstring& key) const override;
  std::chrono::year_month_day Today() const override;
  std::wstring ShortDateText(std::chrono::year_month_day date) const override;
  std::optional<std::chrono::year_month_day> ReadShortDate(std::wstring_view text) const override;
  std::uint32_t UserDefaultLocale() const override;
  int LocaleInfo(std::uint32_t locale, int type, std::span<char> buffer) const override;
};

}  // namespace platform
