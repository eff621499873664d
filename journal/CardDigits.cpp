#include "journal/CardDigits.h"

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

/// The places of digits that hang together.
using Places = std::vector<std::size_t>;

struct Chain {
  Places digits;
  /// Indices into `digits` at which a group begins, and the one past the last digit.
  std::vector<std::size_t> borders;
};

bool PassesCheckDigit(std::wstring_view text, const Places& places, std::size_t from,
                      std::size_t to) {
  int sum = 0;
  bool doubled = false;
  for (std::size_t i = to; i-- > from; doubled = !doubled) {
    int digit = text[places[i]] - L'0';
    if (doubled) digit = digit > 4 ? digit * 2 - 9 : digit * 2;
    sum += digit;
  }
  return sum % 10 == 0;
}

std::vector<Chain> ChainsIn(std::wstring_view text) {
  std::vector<Chain> chains;
  std::size_t end = 0;  // past the last digit
  bool joined = false;  // nothing but separators since then
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!common::IsDigit(text[i])) {
      joined = joined && kSeparators.find(text[i]) != kSeparators.npos && i - end < kWidestGap;
      continue;
    }
    if (!joined) chains.emplace_back();
    Chain& chain = chains.back();
    if (!joined || end != i) chain.borders.push_back(chain.digits.size());
    chain.digits.push_back(i);
    end = i + 1;
    joined = true;
  }
  for (Chain& chain : chains) chain.borders.push_back(chain.digits.size());
  return chains;
}

class Marker {
 public:
  explicit Marker(std::wstring_view text) : text_(text), marks_(text.size(), CardMark::kNone) {}

  void Mark(const Chain& chain) {
    for (std::size_t first = 0; first + 1 < chain.borders.size(); ++first) {
      const std::size_t from = chain.borders[first];
      if (chain.borders[first + 1] - from > kLongest) {
        MarkWithin(chain.digits, from, chain.borders[first + 1]);
      }
      for (std::size_t last = first + 1; last < chain.borders.size(); ++last) {
        if (chain.borders[last] - from > kLongest) break;
        MarkRun(chain.digits, from, chain.borders[last]);
      }
    }
  }
  std::vector<CardMark> Take() { return std::move(marks_); }

 private:
  // A group too long for a card may be one with more behind it.
  void MarkWithin(const Places& digits, std::size_t from, std::size_t to) {
    for (; from + kShortest <= to; ++from) {
      for (std::size_t length = kShortest; length <= kLongest && from + length <= to; ++length) {
        MarkRun(digits, from, from + length);
      }
    }
  }

  void MarkRun(const Places& digits, std::size_t from, std::size_t to) {
    if (to - from < kShortest || !PassesCheckDigit(text_, digits, from, to)) return;
    for (std::size_t i = from; i < to; ++i) {
      CardMark& mark = marks_[digits[i]];
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
