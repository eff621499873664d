#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <type_traits>

namespace hostlib::com {

struct CloseKeyLater {
  void operator()(HKEY key) const { RegCloseKey(key); }
};
using RegistryKey = std::unique_ptr<std::remove_pointer_t<HKEY>, CloseKeyLater>;

/// A key below HKEY_CLASSES_ROOT, as programs of one width see it (KEY_WOW64_64KEY or
/// KEY_WOW64_32KEY); null when it is not there.
RegistryKey RegisteredKey(const std::wstring& path, REGSAM view);
/// Its unnamed text; "" when there is none.
std::wstring RegisteredText(const std::wstring& path, REGSAM view);

/// An id as it is registered.
std::wstring IdText(REFGUID id);

}  // namespace hostlib::com
