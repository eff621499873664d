#include "hostlib/com/RegisteredTypes.h"

#include <cwchar>
#include <optional>

#include "hostlib/com/RegisteredText.h"

namespace hostlib::com {
namespace {

struct Version {
  WORD major = 0;
  WORD minor = 0;
};

// A key's name: 1.a, in hexadecimal digits.
std::optional<Version> VersionIn(const wchar_t* name) {
  constexpr int kHexadecimal = 16;
  wchar_t* end = nullptr;
  const auto major = static_cast<WORD>(std::wcstoul(name, &end, kHexadecimal));
  if (end == name || *end != L'.') return std::nullopt;
  const wchar_t* const rest = end + 1;
  const auto minor = static_cast<WORD>(std::wcstoul(rest, &end, kHexadecimal));
  if (end == rest || *end != L'\0') return std::nullopt;
  return Version{major, minor};
}

std::optional<Version> OnlyVersion(const std::wstring& libraryId, REGSAM view) {
  const RegistryKey key = RegisteredKey(L"TypeLib\\" + libraryId, view);
  if (key == nullptr) return std::nullopt;
  wchar_t name[64];
  const auto read = [&](DWORD index) {
    auto length = static_cast<DWORD>(std::size(name));
    return RegEnumKeyExW(key.get(), index, name, &length, nullptr, nullptr, nullptr, nullptr);
  };
  if (read(1) != ERROR_NO_MORE_ITEMS || read(0) != ERROR_SUCCESS) return std::nullopt;
  return VersionIn(name);
}

TypeLibrary TypesSeen(const std::wstring& classId, REGSAM view) {
  const std::wstring libraryId = RegisteredText(L"CLSID\\" + classId + L"\\TypeLib", view);
  GUID id{};
  if (libraryId.empty() || FAILED(CLSIDFromString(libraryId.c_str(), &id))) return nullptr;
  const std::optional<Version> version = OnlyVersion(libraryId, view);
  TypeLibrary library;
  if (version) LoadRegTypeLib(id, version->major, version->minor, LOCALE_NEUTRAL, &library);
  return library;
}

}  // namespace

TypeLibrary RegisteredTypesOf(const CLSID& classId) {
  const std::wstring text = IdText(classId);
  // The terminal may be as wide as this program or not.
  for (const REGSAM view : {KEY_WOW64_64KEY, KEY_WOW64_32KEY}) {
    if (TypeLibrary library = TypesSeen(text, view)) return library;
  }
  return nullptr;
}

}  // namespace hostlib::com
