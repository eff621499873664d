#include "tests/tst/Way.h"

#include <optional>

namespace tst {
namespace {

const std::wstring kSet = L"ParameterBag.1.7 SetValue(\"";
const std::wstring kGet = L"ParameterBag.1.8 GetValue(\"";
const std::wstring kArrow = L" -> ";

std::wstring After(const std::wstring& line, const std::wstring& mark) {
  const std::size_t at = line.find(mark);
  return at == line.npos ? L"Empty" : line.substr(at + mark.size());
}

std::wstring Put(const std::wstring& line) {
  const std::size_t keyEnd = line.find(L'"', kSet.size());
  const std::wstring value = line.substr(keyEnd + 3, line.size() - keyEnd - 4);
  return line.substr(kSet.size(), keyEnd - kSet.size()) + L"=" + value;
}

std::optional<std::wstring> Converted(const std::wstring& line, const std::wstring& value,
                                      const std::wstring& call, const std::wstring& kind) {
  const std::wstring start = L"ScriptGlobal.1." + call + L"(" + value + L")" + kArrow;
  if (!line.starts_with(start)) return std::nullopt;
  return kind + line.substr(start.size());
}

}  // namespace

Lines Way(const Lines& calls) {
  Lines way;
  for (std::size_t i = 0; i < calls.size(); ++i) {
    const std::wstring& line = calls[i];
    if (line.starts_with(kSet)) {
      way.push_back(Put(line));
      continue;
    }
    if (!line.starts_with(kGet)) {
      way.push_back(line);
      continue;
    }
    const std::wstring value = After(line, kArrow);
    std::wstring read =
        L"<-" + line.substr(kGet.size(), line.find(L'"', kGet.size()) - kGet.size()) + L" ";
    const std::wstring next = i + 1 < calls.size() ? calls[i + 1] : std::wstring();
    auto converted = Converted(next, value, L"13 ToText", L"text ");
    if (!converted) converted = Converted(next, value, L"16 ToBoolean", L"flag ");
    if (converted) ++i;
    way.push_back(read + converted.value_or(value));
  }
  return way;
}

}  // namespace tst
