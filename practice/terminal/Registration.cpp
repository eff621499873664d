#include "practice/terminal/Registration.h"

#include <algorithm>
#include <array>

#include "hostlib/com/Owners.h"
#include "practice/terminal/ComObject.h"

// The headers of the compiler lack these two.
extern "C" {
HRESULT WINAPI RegisterTypeLibForUser(ITypeLib* library, OLECHAR* path, OLECHAR* helpFolder);
HRESULT WINAPI UnRegisterTypeLibForUser(REFGUID id, WORD major, WORD minor, LCID locale,
                                        SYSKIND system);
}

namespace practice::terminal {
namespace {

constexpr wchar_t kClasses[] = L"Software\\Classes\\";
constexpr SYSKIND kSystem = sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32;

std::wstring IdText(REFGUID id) {
  std::array<wchar_t, 40> text = {};
  StringFromGUID2(id, text.data(), static_cast<int>(text.size()));
  return text.data();
}

std::wstring ProgId(const LibraryClass& kind) { return L"Vantel." + std::wstring(kind.name); }

bool Write(HKEY root, const std::wstring& key, const std::wstring& text) {
  const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
  return RegSetKeyValueW(root, (kClasses + key).c_str(), nullptr, REG_SZ, text.c_str(), bytes) ==
         ERROR_SUCCESS;
}

std::wstring Read(HKEY root, const std::wstring& key) {
  std::wstring text(1024, L'\0');
  auto bytes = static_cast<DWORD>(text.size() * sizeof(wchar_t));
  if (RegGetValueW(root, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, text.data(), &bytes) !=
      ERROR_SUCCESS) {
    return {};
  }
  text.resize(bytes / sizeof(wchar_t) - 1);
  return text;
}

/// The name is that of our class there, and of no other library's.
bool IsOurs(HKEY root, const LibraryClass& kind) {
  return Read(root, kClasses + ProgId(kind) + L"\\CLSID") == IdText(kind.id);
}

/// One of the names is there, and leads to another library.
bool HasAnothersNames(HKEY root) {
  const auto kinds = LibraryClasses();
  return std::any_of(kinds.begin(), kinds.end(), [root](const LibraryClass& kind) {
    const std::wstring id = Read(root, kClasses + ProgId(kind) + L"\\CLSID");
    return !id.empty() && id != IdText(kind.id);
  });
}

bool IsThere(const std::wstring& path) {
  return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

}  // namespace

bool Registration::WriteClasses(HKEY root) const {
  bool written = true;
  const std::wstring library = IdText(types_.Id());
  for (const LibraryClass& kind : LibraryClasses()) {
    if (kind.use == ClassUse::kNonCreatable) continue;
    const std::wstring id = L"CLSID\\" + IdText(kind.id);
    const std::wstring title = L"Vantel practice " + std::wstring(kind.name);
    written = written && Write(root, ProgId(kind), title) &&
              Write(root, ProgId(kind) + L"\\CLSID", IdText(kind.id)) && Write(root, id, title) &&
              Write(root, id + L"\\LocalServer32", CommandLine()) &&
              Write(root, id + L"\\ProgID", ProgId(kind)) &&
              Write(root, id + L"\\TypeLib", library);
  }
  return written;
}

bool Registration::IsFound() const {
  for (const LibraryClass& kind : LibraryClasses()) {
    if (kind.use == ClassUse::kNonCreatable) continue;
    CLSID found = {};
    const bool leadsHere =
        SUCCEEDED(CLSIDFromProgID(ProgId(kind).c_str(), &found)) && found == kind.id &&
        Read(HKEY_CLASSES_ROOT, L"CLSID\\" + IdText(kind.id) + L"\\LocalServer32") == CommandLine();
    if (!leadsHere) return false;
  }
  return true;
}

std::wstring Registration::CommandLine() const { return L"\"" + program_ + L"\""; }

bool Registration::Register() const {
  std::wstring path = program_;
  if (!HasAnothersNames(HKEY_CURRENT_USER)) WriteClasses(HKEY_CURRENT_USER);
  RegisterTypeLibForUser(&types_.library(), path.data(), nullptr);
  if (IsFound()) return true;
  if (HasAnothersNames(HKEY_LOCAL_MACHINE)) return false;
  WriteClasses(HKEY_LOCAL_MACHINE);
  return SUCCEEDED(RegisterTypeLib(&types_.library(), path.data(), nullptr)) && IsFound();
}

bool Registration::IsAnothers(const std::wstring& program) const {
  return !program.empty() && lstrcmpiW(program.c_str(), program_.c_str()) != 0 && IsThere(program);
}

bool Registration::IsTypeLibraryAnothers() const {
  hostlib::com::Bstr path;
  const bool isRegistered =
      SUCCEEDED(QueryPathOfRegTypeLib(types_.Id(), 1, 0, LOCALE_NEUTRAL, path.Out()));
  // The length that the system gives may be that of the room.
  return isRegistered && path.get() != nullptr && IsAnothers(path.get());
}

void Registration::Unregister() const {
  const bool keepsTypeLibrary = IsTypeLibraryAnothers();
  for (const HKEY root : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE}) {
    for (const LibraryClass& kind : LibraryClasses()) {
      const std::wstring server = kClasses + (L"CLSID\\" + IdText(kind.id)) + L"\\LocalServer32";
      std::wstring program = Read(root, server);
      std::erase(program, L'"');
      if (IsAnothers(program)) continue;
      if (IsOurs(root, kind)) RegDeleteTreeW(root, (kClasses + ProgId(kind)).c_str());
      RegDeleteTreeW(root, (kClasses + (L"CLSID\\" + IdText(kind.id))).c_str());
    }
  }
  if (keepsTypeLibrary) return;
  UnRegisterTypeLibForUser(types_.Id(), 1, 0, LOCALE_NEUTRAL, kSystem);
  UnRegisterTypeLib(types_.Id(), 1, 0, LOCALE_NEUTRAL, kSystem);
}

}  // namespace practice::terminal
