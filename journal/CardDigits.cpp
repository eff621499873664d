#include "journal/CardDigits.h"

#include <algorithm>

#include "common/Text.h"

namespace journal {
namespace {

constexpr std::size_t kShortest = 13;
constexpr std::size_t kLongest = 19;
constexpr std::size_t kTailLength = 4;
/// A line break and the next line's indentation.
constexpr std::size_t kWidestGap = 16;
/// Blanks, hyphens and dashes of all sorts, and what breaks a line.
constexpr std::wstring_view kSeparators =
    L" \t\r\n-.\u00A0\u00AD\u2007\u2009\u202F\u2010\u2011\u2012\u2013\u2014\u2015\u2212";

/// A digit of the text: where it stands, and in which unbroken run of digits.
struct Digit {
  std::size_t place;
  std::size_t group;
};
/// Digits with nothing but separators between them.
using Chain = std::vector<Digit>;

std::vector<Chain> ChainsIn(std::wstring_view text) {
  std::vector<Chain> chains;
  std::size_t group = 0;
  std::size_t end = 0;  // past the last digit
  bool joined = false;  // nothing but separators since then
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!common::IsDigit(text[i])) {
      joined = joined && kSeparators.find(text[i]) != kSeparators.npos && i - end < kWidestGap;
      continue;
    }
    if (!joined) chains.emplace_back();
    if (end != i) ++group;
    chains.back().push_back({i, group});
    end = i + 1;
    joined = true;
  }
  return chains;
}

class Marker {
 public:
  explicit Marker(std::wstring_view text) : text_(text), marks_(text.size(), CardMark::kNone) {}

  void Mark(const Chain& chain) {
    for (std::size_t from = 0; from + kShortest <= chain.size(); ++from) {
      const std::size_t last = std::min(from + kLongest, chain.size());
      for (std::size_t to = from + kShortest; to <= last; ++to) {
        if (MayBeCard(chain, from, to) && PassesCheckDigit(chain, from, to)) {
          MarkCard(chain, from, to);
        }
      }
    }
  }
  std::vector<CardMark> Take() { return std::move(marks_); }

 private:
  static bool MayBeCard(const Chain& chain, std::size_t from, std::size_t to) {
    if (chain[from].group == chain[to - 1].group) return true;
    const bool opens = from == 0 || chain[from - 1].group != chain[from].group;
    return opens && (to == chain.size() || chain[to].group != chain[to - 1].group);
  }

  bool PassesCheckDigit(const Chain& chain, std::size_t from, std::size_t to) const {
    int sum = 0;
    bool doubled = false;
    for (std::size_t i = to; i-- > from; doubled = !doubled) {
      int digit = text_[chain[i].place] - L'0';
      if (doubled) digit = digit > 4 ? digit * 2 - 9 : digit * 2;
      sum += digit;
    }
    return sum % 10 == 0;
  }

  void MarkCard(const Chain& chain, std::size_t from, std::size_t to) {
    for (std::size_t i = from; i < to; ++i) {
      CardMark& mark = marks_[chain[i].place];
      if (to - i > kTailLength) {
        mark = CardMark::kHidden;
      } else if (mark == CardMark::kNone) {
        mark = CardMark::kTail;
      }
    }
  }

  std::wstring_view text_;
  std::vector<CardMark> marks_;
};

}  // namespace

std::vector<CardMark> MarkCards(std::wstring_view text) {
  Marker marker(text);
  for (const Chain& chain : ChainsIn(text)) marker.Mark(chain);
  return marker.Take();
}

}  // namespace journal
