#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "common/Text.h"

// What every fuzz target is made of.
namespace fuzz {

/// The bytes as text: as it would come from a file.
inline std::wstring TextOf(const std::uint8_t* data, std::size_t size) {
  return common::FromUtf8({reinterpret_cast<const char*>(data), size});
}

inline std::vector<std::wstring> LinesOf(std::wstring_view text) {
  std::vector<std::wstring> lines(1);
  for (const wchar_t character : text) {
    if (character == L'\n') {
      lines.emplace_back();
    } else {
      lines.back() += character;
    }
  }
  return lines;
}

/// The line, or "" when there are fewer.
inline std::wstring Line(const std::vector<std::wstring>& lines, std::size_t index) {
  return index < lines.size() ? lines[index] : std::wstring();
}

/// A promise that does not hold is a finding, as a crash is.
inline void Require(bool holds, const char* promise) {
  if (holds) return;
  std::fprintf(stderr, "broken: %s\n", promise);
  std::abort();
}

}  // namespace fuzz
