#include "journal/Masking.h"

#include <algorithm>

#include "common/Text.h"
#include "journal/CardDigits.h"

namespace journal {
namespace {

/// Shorter values are no part of a longer word: "CA" does not stand in "CARRIER".
constexpr std::size_t kShortWord = 4;
/// Shorter parts of a value, an expiry date for one, are not looked for on their own.
constexpr std::size_t kShortestPart = 4;
constexpr std::size_t kShortestNumber = 5;
constexpr std::size_t kTailLength = 4;

bool IsBlank(wchar_t character) {
  return character == L' ' || character == L'\t' || character == L'\r' || character == L'\n' ||
         character == L'\u00A0';
}

bool IsWordCharacter(wchar_t character) {
  return common::IsDigit(character) || common::IsLetter(character);
}

std::wstring Folded(std::wstring_view text) {
  std::wstring folded = common::UpperCase(text);
  std::erase_if(folded, IsBlank);
  return folded;
}

// SEK1250 or SEK12.50: stands all over a booking, and tells nobody's number.
bool IsAmount(std::wstring_view part) {
  constexpr std::size_t kCurrency = 3;
  if (part.size() <= kCurrency) return false;
  return std::all_of(part.begin(), part.begin() + kCurrency, common::IsLetter) &&
         std::all_of(part.begin() + kCurrency, part.end(),
                     [](wchar_t c) { return common::IsDigit(c) || c == L'.'; });
}

bool TellsSomething(std::wstring_view part) {
  if (std::ranges::all_of(part, common::IsDigit)) return part.size() >= kShortestNumber;
  return part.size() >= kShortestPart && !IsAmount(part);
}

/// Past the end of the value in the text, which is in upper case; `from` when it does not begin
/// there.
std::size_t EndOf(std::wstring_view value, std::wstring_view text, std::size_t from) {
  std::size_t at = from;
  for (const wchar_t wanted : value) {
    while (at < text.size() && IsBlank(text[at])) ++at;
    if (at == text.size() || text[at] != wanted) return from;
    ++at;
  }
  return at;
}

bool IsWholeWord(std::wstring_view text, std::size_t from, std::size_t to) {
  const bool opens = from == 0 || !IsWordCharacter(text[from - 1]);
  return opens && (to == text.size() || !IsWordCharacter(text[to]));
}

std::wstring Replacement(std::wstring_view text, const std::vector<CardMark>& cards,
                         std::size_t from, std::size_t to) {
  std::wstring tail;
  for (std::size_t i = from; i < to; ++i) {
    if (cards[i] == CardMark::kTail) tail += text[i];
  }
  if (tail.size() > kTailLength) tail.erase(0, tail.size() - kTailLength);
  return tail.empty() ? L"<payment>" : L"<payment " + tail + L">";
}

}  // namespace

void Masking::Declare(std::wstring_view formOfPayment) {
  Add(formOfPayment);
  for (std::size_t from = 0; from < formOfPayment.size();) {
    const std::size_t end =
        std::min(formOfPayment.find_first_of(L"+/", from), formOfPayment.size());
    const std::wstring part = Folded(formOfPayment.substr(from, end - from));
    if (TellsSomething(part)) Add(part);
    from = end + 1;
  }
}

void Masking::Add(std::wstring_view value) {
  std::wstring folded = Folded(value);
  if (folded.empty() || std::ranges::find(values_, folded) != values_.end()) return;
  values_.push_back(std::move(folded));
}

std::size_t Masking::EndOfValue(std::wstring_view text, std::size_t from) const {
  std::size_t longest = from;
  if (IsBlank(text[from])) return longest;
  for (const std::wstring& value : values_) {
    if (value.front() != text[from]) continue;
    const std::size_t end = EndOf(value, text, from);
    if (end <= longest) continue;
    if (value.size() >= kShortWord || IsWholeWord(text, from, end)) longest = end;
  }
  return longest;
}

std::wstring Masking::Masked(std::wstring_view text) const {
  const std::vector<CardMark> cards = MarkCards(text);
  const std::wstring upper = common::UpperCase(text);
  std::wstring masked;
  for (std::size_t i = 0; i < text.size();) {
    std::size_t end = EndOfValue(upper, i);
    if (end == i) {
      masked += cards[i] == CardMark::kHidden ? L'*' : text[i];
      ++i;
      continue;
    }
    // Another value may begin within this one and end behind it.
    for (std::size_t inside = i + 1; inside < end; ++inside) {
      end = std::max(end, EndOfValue(upper, inside));
    }
    masked += Replacement(text, cards, i, end);
    i = end;
  }
  return masked;
}

}  // namespace journal
