#include "practice/host/Syntax.h"

#include <algorithm>
#include <array>
#include <chrono>

#include "common/Text.h"

namespace practice::syntax {
namespace {

using common::IsDigit;
using common::Like;

constexpr std::size_t kLongestNumber = 9;
constexpr std::size_t kMostNumbers = 999;
constexpr std::array<std::wstring_view, 12> kMonths = {
    L"JAN", L"FEB", L"MAR", L"APR", L"MAY", L"JUN", L"JUL", L"AUG", L"SEP", L"OCT", L"NOV", L"DEC"};

bool IsCapital(wchar_t c) { return c >= L'A' && c <= L'Z'; }

bool AllOf(std::wstring_view text, bool (*holds)(wchar_t)) {
  return !text.empty() && std::all_of(text.begin(), text.end(), holds);
}

bool IsNamePart(std::wstring_view text) {
  return AllOf(text, [](wchar_t c) { return IsCapital(c) || c == L' ' || c == L'-'; }) &&
         text.front() != L' ' && text.back() != L' ';
}

bool AddRange(std::wstring_view piece, std::vector<int>& numbers) {
  const std::size_t dash = piece.find(L'-');
  const int first = NumberIn(piece.substr(0, dash));
  const int last = dash == piece.npos ? first : NumberIn(piece.substr(dash + 1));
  if (first < 1 || last < first || static_cast<std::size_t>(last) > kMostNumbers) return false;
  for (int number = first; number <= last; ++number) numbers.push_back(number);
  return true;
}

}  // namespace

std::vector<std::wstring> Split(std::wstring_view text, wchar_t delimiter) {
  std::vector<std::wstring> pieces;
  for (std::size_t from = 0;;) {
    const std::size_t end = text.find(delimiter, from);
    pieces.emplace_back(text.substr(from, end == text.npos ? end : end - from));
    if (end == text.npos) return pieces;
    from = end + 1;
  }
}

std::vector<std::wstring> Words(std::wstring_view text) {
  std::vector<std::wstring> words = Split(text, L' ');
  std::erase(words, std::wstring());
  return words;
}

bool StartsWith(std::wstring_view text, std::wstring_view start) { return text.starts_with(start); }

std::wstring Join(const std::vector<std::wstring>& pieces, std::wstring_view delimiter) {
  std::wstring text;
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    if (i > 0) text += delimiter;
    text += pieces[i];
  }
  return text;
}

bool IsNumber(std::wstring_view text) {
  return text.size() <= kLongestNumber && AllOf(text, IsDigit);
}

int NumberIn(std::wstring_view text) { return IsNumber(text) ? std::stoi(std::wstring(text)) : -1; }

bool IsDecimal(std::wstring_view text) {
  const std::size_t point = text.find(L'.');
  if (point == text.npos) return IsNumber(text);
  return IsNumber(text.substr(0, point)) && IsNumber(text.substr(point + 1));
}

bool IsAmount(std::wstring_view text) {
  return text.size() > 3 && AllOf(text.substr(0, 3), IsCapital) && IsDecimal(text.substr(3));
}

bool IsTax(std::wstring_view text) {
  const std::size_t digit = text.find_last_of(L"0123456789");
  if (digit == text.npos) return false;
  const std::wstring_view code = text.substr(digit + 1);
  return code.size() >= 2 && code.size() <= 4 && AllOf(code, IsCapital) &&
         IsAmount(text.substr(0, digit + 1));
}

bool IsDate(std::wstring_view text) {
  if (!Like(text, L"##[A-Z][A-Z][A-Z]##")) return false;
  const auto* month = std::find(kMonths.begin(), kMonths.end(), text.substr(2, 3));
  if (month == kMonths.end()) return false;
  return std::chrono::year_month_day{
      std::chrono::year(2000 + NumberIn(text.substr(5))),
      std::chrono::month(static_cast<unsigned>(month - kMonths.begin()) + 1),
      std::chrono::day(static_cast<unsigned>(NumberIn(text.substr(0, 2))))}
      .ok();
}

bool IsOffice(std::wstring_view text) {
  return Like(text, L"[A-Z][A-Z][A-Z][A-Z0-9][A-Z0-9]##[A-Z0-9][A-Z0-9]");
}

bool IsCity(std::wstring_view text) { return Like(text, L"[A-Z][A-Z][A-Z]"); }

bool IsAirline(std::wstring_view text) {
  return Like(text, L"[A-Z][A-Z0-9]") || Like(text, L"#[A-Z]");
}

bool IsFlight(std::wstring_view text) {
  return text.size() >= 3 && text.size() <= 6 && IsAirline(text.substr(0, 2)) &&
         IsNumber(text.substr(2));
}

bool IsDocument(std::wstring_view text) { return Like(text, L"###-##########"); }

bool IsLocator(std::wstring_view text) {
  return Like(text, L"[A-Z0-9][A-Z0-9][A-Z0-9][A-Z0-9][A-Z0-9][A-Z0-9]");
}

bool IsPersonName(std::wstring_view text) {
  const std::size_t slash = text.find(L'/');
  return slash != text.npos && IsNamePart(text.substr(0, slash)) &&
         IsNamePart(text.substr(slash + 1));
}

std::optional<std::vector<int>> ReadNumbers(std::wstring_view text) {
  std::vector<int> numbers;
  for (const std::wstring& piece : Split(text, L',')) {
    if (!AddRange(piece, numbers)) return std::nullopt;
  }
  std::sort(numbers.begin(), numbers.end());
  numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
  return numbers;
}

std::wstring NumbersText(std::vector<int> numbers) {
  std::sort(numbers.begin(), numbers.end());
  std::wstring text;
  for (std::size_t first = 0; first < numbers.size();) {
    std::size_t last = first;
    while (last + 1 < numbers.size() && numbers[last + 1] == numbers[last] + 1) ++last;
    if (!text.empty()) text += L",";
    text += std::to_wstring(numbers[first]);
    if (last > first) text += L"-" + std::to_wstring(numbers[last]);
    first = last + 1;
  }
  return text;
}

}  // namespace practice::syntax
