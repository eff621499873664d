#pragma once

#include <cstddef>
#include <string_view>

namespace common {

/// A text of the program's own that is written where it is used: it lasts as long as the program,
/// so that whoever gets it may keep it as it is, and its length is known before the program runs.
class Literal {
 public:
  constexpr Literal() = default;
  template <std::size_t size>
  consteval Literal(const wchar_t (&text)[size]) : text_(text, size - 1) {}

  constexpr operator std::wstring_view() const { return text_; }

 private:
  std::wstring_view text_;
};

}  // namespace common
