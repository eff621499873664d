#include "hostlib/com/RegisteredText.h"

#include <objbase.h>

#include <iterator>

namespace hostlib::com {

RegistryKey RegisteredKey(const std::wstring& path, REGSAM view) {
  HKEY opened = nullptr;
  const LSTATUS status =
      RegOpenKeyExW(HKEY_CLASSES_ROOT, path.c_str(), 0, KEY_READ | view, &opened);
  return RegistryKey(status == ERROR_SUCCESS ? opened : nullptr);
}

std::wstring RegisteredText(const std::wstring& path, REGSAM view) {
  const RegistryKey key = RegisteredKey(path, view);
  if (key == nullptr) return {};
  wchar_t text[1024];
  DWORD size = sizeof(text);
  const bool isRead = RegGetValueW(key.get(), nullptr, nullptr, RRF_RT_REG_SZ, nullptr, text,
                                   &size) == ERROR_SUCCESS;
  return isRead ? text : L"";
}

std::wstring IdText(REFGUID id) {
  wchar_t text[64];
  return StringFromGUID2(id, text, static_cast<int>(std::size(text))) == 0 ? L"" : text;
}

}  // namespace hostlib::com
