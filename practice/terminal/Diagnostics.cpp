#include "practice/terminal/Diagnostics.h"

// clang-format off
#include <windows.h>
#include <shlobj.h>
// clang-format on

#include <memory>
#include <optional>
#include <type_traits>
#include <vector>

#include "common/Text.h"
#include "practice/terminal/Bookings.h"
#include "practice/terminal/MaskedSettings.h"
#include "practice/terminal/TextFile.h"
#include "practice/terminal/TypeLibrary.h"
#include "version.h"

namespace practice::terminal {
namespace {

constexpr wchar_t kNewLine[] = L"\r\n";
constexpr int kJournalLines = 40;

std::wstring OwnFolder() {
  const std::wstring program = ProgramPath();
  return program.substr(0, program.find_last_of(L'\\') + 1);
}

// "1.2.3" of the version that a program bears; nothing when there is no such program.
std::optional<std::wstring> VersionOf(const std::wstring& path) {
  DWORD unused = 0;
  const DWORD size = GetFileVersionInfoSizeW(path.c_str(), &unused);
  std::vector<std::byte> block(size);
  void* found = nullptr;
  UINT length = 0;
  if (size == 0 || !GetFileVersionInfoW(path.c_str(), 0, size, block.data()) ||
      !VerQueryValueW(block.data(), L"\\", &found, &length)) {
    return std::nullopt;
  }
  const auto* version = static_cast<const VS_FIXEDFILEINFO*>(found);
  return std::to_wstring(HIWORD(version->dwFileVersionMS)) + L"." +
         std::to_wstring(LOWORD(version->dwFileVersionMS)) + L"." +
         std::to_wstring(HIWORD(version->dwFileVersionLS));
}

std::wstring Programs() {
  const std::wstring product = OwnFolder() + L"PTA_QX.exe";
  const auto version = VersionOf(product);
  return L"Practice terminal " PTA_VERSION_WIDE_TEXT L", " + std::to_wstring(8 * sizeof(void*)) +
         L" bit: " + ProgramPath() + kNewLine +
         (version ? L"PTA " + *version + L": " + product : L"No PTA_QX.exe beside it") + kNewLine;
}

// Only this call tells the real version to a program that does not name it in its manifest.
std::wstring System() {
  using Ask = LONG(WINAPI*)(OSVERSIONINFOW*);
  OSVERSIONINFOW version = {};
  version.dwOSVersionInfoSize = sizeof(version);
  const HMODULE system = GetModuleHandleW(L"ntdll.dll");
  // The detour keeps the compiler from taking one function type for another.
  const auto ask =
      reinterpret_cast<Ask>(reinterpret_cast<void*>(GetProcAddress(system, "RtlGetVersion")));
  if (ask != nullptr) ask(&version);
  return L"Windows " + std::to_wstring(version.dwMajorVersion) + L"." +
         std::to_wstring(version.dwMinorVersion) + L"." + std::to_wstring(version.dwBuildNumber) +
         kNewLine;
}

std::wstring PracticeBookings() {
  return L"Practice bookings: " + std::to_wstring(Bookings().Names().size()) + kNewLine;
}

std::wstring Settings() {
  const std::wstring path = OwnFolder() + L"PTA_QX.ini";
  const auto text = ReadSettingsText(path);
  if (!text) return L"No settings: " + path + kNewLine;
  return L"Settings, values masked: " + path + kNewLine + MaskedSettings(*text) + kNewLine;
}

std::wstring JournalFolder() {
  PWSTR found = nullptr;
  const HRESULT result = SHGetKnownFolderPath(FOLDERID_LocalAppData, 0, nullptr, &found);
  const std::wstring folder = SUCCEEDED(result) ? found : L"";
  CoTaskMemFree(found);
  return folder + L"\\PTA_QX\\journal\\";
}

struct SearchCloser {
  using pointer = HANDLE;
  void operator()(HANDLE search) const { FindClose(search); }
};

// "" when there is none.
std::wstring NewestFileIn(const std::wstring& folder) {
  WIN32_FIND_DATAW found = {};
  const HANDLE first = FindFirstFileW((folder + L"*.txt").c_str(), &found);
  if (first == INVALID_HANDLE_VALUE) return {};
  const std::unique_ptr<HANDLE, SearchCloser> search(first);
  std::wstring newest;
  FILETIME written = {};
  do {
    if (CompareFileTime(&found.ftLastWriteTime, &written) <= 0) continue;
    written = found.ftLastWriteTime;
    newest = folder + found.cFileName;
  } while (FindNextFileW(search.get(), &found));
  return newest;
}

std::wstring LastLines(const std::wstring& text, int count) {
  std::size_t from = text.size();
  if (from > 0 && text.back() == L'\n') --from;
  for (int line = 0; line < count; ++line) {
    from = from == 0 ? std::wstring::npos : text.rfind(L'\n', from - 1);
    if (from == std::wstring::npos) return text;
  }
  return text.substr(from + 1);
}

std::wstring Journal() {
  const std::wstring folder = JournalFolder();
  const std::wstring path = NewestFileIn(folder);
  const auto text = ReadFileText(path);
  if (!text) return L"No journal in " + folder + kNewLine;
  return L"Journal, its last lines: " + path + kNewLine + LastLines(*text, kJournalLines) +
         kNewLine;
}

}  // namespace

std::wstring DiagnosticsText() {
  return Programs() + System() + PracticeBookings() + kNewLine + Settings() + kNewLine + Journal();
}

}  // namespace practice::terminal
