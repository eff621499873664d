#include "practice/terminal/MaskedSettings.h"

#include <algorithm>
#include <cwctype>

#include "common/Text.h"

namespace practice::terminal {
namespace {

std::wstring MaskedValue(std::wstring_view value) {
  const std::wstring word = common::UpperCase(common::Trim(value));
  if (word == L"YES" || word == L"NO") return std::wstring(value);
  std::wstring masked(value);
  for (wchar_t& c : masked) {
    if (std::iswdigit(c) != 0) {
      c = L'9';
    } else if (std::iswalpha(c) != 0) {
      c = L'X';
    }
  }
  return masked;
}

// A comment may be a value that was put aside, and what is neither section nor key could be
// anything: both are masked whole.
std::wstring MaskedLine(std::wstring_view line) {
  const std::size_t first = line.find_first_not_of(L" \t");
  if (first == std::wstring_view::npos || line[first] == L'[') return std::wstring(line);
  const std::size_t equals = line.find(L'=');
  if (line[first] == L';' || equals == std::wstring_view::npos) return MaskedValue(line);
  return std::wstring(line.substr(0, equals + 1)) + MaskedValue(line.substr(equals + 1));
}

}  // namespace

std::wstring MaskedSettings(std::wstring_view text) {
  std::wstring masked;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of(L"\r\n"), text.size());
    const std::size_t next = std::min(text.find_first_not_of(L"\r\n", end), text.size());
    masked += MaskedLine(text.substr(0, end));
    masked += text.substr(end, next - end);
    text.remove_prefix(next);
  }
  return masked;
}

}  // namespace practice::terminal
