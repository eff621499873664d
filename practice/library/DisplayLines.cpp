#include "practice/library/DisplayLines.h"

#include "practice/host/Syntax.h"

namespace practice::display_lines {
namespace {

constexpr std::size_t kLongestMessage = 80;

std::vector<std::wstring> LinesOf(std::wstring_view answer) {
  std::vector<std::wstring> lines = syntax::Split(answer, L'\n');
  for (std::wstring& line : lines) {
    if (line.ends_with(L'\r')) line.pop_back();
  }
  return lines;
}

}  // namespace

std::optional<std::vector<std::wstring>> DisplayIn(std::wstring_view answer,
                                                   std::wstring_view start, std::wstring_view end) {
  if (!answer.starts_with(start)) return std::nullopt;
  std::vector<std::wstring> lines = LinesOf(answer);
  for (std::size_t i = 1; i < lines.size(); ++i) {
    if (lines[i] != end) continue;
    lines.resize(i);
    return lines;
  }
  return std::nullopt;
}

std::wstring FirstLine(std::wstring_view answer) {
  return LinesOf(answer.substr(0, answer.find(L'\n'))).front().substr(0, kLongestMessage);
}

std::wstring FirstWord(std::wstring_view text) {
  return std::wstring(text.substr(0, text.find(L' ')));
}

std::wstring ValueOf(const std::vector<std::wstring>& lines, std::wstring_view label) {
  const std::vector<std::wstring> values = ValuesOf(lines, label);
  return values.empty() ? std::wstring() : values.front();
}

std::vector<std::wstring> ValuesOf(const std::vector<std::wstring>& lines,
                                   std::wstring_view label) {
  std::vector<std::wstring> values;
  const std::wstring start = std::wstring(label) + L" ";
  for (const std::wstring& line : lines) {
    if (line.starts_with(start)) values.push_back(line.substr(start.size()));
  }
  return values;
}

bool HasLine(const std::vector<std::wstring>& lines, std::wstring_view line) {
  for (const std::wstring& one : lines) {
    if (one == line) return true;
  }
  return false;
}

AssociationWords TakeAssociationWords(std::wstring& line) {
  AssociationWords association;
  const std::size_t open = line.find(L" [");
  const std::size_t close = line.find(L']');
  if (open == line.npos || close == line.npos || close < open) return association;
  for (const std::wstring& word :
       syntax::Words(std::wstring_view(line).substr(open + 2, close - open - 2))) {
    if (word == L"PAX" || word == L"INF") {
      association.type = word;
    } else if (word.starts_with(L"P")) {
      association.passengers = word.substr(1);
    } else if (word.starts_with(L"S")) {
      association.segments = word.substr(1);
    }
  }
  line.erase(open, close + 1 - open);
  return association;
}

}  // namespace practice::display_lines
