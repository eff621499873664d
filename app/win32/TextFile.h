#pragma once

#include <cstdio>
#include <memory>
#include <optional>
#include <string>

namespace app {

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using FileHandle = std::unique_ptr<std::FILE, FileCloser>;

/// Null when it cannot be opened.
FileHandle OpenFile(const std::wstring& path, const wchar_t* mode);
/// The whole of a UTF-8 file; nothing when there is none.
std::optional<std::wstring> ReadTextFile(const std::wstring& path);

}  // namespace app
