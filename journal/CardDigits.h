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

/// A mark for every character. A card number is 13 to 19 digits that pass the check digit: in one
/// unbroken run, wherever they stand within a longer one, or in groups with blanks, hyphens, points
/// or a line break between them, where they begin and end with a group; so it is found behind a
/// line number and before an expiry date, too. A digit that two such numbers share is hidden when
/// either hides it.
std::vector<CardMark> MarkCards(std::wstring_view text);

}  // namespace journal
