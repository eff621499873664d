#include "practice/library/win32/WindowsProfiles.h"

#include <windows.h>

#include <filesystem>

#include "platform/win32/ProfileValue.h"

namespace practice {
namespace {

std::wstring FromAnsi(std::string_view bytes) {
  const int length = static_cast<int>(bytes.size());
  const int needed = ::MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, nullptr, 0);
  std::wstring text(static_cast<std::size_t>(needed), L'\0');
  ::MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, text.data(), needed);
  return text;
}

std::optional<std::string> ToAnsi(std::wstring_view text) {
  const int length = static_cast<int>(text.size());
  const int needed =
      ::WideCharToMultiByte(CP_ACP, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
  std::string bytes(static_cast<std::size_t>(needed), '\0');
  ::WideCharToMultiByte(CP_ACP, 0, text.data(), length, bytes.data(), needed, nullptr, nullptr);
  // A letter that the code page does not have came out as a similar one, or as a question mark.
  if (FromAnsi(bytes) != text) return std::nullopt;
  return bytes;
}

// The profile functions look for a relative path in the Windows folder.
std::wstring Absolute(std::wstring_view path) {
  std::error_code error;
  const std::filesystem::path absolute =
      std::filesystem::absolute(std::filesystem::path(path), error);
  return error ? std::wstring(path) : absolute.wstring();
}

}  // namespace

WindowsProfiles::WindowsProfiles() : writer_({FromAnsi, ToAnsi}) {}

std::wstring WindowsProfiles::Read(std::wstring_view path, std::wstring_view section,
                                   std::wstring_view key) {
  return platform::ReadProfileValue(Absolute(path), std::wstring(section), std::wstring(key));
}

bool WindowsProfiles::Write(std::wstring_view path, std::wstring_view section,
                            std::wstring_view key, std::wstring_view value) {
  const std::wstring file = Absolute(path);
  const bool written = writer_.Write(file, section, key, value);
  // The system may have kept what it read of the old file.
  ::WritePrivateProfileStringW(nullptr, nullptr, nullptr, file.c_str());
  return written;
}

}  // namespace practice
