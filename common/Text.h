#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

// The classic Basic operations in which the system's rules are written. Positions count from 1;
// nothing is ever out of range.
namespace common {

/// At most `count` characters from `start` on; "" past the end. A start below 1 is a RunTimeError,
/// a negative count too.
std::wstring Mid(std::wstring_view text, int start, int count);
std::wstring Mid(std::wstring_view text, int start);
/// The first `count` characters; a negative count is a RunTimeError.
std::wstring Left(std::wstring_view text, int count);
/// The last `count` characters; a negative count is a RunTimeError.
std::wstring Right(std::wstring_view text, int count);

/// Blanks (U+0020) only: tabs, line ends and no-break blanks stay. LeftTrim gives a part of the
/// text itself, which must outlive it.
std::wstring Trim(std::wstring_view text);
std::wstring_view LeftTrim(std::wstring_view text);

/// The position of the first occurrence, 0 when there is none. An empty text sought is found at 1,
/// but nowhere in an empty text.
int InStr(std::wstring_view text, std::wstring_view sought);
bool Contains(std::wstring_view text, std::wstring_view sought);
/// Without regard to case (per character, no locale).
int InStrAnyCase(std::wstring_view text, std::wstring_view sought);

std::wstring Replace(std::wstring_view text, std::wstring_view sought, std::wstring_view by);
/// The pieces behind each other with nothing between them, put together at once; "" without any.
std::wstring Joined(std::initializer_list<std::wstring_view> pieces);
std::wstring Space(int count);
/// The letters of the western and central European alphabets; the same in every locale.
std::wstring UpperCase(std::wstring_view text);
wchar_t UpperCase(wchar_t character);
bool IsDigit(wchar_t character);
/// A letter A-Z or a-z.
bool IsLetter(wchar_t character);
int Length(std::wstring_view text);

/// Pattern match with "?" any one character, "#" one digit, "*" any run, "[A-Z]" one of a class
/// ("[!A-Z]" none of it, "[]" nothing at all), everything else itself; case-sensitive, over the
/// whole text. A class that is not closed, or a range that goes down, is a RunTimeError.
bool Like(std::wstring_view text, std::wstring_view pattern);

/// UTF-8 where text leaves the process as a file or on a console.
std::string ToUtf8(std::wstring_view text);
/// What is not valid UTF-8 becomes U+FFFD.
std::wstring FromUtf8(std::string_view bytes);

}  // namespace common
