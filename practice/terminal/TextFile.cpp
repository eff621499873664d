#include "practice/terminal/TextFile.h"

#include <windows.h>

#include <array>
#include <cstdio>
#include <cstring>
#include <memory>

#include "common/Text.h"

namespace practice::terminal {
namespace {

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

std::wstring FromUserCodePage(const std::string& bytes) {
  const int length = static_cast<int>(bytes.size());
  std::wstring text(bytes.size(), L'\0');
  const int units = MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, text.data(), length);
  text.resize(static_cast<std::size_t>(units));
  return text;
}

}  // namespace

std::optional<std::string> ReadFileBytes(const std::wstring& path) {
  const std::unique_ptr<std::FILE, FileCloser> file(_wfopen(path.c_str(), L"rb"));
  if (!file) return std::nullopt;
  std::string bytes;
  std::array<char, 4096> piece;
  while (const std::size_t length = std::fread(piece.data(), 1, piece.size(), file.get())) {
    bytes.append(piece.data(), length);
  }
  return bytes;
}

std::optional<std::wstring> ReadFileText(const std::wstring& path) {
  const auto bytes = ReadFileBytes(path);
  if (!bytes) return std::nullopt;
  return common::FromUtf8(*bytes);
}

std::optional<std::wstring> ReadSettingsText(const std::wstring& path) {
  const auto bytes = ReadFileBytes(path);
  if (!bytes) return std::nullopt;
  if (!bytes->starts_with("\xFF\xFE")) return FromUserCodePage(*bytes);
  std::wstring text(bytes->size() / sizeof(wchar_t) - 1, L'\0');
  std::memcpy(text.data(), bytes->data() + sizeof(wchar_t), text.size() * sizeof(wchar_t));
  return text;
}

}  // namespace practice::terminal
