#pragma once

#include <string_view>
#include <vector>

namespace journal {

/// What a character is to a card number.
enum class CardMark : char {
  kNone,
  kHidden,  ///< one of its digits
  kTail,    ///< one of its last four, which may be seen
};

/// A mark for every character. A card number is a run of 13 to 19 digits that passes the check
/// digit; between its groups there may be blanks, hyphens, points or a line break. It is found
/// wherever it begins and ends with a group, so behind a line number and before an expiry date,
/// too. A digit that two such runs share is hidden when either hides it.
std::vector<CardMark> MarkCards(std::wstring_view text);

}  // namespace journal
