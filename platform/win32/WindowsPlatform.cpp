#include "platform/win32/WindowsPlatform.h"

#include <windows.h>

#include "platform/win32/ProfileValue.h"
#include "platform/win32/ShortDate.h"

namespace platform {

namespace {

std::wstring LocaleText(LCTYPE type) {
  wchar_t buffer[128] = {};
  const int size =
      GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, type, buffer, static_cast<int>(std::size(buffer)));
  return size > 0 ? std::wstring(buffer, static_cast<std::size_t>(size - 1)) : std::wstring();
}

ShortDateForm UserShortDateForm() {
  ShortDateForm form;
  form.pattern = LocaleText(LOCALE_SSHORTDATE);
  DWORD lastYear = 0;
  if (GetCalendarInfoEx(LOCALE_NAME_USER_DEFAULT, CAL_GREGORIAN, nullptr,
                        CAL_ITWODIGITYEARMAX | CAL_RETURN_NUMBER, nullptr, 0, &lastYear) > 0) {
    form.lastShortYear = static_cast<int>(lastYear);
  }
  for (unsigned i = 0; i < 12; ++i) {
    form.months[i] = LocaleText(LOCALE_SMONTHNAME1 + i);
    form.shortMonths[i] = LocaleText(LOCALE_SABBREVMONTHNAME1 + i);
  }
  return form;
}

}  // namespace

std::wstring WindowsPlatform::ProgramFolder() const {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      break;
    }
    path.resize(path.size() * 2);
  }
  return path.substr(0, path.find_last_of(L'\\'));
}

bool WindowsPlatform::FileExists(std::wstring_view path) const {
  const DWORD attributes = GetFileAttributesW(std::wstring(path).c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

std::wstring WindowsPlatform::IniValue(const std::wstring& path, const std::wstring& section,
                                       const std::wstring& key) const {
  return ReadProfileValue(path, section, key);
}

std::chrono::year_month_day WindowsPlatform::Today() const {
  SYSTEMTIME now = {};
  GetLocalTime(&now);
  return {std::chrono::year(now.wYear), std::chrono::month(now.wMonth), std::chrono::day(now.wDay)};
}

std::wstring WindowsPlatform::ShortDateText(std::chrono::year_month_day date) const {
  SYSTEMTIME time = {};
  time.wYear = static_cast<WORD>(static_cast<int>(date.year()));
  time.wMonth = static_cast<WORD>(static_cast<unsigned>(date.month()));
  time.wDay = static_cast<WORD>(static_cast<unsigned>(date.day()));
  wchar_t text[128] = {};
  const int size = GetDateFormatW(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &time, nullptr, text,
                                  static_cast<int>(std::size(text)));
  return size > 0 ? std::wstring(text, static_cast<std::size_t>(size - 1)) : std::wstring();
}

std::optional<std::chrono::year_month_day> WindowsPlatform::ReadShortDate(
    std::wstring_view text) const {
  return platform::ReadShortDate(text, UserShortDateForm());
}

std::uint32_t WindowsPlatform::UserDefaultLocale() const { return GetUserDefaultLCID(); }

int WindowsPlatform::LocaleInfo(std::uint32_t locale, int type, std::span<char> buffer) const {
  return GetLocaleInfoA(locale, static_cast<LCTYPE>(type), buffer.data(),
                        static_cast<int>(buffer.size()));
}

}  // namespace platform
