#include "tests/faults/ShownText.h"

#include <algorithm>
#include <string>

#include "common/Text.h"

namespace faults {
namespace {

constexpr std::wstring_view kPayment = L"<payment";
constexpr std::size_t kTailLength = 4;
constexpr std::size_t kNowhere = std::wstring_view::npos;

std::wstring WithItsLines(std::wstring_view text) {
  std::wstring lines = common::Replace(text, L"\r\n", L"\n");
  std::ranges::replace(lines, L'\r', L'\n');
  if (!lines.ends_with(L'\n')) lines += L'\n';
  return lines;
}

bool IsUnprintable(wchar_t character) {
  return (character < L' ' && character != L'\t' && character != L'\n') ||
         (character >= 0x7F && character < 0xA0) || character == 0x2028 || character == 0x2029;
}

bool Stands(wchar_t shown, wchar_t character) {
  if (shown == character) return true;
  if (shown == L'*') return common::IsDigit(character);
  return shown == L'\uFFFD' && IsUnprintable(character);
}

/// A masked form of payment in the journal's lines.
struct Payment {
  std::size_t length = 0;  ///< 0: there is none
  std::wstring_view tail;
};

Payment PaymentAt(std::wstring_view lines) {
  if (!lines.starts_with(kPayment)) return {};
  lines.remove_prefix(kPayment.size());
  if (lines.starts_with(L">")) return {kPayment.size() + 1, {}};
  const std::size_t end = lines.find(L'>');
  if (end == kNowhere || end > kTailLength + 1 || !lines.starts_with(L" ")) return {};
  const std::wstring_view tail = lines.substr(1, end - 1);
  if (!std::ranges::all_of(tail, common::IsDigit)) return {};
  return {kPayment.size() + end + 1, tail};
}

bool IsBlank(wchar_t character) { return character == L' ' || character == L'\n'; }

/// The end of the shortest part from there on that is not blank at its beginning and has the digits
/// of the tail in it, one after the other.
std::size_t ShortestEnd(std::wstring_view text, std::size_t from, std::wstring_view tail) {
  if (from == text.size() || IsBlank(text[from])) return kNowhere;
  std::size_t at = from + (tail.empty() ? 1 : 0);
  for (; !tail.empty() && at < text.size(); ++at) {
    if (text[at] == tail.front()) tail.remove_prefix(1);
  }
  return tail.empty() ? at : kNowhere;
}

/// The next one further behind, likewise not blank at its end.
std::size_t NextEnd(std::wstring_view text, std::size_t end) {
  for (; end < text.size(); ++end) {
    if (!IsBlank(text[end])) return end + 1;
  }
  return kNowhere;
}

}  // namespace

// What follows a masked part is looked for behind the shortest part that it can stand for, and then
// further and further behind; it is never needed to go back before an earlier one.
bool IsShown(std::wstring_view lines, std::wstring_view plainText) {
  const std::wstring text = WithItsLines(plainText);
  std::size_t line = 0;
  std::size_t at = 0;
  std::size_t behindMasked = kNowhere;  // in the lines
  std::size_t maskedEnd = 0;            // in the text
  while (line < lines.size() || at < text.size()) {
    if (const Payment payment = PaymentAt(lines.substr(line)); payment.length > 0) {
      const std::size_t end = ShortestEnd(text, at, payment.tail);
      if (end != kNowhere) {
        at = maskedEnd = end;
        line = behindMasked = line + payment.length;
        continue;
      }
    } else if (line < lines.size() && at < text.size() && Stands(lines[line], text[at])) {
      ++line;
      ++at;
      continue;
    }
    maskedEnd = behindMasked == kNowhere ? kNowhere : NextEnd(text, maskedEnd);
    if (maskedEnd == kNowhere) return false;
    at = maskedEnd;
    line = behindMasked;
  }
  return true;
}

}  // namespace faults
