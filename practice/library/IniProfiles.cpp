#include "practice/library/IniProfiles.h"

#include <cstdio>
#include <filesystem>
#include <memory>

#include "common/Text.h"
#include "practice/library/IniText.h"

namespace practice {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kUtf16Mark = "\xFF\xFE";
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

// The program writes its paths with backslashes, wherever it runs.
fs::path PathOf(std::wstring_view path) {
#ifdef _WIN32
  return fs::path(path);
#else
  return fs::path(common::ToUtf8(common::Replace(path, L"\\", L"/")));
#endif
}

enum class Mode { kRead, kWrite };

std::FILE* Open(const fs::path& path, Mode mode) {
#ifdef _WIN32
  return ::_wfopen(path.c_str(), mode == Mode::kRead ? L"rb" : L"wb");
#else
  return std::fopen(path.c_str(), mode == Mode::kRead ? "rb" : "wb");
#endif
}

struct Closer {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, Closer>;

std::optional<std::string> BytesOf(const fs::path& path) {
  const File file(Open(path, Mode::kRead));
  if (file == nullptr) return std::nullopt;
  std::string bytes;
  char buffer[4096];
  while (const std::size_t count = std::fread(buffer, 1, sizeof buffer, file.get())) {
    bytes.append(buffer, count);
  }
  if (std::ferror(file.get()) != 0) return std::nullopt;
  return bytes;
}

bool Store(const fs::path& path, std::string_view bytes) {
  const File file(Open(path, Mode::kWrite));
  return file != nullptr &&
         std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size() &&
         std::fflush(file.get()) == 0;
}

bool PutInPlace(const fs::path& path, std::string_view bytes, const fs::file_status& before) {
  fs::path beside = path;
  beside += ".new";
  std::error_code error;
  if (Store(beside, bytes)) {
    if (fs::exists(before)) fs::permissions(beside, before.permissions(), error);
    fs::rename(beside, path, error);
    if (!error) return true;
  }
  fs::remove(beside, error);
  return false;
}

// Not left to the system, which lets an administrator write into it all the same.
bool IsReadOnly(const fs::file_status& status) {
  return fs::exists(status) && (status.permissions() & fs::perms::owner_write) == fs::perms::none;
}

std::wstring FromUtf16(std::string_view bytes) {
  std::wstring text;
  for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
    const auto low = static_cast<unsigned char>(bytes[at]);
    const auto high = static_cast<unsigned char>(bytes[at + 1]);
    text += static_cast<wchar_t>(low | (high << 8));
  }
  return text;
}

std::optional<std::string> ToUtf16(std::wstring_view text) {
  std::string bytes;
  const auto add = [&bytes](char32_t unit) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
  };
  for (const wchar_t character : text) {
    const auto code = static_cast<char32_t>(character);
    if (code < 0x10000) {
      add(code);
    } else {
      add(0xD800 + ((code - 0x10000) >> 10));
      add(0xDC00 + ((code - 0x10000) & 0x3FF));
    }
  }
  return bytes;
}

std::wstring FromLatin1(std::string_view bytes) {
  std::wstring text;
  for (const char byte : bytes) text += static_cast<wchar_t>(static_cast<unsigned char>(byte));
  return text;
}

std::optional<std::string> ToLatin1(std::wstring_view text) {
  std::string bytes;
  for (const wchar_t character : text) {
    if (static_cast<char32_t>(character) > 0xFF) return std::nullopt;
    bytes += static_cast<char>(character);
  }
  return bytes;
}

bool HasOuterBlanks(std::wstring_view text) {
  constexpr std::wstring_view kBlanks = L" \t";
  return !text.empty() &&
         (kBlanks.find(text.front()) != kBlanks.npos || kBlanks.find(text.back()) != kBlanks.npos);
}

bool CanStandInAFile(std::wstring_view section, std::wstring_view key, std::wstring_view value) {
  constexpr std::wstring_view kBreaks(L"\r\n\0", 3);
  const auto isFree = [](std::wstring_view text, std::wstring_view of) {
    return text.find_first_of(of) == text.npos;
  };
  const auto isName = [&](std::wstring_view name, std::wstring_view marks) {
    return !name.empty() && !HasOuterBlanks(name) && isFree(name, kBreaks) && isFree(name, marks);
  };
  return isName(section, L"[]") && isName(key, L"=") && key.front() != L'[' &&
         key.front() != L';' && isFree(value, kBreaks);
}

}  // namespace

TextCode Utf8Code() {
  return {common::FromUtf8,
          [](std::wstring_view text) { return std::optional(common::ToUtf8(text)); }};
}

IniProfiles::Content IniProfiles::ContentOf(const std::string& bytes) const {
  if (bytes.starts_with(kUtf16Mark) && bytes.size() % 2 == 0) {
    return {
        std::string(kUtf16Mark), FromUtf16(bytes.substr(kUtf16Mark.size())), {FromUtf16, ToUtf16}};
  }
  const std::string_view mark = bytes.starts_with(kUtf8Mark) ? kUtf8Mark : std::string_view();
  const std::string rest = bytes.substr(mark.size());
  const std::wstring text = code_.decode(rest);
  if (code_.encode(text) == rest) return {std::string(mark), text, code_};
  return {std::string(mark), FromLatin1(rest), {FromLatin1, ToLatin1}};
}

std::wstring IniProfiles::Read(std::wstring_view path, std::wstring_view section,
                               std::wstring_view key) {
  const std::optional<std::string> bytes = BytesOf(PathOf(path));
  return bytes ? IniText(ContentOf(*bytes).text).Read(section, key) : std::wstring();
}

bool IniProfiles::Write(std::wstring_view path, std::wstring_view section, std::wstring_view key,
                        std::wstring_view value) {
  if (!CanStandInAFile(section, key, value)) return false;
  const fs::path file = PathOf(path);
  std::error_code error;
  const fs::file_status before = fs::status(file, error);
  const std::optional<std::string> bytes =
      fs::exists(before) ? BytesOf(file) : std::optional<std::string>("");
  if (!bytes || IsReadOnly(before)) return false;

  const Content content = ContentOf(*bytes);
  IniText ini(content.text);
  ini.Write(section, key, value);
  const std::optional<std::string> changed = content.code.encode(ini.text());
  return changed && PutInPlace(file, content.mark + *changed, before);
}

}  // namespace practice
