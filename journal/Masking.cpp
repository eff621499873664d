#include "journal/Masking.h"

#include <algorithm>
#include <cstdint>

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
/// A hundred fares with a form of payment each, of three parts, fill a fifth.
constexpr std::size_t kMostValues = 2000;
/// Longer values are kept in pieces: how far a text is compared at each of its places.
constexpr std::size_t kLongestPiece = 32;

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

// SEK1250 or SEK12.50: stands all over a booking, and tells nobody's number. Not for shorter parts
// than those that are looked for.
bool IsAmount(std::wstring_view part) {
  constexpr std::size_t kCurrency = 3;
  static_assert(kShortestPart > kCurrency);
  return std::all_of(part.begin(), part.begin() + kCurrency, common::IsLetter) &&
         std::all_of(part.begin() + kCurrency, part.end(),
                     [](wchar_t c) { return common::IsDigit(c) || c == L'.'; });
}

bool TellsSomething(std::wstring_view part) {
  if (std::ranges::all_of(part, common::IsDigit)) return part.size() >= kShortestNumber;
  return part.size() >= kShortestPart && !IsAmount(part);
}

/// The character at that place, or what sorts before every character behind the end.
std::int64_t At(std::wstring_view value, std::size_t place) {
  return place < value.size() ? std::int64_t{value[place]} : -1;
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
  Add(Folded(formOfPayment));
  for (std::size_t from = 0; from < formOfPayment.size();) {
    const std::size_t end =
        std::min(formOfPayment.find_first_of(L"+/", from), formOfPayment.size());
    const std::wstring part = Folded(formOfPayment.substr(from, end - from));
    if (TellsSomething(part)) Add(part);
    from = end + 1;
  }
}

void Masking::Add(std::wstring_view folded) {
  // Each piece begins with the last character of the one before, and all are of full length: so
  // what they mask hangs together, to its end.
  while (folded.size() > kLongestPiece) {
    Keep(folded.substr(0, kLongestPiece));
    folded.remove_prefix(std::min(kLongestPiece - 1, folded.size() - kLongestPiece));
  }
  if (!folded.empty()) Keep(folded);
}

void Masking::Keep(std::wstring_view piece) {
  const auto place = std::ranges::lower_bound(values_, piece);
  if (place != values_.end() && *place == piece) return;
  if (values_.size() == kMostValues) {
    full_ = true;
  } else {
    values_.emplace(place, piece);
  }
}

std::size_t Masking::EndOfValue(std::wstring_view text, std::size_t from) const {
  std::size_t longest = from;
  if (IsBlank(text[from])) return longest;
  // The values that begin with the `length` characters from there on; the shortest comes first.
  std::ranges::subrange candidates(values_);
  std::size_t length = 0;
  for (std::size_t at = from; at < text.size() && !candidates.empty(); ++at) {
    if (IsBlank(text[at])) continue;
    candidates =
        std::ranges::equal_range(candidates, std::int64_t{text[at]}, {},
                                 [length](const std::wstring& value) { return At(value, length); });
    ++length;
    if (candidates.empty() || candidates.front().size() != length) continue;
    if (length >= kShortWord || IsWholeWord(text, from, at + 1)) longest = at + 1;
  }
  return longest;
}

std::wstring Masking::Masked(std::wstring_view text) const {
  if (full_) return L"<withheld>";
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
