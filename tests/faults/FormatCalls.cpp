#include "tests/faults/FormatCalls.h"

#include <algorithm>
#include <span>

#include "common/Text.h"

namespace faults {
namespace {

/// A call that the product makes, and the argument that shows that its format is no stranger's.
struct OwnCall {
  std::wstring_view name;
  std::size_t argument;
  std::wstring_view begin;
  std::wstring_view end;
};
constexpr OwnCall kOwnCalls[] = {
    {L"snprintf", 2, L"\"", L"\""},
    {L"swprintf", 2, L"L\"", L"\""},
    {L"swscanf", 1, L"L\"", L"\""},
    {L"FormatMessageW", 0, L"FORMAT_MESSAGE_FROM_SYSTEM", L"FORMAT_MESSAGE_IGNORE_INSERTS"},
    {L"GetDateFormatW", 3, L"nullptr", L""},
};

bool IsNameCharacter(wchar_t c) { return common::IsLetter(c) || common::IsDigit(c) || c == L'_'; }

bool TakesFormat(std::wstring_view name) {
  const std::wstring upper = common::UpperCase(name);
  constexpr std::wstring_view kWithin[] = {L"PRINTF",        L"SCANF",      L"FTIME",
                                           L"PUT_TIME",      L"GET_TIME",   L"DATEFORMAT",
                                           L"FORMATMESSAGE", L"TIMEFORMAT", L"SYSLOG"};
  constexpr std::wstring_view kWhole[] = {L"FORMAT",      L"VFORMAT",    L"FORMAT_TO",
                                          L"FORMAT_TO_N", L"VFORMAT_TO", L"FORMATTED_SIZE",
                                          L"PRINT",       L"PRINTLN",    L"VPRINT_UNICODE"};
  return std::ranges::find(kWhole, upper) != std::end(kWhole) ||
         std::ranges::any_of(kWithin,
                             [&](std::wstring_view part) { return common::Contains(upper, part); });
}

/// The arguments of the call whose parenthesis opens at the beginning, without blanks around them.
std::vector<std::wstring> ArgumentsOf(std::wstring_view code) {
  std::vector<std::wstring> arguments(1);
  int depth = 0;
  bool quoted = false;
  for (std::size_t i = 0; i < code.size(); ++i) {
    const wchar_t c = code[i];
    if (c == L'"' && code[i - 1] != L'\\') quoted = !quoted;
    if (!quoted && (c == L')' || c == L'}') && --depth == 0) break;
    if (!quoted && c == L',' && depth == 1) {
      arguments.emplace_back();
    } else if (depth > 0) {
      arguments.back() += c;
    }
    if (!quoted && (c == L'(' || c == L'{')) ++depth;
  }
  for (std::wstring& argument : arguments) {
    argument = common::Trim(common::Replace(argument, L"\n", L" "));
  }
  return arguments;
}

bool IsOwn(std::wstring_view name, std::wstring_view call) {
  const auto* own = std::ranges::find(kOwnCalls, name, &OwnCall::name);
  if (own == std::end(kOwnCalls)) return false;
  const std::vector<std::wstring> arguments = ArgumentsOf(call);
  if (own->argument >= arguments.size()) return false;
  const std::wstring& shown = arguments[own->argument];
  return shown.starts_with(own->begin) && shown.ends_with(own->end);
}

/// The name that is called where this parenthesis opens, with or without template arguments; ""
/// when none is.
std::wstring_view NameBefore(std::wstring_view code, std::size_t open) {
  std::size_t end = open;
  if (end > 0 && code[end - 1] == L'>') {
    int depth = 0;
    do {
      --end;
      if (code[end] == L'>') ++depth;
      if (code[end] == L'<') --depth;
    } while (end > 0 && depth > 0 && code[end] != L';');
  }
  std::size_t from = end;
  while (from > 0 && IsNameCharacter(code[from - 1])) --from;
  return code.substr(from, end - from);
}

}  // namespace

std::vector<std::wstring> ForeignFormats(std::wstring_view code) {
  std::vector<std::wstring> found;
  for (std::size_t open = code.find(L'('); open != code.npos; open = code.find(L'(', open + 1)) {
    const std::wstring_view name = NameBefore(code, open);
    if (TakesFormat(name) && !IsOwn(name, code.substr(open))) found.emplace_back(name);
  }
  return found;
}

}  // namespace faults
