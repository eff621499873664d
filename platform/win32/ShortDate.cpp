#include "platform/win32/ShortDate.h"

#include <algorithm>

namespace platform {

namespace {

bool IsDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }

class Reader {
 public:
  Reader(std::wstring_view text, const ShortDateForm& form) : text_(text), form_(form) {}

  std::optional<std::chrono::year_month_day> Read() {
    const std::wstring_view pattern = form_.pattern;
    for (std::size_t at = 0; at < pattern.size();) {
      if (pattern[at] == L'\'') {
        const std::size_t close = std::min(pattern.find(L'\'', at + 1), pattern.size());
        SkipLiteral(pattern.substr(at + 1, close - at - 1));
        at = close + 1;
        continue;
      }
      const std::size_t end = std::min(pattern.find_first_not_of(pattern[at], at), pattern.size());
      if (!ReadPiece(pattern[at], static_cast<int>(end - at))) return std::nullopt;
      at = end;
    }
    SkipSeparators();
    const std::chrono::year_month_day date{std::chrono::year(year_), std::chrono::month(month_),
                                           std::chrono::day(day_)};
    if (!text_.empty() || !date.ok()) return std::nullopt;
    return date;
  }

 private:
  bool ReadPiece(wchar_t letter, int count) {
    switch (letter) {
      case L'd':
        return count <= 2 ? ReadNumber(2, day_) : SkipName();
      case L'M':
        if (count == 3) return ReadMonth(form_.shortMonths);
        if (count > 3) return ReadMonth(form_.months);
        return ReadNumber(2, month_);
      case L'y':
        return ReadYear();
      default:
        return true;  // a separator: any will do
    }
  }

  void SkipLiteral(std::wstring_view literal) {
    SkipSeparators();
    if (text_.starts_with(literal)) text_.remove_prefix(literal.size());
  }

  void SkipSeparators() {
    constexpr std::wstring_view kSeparators = L" .,-/'\x200E\x200F\x00A0";
    text_.remove_prefix(std::min(text_.find_first_not_of(kSeparators), text_.size()));
  }

  bool ReadNumber(std::size_t digits, unsigned& number) {
    SkipSeparators();
    number = 0;
    std::size_t length = 0;
    while (length < std::min(digits, text_.size()) && IsDigit(text_[length])) {
      number = number * 10 + static_cast<unsigned>(text_[length] - L'0');
      ++length;
    }
    text_.remove_prefix(length);
    return length > 0;
  }

  bool ReadYear() {
    SkipSeparators();
    const std::size_t before = text_.size();
    unsigned number = 0;
    if (!ReadNumber(4, number)) return false;
    year_ = static_cast<int>(number);
    const std::size_t digits = before - text_.size();
    if (digits == 2) year_ = FullYear(year_);
    return digits == 2 || digits == 4;
  }

  int FullYear(int shortYear) const {
    const int year = form_.lastShortYear - form_.lastShortYear % 100 + shortYear;
    return year > form_.lastShortYear ? year - 100 : year;
  }

  bool ReadMonth(const std::array<std::wstring, 12>& names) {
    SkipSeparators();
    for (unsigned i = 0; i < names.size(); ++i) {
      if (!names[i].empty() && text_.starts_with(names[i])) {
        text_.remove_prefix(names[i].size());
        month_ = i + 1;
        return true;
      }
    }
    return false;
  }

  bool SkipName() {
    SkipSeparators();
    text_.remove_prefix(std::min(text_.find_first_of(L" .,"), text_.size()));
    return true;
  }

  std::wstring_view text_;
  const ShortDateForm& form_;
  unsigned day_ = 1;
  unsigned month_ = 0;
  int year_ = 0;
};

}  // namespace

std::optional<std::chrono::year_month_day> ReadShortDate(std::wstring_view text,
                                                         const ShortDateForm& form) {
  return Reader(text, form).Read();
}

}  // namespace platform
