#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace journal {

/// Keeps forms of payment and card numbers out of what is written down.
///
/// A declared value becomes "<payment>" wherever it stands, whatever its case, its blanks and the
/// line breaks in it; "<payment 1234>" when it holds a card number, whose last four digits may be
/// seen. Of every other card number the digits before the last four become "*".
///
/// There is room for as many values as any booking has. Only a host that means no good shows more;
/// from then on every text is withheld, since it may hold one that there was no room for.
class Masking {
 public:
  /// A form of payment. Its parts are declared with it: what stands between "+" and "/", but no
  /// amounts, and no parts too short to tell anything.
  void Declare(std::wstring_view formOfPayment);

  /// A text from elsewhere as it may be written down.
  std::wstring Masked(std::wstring_view text) const;

 private:
  /// `folded` is without blanks, in upper case.
  void Add(std::wstring_view folded);
  void Keep(std::wstring_view piece);
  /// Past the end of the longest declared value that begins there in the upper-case text; `from`
  /// when none does.
  std::size_t EndOfValue(std::wstring_view text, std::size_t from) const;

  std::vector<std::wstring> values_;  ///< folded and in order
  bool full_ = false;
};

}  // namespace journal
