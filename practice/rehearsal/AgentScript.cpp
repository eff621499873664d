#include "practice/rehearsal/AgentScript.h"

#include <algorithm>
#include <map>

#include "common/Text.h"

namespace practice {
namespace {

struct WordCount {
  std::size_t least;
  std::size_t most;
};

// Every verb, and how many words follow it.
const std::map<std::wstring, WordCount>& Verbs() {
  static const std::map<std::wstring, WordCount> kVerbs = {
      {L"form", {1, 1}},  {L"box", {2, 4}},  {L"see", {2, 2}},   {L"state", {2, 2}},
      {L"focus", {1, 1}}, {L"type", {2, 2}}, {L"paste", {2, 2}}, {L"key", {2, 2}},
      {L"click", {1, 1}}, {L"pick", {2, 2}}, {L"tick", {1, 2}},  {L"close", {0, 0}}};
  return kVerbs;
}

[[noreturn]] void Fail(int number, std::wstring_view reason) {
  throw AgentScriptError(L"line " + std::to_wstring(number) + L": " + std::wstring(reason));
}

wchar_t Escaped(int number, wchar_t mark) {
  switch (mark) {
    case L'r':
      return L'\r';
    case L'n':
      return L'\n';
    case L'"':
    case L'\\':
      return mark;
    default:
      Fail(number, L"an escape that is not \\r, \\n, \\\" or \\\\");
  }
}

// `at` stands after the opening quote and is moved past the closing one.
std::wstring QuotedText(int number, std::wstring_view line, std::size_t& at) {
  std::wstring text;
  for (; at < line.size() && line[at] != L'"'; ++at) {
    if (line[at] == L'\\' && at + 1 < line.size()) {
      text += Escaped(number, line[++at]);
    } else {
      text += line[at];
    }
  }
  if (at == line.size()) Fail(number, L"a text without its closing quote");
  ++at;
  return text;
}

std::vector<std::wstring> Words(int number, std::wstring_view line) {
  std::vector<std::wstring> words;
  for (std::size_t at = 0; at < line.size();) {
    if (line[at] == L' ') {
      ++at;
    } else if (line[at] == L'"') {
      words.push_back(QuotedText(number, line, ++at));
    } else {
      const std::size_t end = std::min(line.find(L' ', at), line.size());
      words.emplace_back(line.substr(at, end - at));
      at = end;
    }
  }
  return words;
}

AgentLine ReadLine(int number, std::wstring_view line) {
  std::vector<std::wstring> words = Words(number, line);
  AgentLine read{number, words.front(), {words.begin() + 1, words.end()}};
  const auto verb = Verbs().find(read.verb);
  if (verb == Verbs().end()) Fail(number, L"\"" + read.verb + L"\" is no instruction");
  const auto [least, most] = verb->second;
  if (read.words.size() < least || read.words.size() > most) {
    Fail(number, L"\"" + read.verb + L"\" with the wrong number of words");
  }
  if (read.verb == L"box" && read.words[0] != L"ok" && read.words[0] != L"cancel") {
    Fail(number, L"a box is answered with ok or cancel");
  }
  return read;
}

}  // namespace

std::vector<AgentLine> ReadAgentScript(std::wstring_view text) {
  std::vector<AgentLine> lines;
  int number = 0;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(L'\n'), text.size());
    std::wstring line(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
    ++number;
    if (!line.empty() && line.back() == L'\r') line.pop_back();
    line = common::Trim(line);
    if (!line.empty() && line.front() != L'#') lines.push_back(ReadLine(number, line));
  }
  return lines;
}

}  // namespace practice
