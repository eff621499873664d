#include "practice/library/win32/RegistryUserValues.h"

#include <windows.h>

#include "common/RunTimeError.h"

namespace practice {

std::wstring RegistryUserValues::PathOf(std::wstring_view application,
                                        std::wstring_view section) const {
  return root_ + L"\\" + std::wstring(application) + L"\\" + std::wstring(section);
}

std::wstring RegistryUserValues::Get(std::wstring_view application, std::wstring_view section,
                                     std::wstring_view key) {
  const std::wstring path = PathOf(application, section);
  const std::wstring name(key);
  std::wstring value(128, L'\0');
  for (;;) {
    auto bytes = static_cast<DWORD>(value.size() * sizeof(wchar_t));
    const LSTATUS status = ::RegGetValueW(HKEY_CURRENT_USER, path.c_str(), name.c_str(),
                                          RRF_RT_REG_SZ, nullptr, value.data(), &bytes);
    if (status == ERROR_MORE_DATA) {
      value.resize(value.size() * 2);
      continue;
    }
    if (status != ERROR_SUCCESS) return {};
    // The size counts the closing NUL.
    value.resize(bytes / sizeof(wchar_t));
    return value.substr(0, value.find(L'\0'));
  }
}

void RegistryUserValues::Save(std::wstring_view application, std::wstring_view section,
                              std::wstring_view key, std::wstring_view value) {
  const std::wstring text(value);
  const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
  const LSTATUS status = ::RegSetKeyValueW(HKEY_CURRENT_USER, PathOf(application, section).c_str(),
                                           std::wstring(key).c_str(), REG_SZ, text.c_str(), bytes);
  if (status != ERROR_SUCCESS) {
    throw common::RunTimeError(L"The registry refused the user's value, error " +
                               std::to_wstring(status));
  }
}

}  // namespace practice
