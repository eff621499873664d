#include "common/Text.h"

#include <algorithm>

#include "common/RunTimeError.h"

namespace common {
namespace {

constexpr wchar_t kReplacement = L'\xFFFD';

std::size_t Count(int count) {
  if (count < 0) throw RunTimeError(L"Invalid procedure call: a negative length");
  return static_cast<std::size_t>(count);
}

// One bracket class of a pattern: `at` stands after "[" and is moved past "]".
bool ClassHolds(std::wstring_view pattern, std::size_t& at, wchar_t character) {
  const bool negated = at < pattern.size() && pattern[at] == L'!';
  if (negated) ++at;
  bool held = false;
  while (at < pattern.size() && pattern[at] != L']') {
    const wchar_t low = pattern[at];
    wchar_t high = low;
    if (at + 2 < pattern.size() && pattern[at + 1] == L'-' && pattern[at + 2] != L']') {
      high = pattern[at + 2];
      at += 2;
    }
    ++at;
    if (high < low) throw RunTimeError(L"Invalid pattern: a range that goes down");
    held = held || (low <= character && character <= high);
  }
  if (at == pattern.size()) throw RunTimeError(L"Invalid pattern: a missing ]");
  ++at;
  return held != negated;
}

void AppendUtf8(std::string& bytes, char32_t code) {
  const auto byte = [&bytes](char32_t value) { bytes += static_cast<char>(value); };
  if (code < 0x80) {
    byte(code);
  } else if (code < 0x800) {
    byte(0xC0 | (code >> 6));
    byte(0x80 | (code & 0x3F));
  } else if (code < 0x10000) {
    byte(0xE0 | (code >> 12));
    byte(0x80 | ((code >> 6) & 0x3F));
    byte(0x80 | (code & 0x3F));
  } else {
    byte(0xF0 | (code >> 18));
    byte(0x80 | ((code >> 12) & 0x3F));
    byte(0x80 | ((code >> 6) & 0x3F));
    byte(0x80 | (code & 0x3F));
  }
}

void AppendWide(std::wstring& text, char32_t code) {
  if constexpr (sizeof(wchar_t) == 2) {
    if (code >= 0x10000) {
      text += static_cast<wchar_t>(0xD800 + ((code - 0x10000) >> 10));
      text += static_cast<wchar_t>(0xDC00 + ((code - 0x10000) & 0x3FF));
      return;
    }
  }
  text += static_cast<wchar_t>(code);
}

// One code point from `at` on, which is moved past it; U+FFFD past one byte of what is not UTF-8.
char32_t NextCodePoint(std::string_view bytes, std::size_t& at) {
  const auto lead = static_cast<unsigned char>(bytes[at++]);
  if (lead < 0x80) return lead;
  const int more = lead >= 0xF0 && lead < 0xF5   ? 3
                   : lead >= 0xE0 && lead < 0xF0 ? 2
                   : lead >= 0xC2 && lead < 0xE0 ? 1
                                                 : 0;
  if (more == 0 || at + static_cast<std::size_t>(more) > bytes.size()) return kReplacement;
  char32_t code = lead & (0x3Fu >> more);
  for (int i = 0; i < more; ++i) {
    const auto next = static_cast<unsigned char>(bytes[at + static_cast<std::size_t>(i)]);
    if ((next & 0xC0) != 0x80) return kReplacement;
    code = (code << 6) | (next & 0x3Fu);
  }
  constexpr char32_t kSmallest[] = {0, 0x80, 0x800, 0x10000};
  if (code < kSmallest[more] || code > 0x10FFFF || (code >= 0xD800 && code < 0xE000)) {
    return kReplacement;
  }
  at += static_cast<std::size_t>(more);
  return code;
}

}  // namespace

std::wstring Mid(std::wstring_view text, int start, int count) {
  if (start < 1) throw RunTimeError(L"Invalid procedure call: a start before the text");
  const std::size_t length = Count(count);
  const auto offset = static_cast<std::size_t>(start - 1);
  return offset >= text.size() ? std::wstring() : std::wstring(text.substr(offset, length));
}

std::wstring Mid(std::wstring_view text, int start) { return Mid(text, start, Length(text)); }

std::wstring Left(std::wstring_view text, int count) {
  return std::wstring(text.substr(0, Count(count)));
}

std::wstring Right(std::wstring_view text, int count) {
  return std::wstring(text.substr(text.size() - std::min(Count(count), text.size())));
}

std::wstring_view LeftTrim(std::wstring_view text) {
  return text.substr(std::min(text.find_first_not_of(L' '), text.size()));
}

std::wstring Trim(std::wstring_view text) {
  return std::wstring(LeftTrim(text.substr(0, text.find_last_not_of(L' ') + 1)));
}

int InStr(std::wstring_view text, std::wstring_view sought) {
  if (text.empty()) return 0;
  return static_cast<int>(text.find(sought) + 1);
}

bool Contains(std::wstring_view text, std::wstring_view sought) { return InStr(text, sought) > 0; }

int InStrAnyCase(std::wstring_view text, std::wstring_view sought) {
  return InStr(UpperCase(text), UpperCase(sought));
}

std::wstring Joined(std::initializer_list<std::wstring_view> pieces) {
  std::size_t length = 0;
  for (const std::wstring_view piece : pieces) length += piece.size();
  std::wstring text;
  text.reserve(length);
  for (const std::wstring_view piece : pieces) text += piece;
  return text;
}

std::wstring Replace(std::wstring_view text, std::wstring_view sought, std::wstring_view by) {
  if (sought.empty()) return std::wstring(text);
  std::wstring result;
  result.reserve(text.size() + by.size());
  std::size_t from = 0;
  for (std::size_t at = text.find(sought); at != text.npos; at = text.find(sought, from)) {
    result.append(text.substr(from, at - from)).append(by);
    from = at + sought.size();
  }
  return result.append(text.substr(from));
}

std::wstring Space(int count) { return std::wstring(Count(count), L' '); }

// By hand, since the C library's answer hangs on its locale and differs between systems. The
// letters of the western and central European alphabets; all others are their own capitals.
wchar_t UpperCase(wchar_t character) {
  const auto within = [character](wchar_t first, wchar_t last) {
    return first <= character && character <= last;
  };
  const auto below = [character](int distance) {
    return static_cast<wchar_t>(character - distance);
  };
  const bool isOdd = character % 2 != 0;
  if (within(L'a', L'z') || (within(0xE0, 0xFE) && character != 0xF7)) return below(0x20);
  if (character == 0xFF) return 0x178;
  // From here on each capital stands next before its small letter: on even places, or on odd ones.
  const bool capitalIsEven = (within(0x100, 0x137) && character != 0x131) || within(0x14A, 0x177);
  const bool capitalIsOdd = within(0x139, 0x148) || within(0x179, 0x17E);
  if ((capitalIsEven && isOdd) || (capitalIsOdd && !isOdd)) return below(1);
  return character;
}

std::wstring UpperCase(std::wstring_view text) {
  std::wstring upper(text);
  std::transform(upper.begin(), upper.end(), upper.begin(), [](wchar_t c) { return UpperCase(c); });
  return upper;
}

bool IsDigit(wchar_t character) { return character >= L'0' && character <= L'9'; }

bool IsLetter(wchar_t character) {
  return (character >= L'A' && character <= L'Z') || (character >= L'a' && character <= L'z');
}

int Length(std::wstring_view text) { return static_cast<int>(text.size()); }

bool Like(std::wstring_view text, std::wstring_view pattern) {
  if (pattern.empty()) return text.empty();
  if (pattern.front() == L'*') {
    for (std::size_t taken = 0; taken <= text.size(); ++taken) {
      if (Like(text.substr(taken), pattern.substr(1))) return true;
    }
    return false;
  }
  // An empty class stands for nothing at all.
  if (pattern.starts_with(L"[]")) return Like(text, pattern.substr(2));
  if (text.empty()) return false;
  std::size_t next = 1;
  bool matches = pattern.front() == text.front();
  if (pattern.front() == L'?') matches = true;
  if (pattern.front() == L'#') matches = IsDigit(text.front());
  if (pattern.front() == L'[') matches = ClassHolds(pattern, next, text.front());
  return matches && Like(text.substr(1), pattern.substr(next));
}

std::string ToUtf8(std::wstring_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t code = static_cast<char32_t>(text[i]);
    const bool leads = code >= 0xD800 && code < 0xDC00;
    if (leads && i + 1 < text.size() && (static_cast<char32_t>(text[i + 1]) >> 10) == 0x37) {
      code = 0x10000 + ((code - 0xD800) << 10) + (static_cast<char32_t>(text[++i]) - 0xDC00);
    } else if (code >= 0xD800 && code < 0xE000) {
      code = kReplacement;
    }
    AppendUtf8(bytes, code);
  }
  return bytes;
}

std::wstring FromUtf8(std::string_view bytes) {
  std::wstring text;
  text.reserve(bytes.size());
  for (std::size_t at = 0; at < bytes.size();) AppendWide(text, NextCodePoint(bytes, at));
  return text;
}

}  // namespace common
