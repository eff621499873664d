#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace platform {

/// LOCALE_SDECIMAL.
inline constexpr int kDecimalSeparator = 14;

/// What the program asks of the machine and of the user's settings.
class Platform {
 public:
  virtual ~Platform() = default;

  /// The folder the program was started from; may or may not end in a backslash.
  virtual std::wstring ProgramFolder() const = 0;
  virtual bool FileExists(std::wstring_view path) const = 0;
  /// A value of an INI file, as the system's profile functions read it; "" when it is not there.
  virtual std::wstring IniValue(const std::wstring& path, const std::wstring& section,
                                const std::wstring& key) const = 0;

  virtual std::chrono::year_month_day Today() const = 0;
  /// A date in the user's short form, and such a text read back (nothing when it is no date).
  virtual std::wstring ShortDateText(std::chrono::year_month_day date) const = 0;
  virtual std::optional<std::chrono::year_month_day> ReadShortDate(
      std::wstring_view text) const = 0;

  /// The user's default locale, for LocaleInfo.
  virtual std::uint32_t UserDefaultLocale() const = 0;
  /// Writes a piece of the locale into the buffer, its NUL included, and gives the number of
  /// characters with the NUL; with an empty buffer only the number. 0 is a failure.
  virtual int LocaleInfo(std::uint32_t locale, int type, std::span<char> buffer) const = 0;
};

}  // namespace platform
