#include "app/win32/TextFile.h"

#include <array>

#include "common/Text.h"

namespace app {

FileHandle OpenFile(const std::wstring& path, const wchar_t* mode) {
  return FileHandle(_wfopen(path.c_str(), mode));
}

std::optional<std::wstring> ReadTextFile(const std::wstring& path) {
  const FileHandle file = OpenFile(path, L"rb");
  if (!file) return std::nullopt;
  std::string bytes;
  std::array<char, 4096> piece;
  while (const std::size_t length = std::fread(piece.data(), 1, piece.size(), file.get())) {
    bytes.append(piece.data(), length);
  }
  return common::FromUtf8(bytes);
}

}  // namespace app
