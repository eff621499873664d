#include "platform/win32/ProfileValue.h"

#include <windows.h>

namespace platform {

std::wstring ReadProfileValue(const std::wstring& path, const std::wstring& section,
                              const std::wstring& key) {
  // An empty name would ask for the list of all names.
  if (section.empty() || key.empty()) return {};
  std::wstring value(256, L'\0');
  for (;;) {
    const auto size = static_cast<DWORD>(value.size());
    const DWORD length = GetPrivateProfileStringW(section.c_str(), key.c_str(), L"", value.data(),
                                                  size, path.c_str());
    if (length < size - 1) {
      value.resize(length);
      return value;
    }
    value.resize(value.size() * 2);
  }
}

}  // namespace platform
