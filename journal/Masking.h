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
class Masking {
 public:
  /// A form of payment. Its parts are declared with it: what stands between "+" and "/", but no
  /// amounts, and no parts too short to tell anything.
  void Declare(std::wstring_view formOfPayment);

  std::wstring Masked(std::wstring_view text) const;

 private:
  void Add(std::wstring_view value);
  /// Past the end of the longest declared value that begins there in the upper-case text; `from`
  /// when none does.
  std::size_t EndOfValue(std::wstring_view text, std::size_t from) const;

  std::vector<std::wstring> values_;  ///< without blanks, in upper case
};

}  // namespace journal
