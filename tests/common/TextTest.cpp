#include <gtest/gtest.h>

#include "common/RunTimeError.h"
#include "common/Text.h"

namespace common {
namespace {

struct MidRow {
  const wchar_t* text;
  int start;
  int count;
  const wchar_t* result;
};

constexpr MidRow kMids[] = {
    {L"SEK120XT", 1, 3, L"SEK"},     {L"SEK120XT", 4, 3, L"120"},  {L"SEK120XT", 7, 2, L"XT"},
    {L"SEK120XT", 7, 99, L"XT"},     {L"SEK120XT", 8, 1, L"T"},    {L"SEK120XT", 9, 1, L""},
    {L"SEK120XT", 100, 1, L""},      {L"SEK120XT", 1, 0, L""},     {L"", 1, 1, L""},
    {L"SEK", 1, 2147483647, L"SEK"}, {L"SEK", 2147483647, 1, L""},
};

TEST(Text, MidTakesWhatIsThere) {
  for (const auto& [text, start, count, result] : kMids) {
    EXPECT_EQ(Mid(text, start, count), result) << text << L" " << start << L" " << count;
  }
  EXPECT_EQ(Mid(L"SEK120", 4), L"120");
  EXPECT_EQ(Mid(L"SEK", 4), L"");
  EXPECT_EQ(Mid(L"", 1), L"");
}

TEST(Text, AStartBeforeTheTextAndANegativeLengthAreFailures) {
  EXPECT_THROW(Mid(L"SEK", 0, 1), RunTimeError);
  EXPECT_THROW(Mid(L"SEK", -1), RunTimeError);
  EXPECT_THROW(Mid(L"SEK", 1, -1), RunTimeError);
  EXPECT_THROW(Left(L"SEK", -1), RunTimeError);
  EXPECT_THROW(Right(L"SEK", -1), RunTimeError);
  EXPECT_THROW(Space(-1), RunTimeError);
}

TEST(Text, LeftAndRightTakeAtMostTheWholeText) {
  EXPECT_EQ(Left(L"SEK120", 3), L"SEK");
  EXPECT_EQ(Left(L"SE", 3), L"SE");
  EXPECT_EQ(Left(L"SEK", 0), L"");
  EXPECT_EQ(Left(L"", 3), L"");
  EXPECT_EQ(Right(L"SEK120XT", 2), L"XT");
  EXPECT_EQ(Right(L"X", 2), L"X");
  EXPECT_EQ(Right(L"SEK", 0), L"");
  EXPECT_EQ(Right(L"", 2), L"");
}

TEST(Text, OnlyBlanksAreTrimmed) {
  EXPECT_EQ(Trim(L"  A B  "), L"A B");
  EXPECT_EQ(Trim(L"A"), L"A");
  EXPECT_EQ(Trim(L"   "), L"");
  EXPECT_EQ(Trim(L""), L"");
  EXPECT_EQ(Trim(L"\tA\r\n"), L"\tA\r\n");
  EXPECT_EQ(Trim(L" \tA\t "), L"\tA\t");
  EXPECT_EQ(Trim(L"\u00A0A\u00A0"), L"\u00A0A\u00A0");
  EXPECT_EQ(LeftTrim(L"  A  "), L"A  ");
  EXPECT_EQ(LeftTrim(L"   "), L"");
}

struct InStrRow {
  const wchar_t* text;
  const wchar_t* sought;
  int position;
};

constexpr InStrRow kInStrs[] = {
    {L"SEK120XT", L"XT", 7}, {L"SEK120XT", L"SEK", 1},
    {L"SEK120XT", L"YQ", 0}, {L"SEK120XT", L"xt", 0},
    {L"XTXT", L"XT", 1},     {L"SEK", L"SEK1", 0},
    {L"SEK", L"", 1},        {L"", L"", 0},
    {L"", L"X", 0},          {L"AXB", L"X", 2},
    {L"AAAB", L"AAB", 2},
};

TEST(Text, InStrGivesTheFirstPosition) {
  for (const auto& [text, sought, position] : kInStrs) {
    EXPECT_EQ(InStr(text, sought), position) << text << L" " << sought;
    EXPECT_EQ(Contains(text, sought), position > 0) << text << L" " << sought;
  }
}

TEST(Text, InStrAnyCaseKnowsTheLettersOfTheNorth) {
  EXPECT_EQ(InStrAnyCase(L"sek120xt", L"XT"), 7);
  EXPECT_EQ(InStrAnyCase(L"SEK120XT", L"xt"), 7);
  EXPECT_EQ(InStrAnyCase(L"MALM\u00D6", L"m\u00F6"), 4);
  EXPECT_EQ(InStrAnyCase(L"", L""), 0);
  EXPECT_EQ(InStrAnyCase(L"A", L""), 1);
  EXPECT_EQ(InStrAnyCase(L"A", L"B"), 0);
}

TEST(Text, ReplaceGoesOnBehindWhatItPutIn) {
  EXPECT_EQ(Replace(L"A;B;C", L";", L", "), L"A, B, C");
  EXPECT_EQ(Replace(L"XXXXXX", L"XXX", L"STO"), L"STOSTO");
  EXPECT_EQ(Replace(L"XXXX", L"XXX", L"STO"), L"STOX");
  EXPECT_EQ(Replace(L"AA", L"A", L"AA"), L"AAAA");
  EXPECT_EQ(Replace(L"1.2.3", L".", L""), L"123");
  EXPECT_EQ(Replace(L"abc", L"B", L"x"), L"abc");
  EXPECT_EQ(Replace(L"abc", L"", L"x"), L"abc");
  EXPECT_EQ(Replace(L"", L"a", L"x"), L"");
}

TEST(Text, UpperCaseIsTheSameInEveryLocale) {
  EXPECT_EQ(UpperCase(L"abcxyz019-."), L"ABCXYZ019-.");
  EXPECT_EQ(UpperCase(L"\u00E5\u00E4\u00F6\u00E6\u00F8\u00E9\u00FC"),
            L"\u00C5\u00C4\u00D6\u00C6\u00D8\u00C9\u00DC");
  EXPECT_EQ(UpperCase(L"\u0161\u010D\u0142\u017E"), L"\u0160\u010C\u0141\u017D");
  EXPECT_EQ(UpperCase(L'\u00FF'), L'\u0178');
  EXPECT_EQ(UpperCase(L"\u00DF\u00F7\u00D7\u00AA\u0131\u0138\u0149\u017F"),
            L"\u00DF\u00F7\u00D7\u00AA\u0131\u0138\u0149\u017F")
      << "no letters, or without a capital of one character of their own";
  EXPECT_EQ(UpperCase(L"\u00C5\u0160\u0139\u0179"), L"\u00C5\u0160\u0139\u0179");
  EXPECT_EQ(UpperCase(L""), L"");
}

TEST(Text, OnlyTheTenDigitsAndTheLettersOfTheHostCount) {
  for (const wchar_t c : std::wstring(L"0123456789")) EXPECT_TRUE(IsDigit(c));
  for (const wchar_t c : std::wstring(L"/:. A\u0661\uFF11")) EXPECT_FALSE(IsDigit(c));
  for (const wchar_t c : std::wstring(L"AZaz")) EXPECT_TRUE(IsLetter(c));
  for (const wchar_t c : std::wstring(L"@[`{0\u00C5\u00E5")) EXPECT_FALSE(IsLetter(c));
}

TEST(Text, JoinedPiecesStandBehindEachOtherWithNothingBetween) {
  const std::wstring held = L"SEK";
  EXPECT_EQ(Joined({held, L"", L"100", std::wstring_view(L" XT").substr(0, 2)}), L"SEK100 X");
  EXPECT_EQ(Joined({}), L"");
}

TEST(Text, SpaceIsThatManyBlanks) {
  EXPECT_EQ(Space(0), L"");
  EXPECT_EQ(Space(3), L"   ");
}

struct LikeRow {
  const wchar_t* text;
  const wchar_t* pattern;
  bool matches;
};

constexpr LikeRow kLikes[] = {
    {L"", L"", true},
    {L"A", L"", false},
    {L"", L"A", false},
    {L"ABC", L"ABC", true},
    {L"ABC", L"abc", false},
    {L"ABC", L"AB", false},
    {L"AB", L"ABC", false},
    // ?
    {L"A", L"?", true},
    {L"", L"?", false},
    {L"AB", L"?", false},
    {L"ABC", L"A?C", true},
    {L"AC", L"A?C", false},
    // *
    {L"", L"*", true},
    {L"ABC", L"*", true},
    {L"ABC", L"A*", true},
    {L"ABC", L"*C", true},
    {L"ABC", L"A*C", true},
    {L"AC", L"A*C", true},
    {L"ABC", L"*B", false},
    {L"ABAB", L"*AB", true},
    {L"ABC", L"***", true},
    // #
    {L"5", L"#", true},
    {L"X", L"#", false},
    {L"15MAR07", L"##[A-Z][A-Z][A-Z]##", true},
    {L"15mar07", L"##[A-Z][A-Z][A-Z]##", false},
    {L"\u0661", L"#", false},
    // [ ]
    {L"B", L"[A-C]", true},
    {L"D", L"[A-C]", false},
    {L"B", L"[!A-C]", false},
    {L"D", L"[!A-C]", true},
    {L"", L"[!A-C]", false},
    {L"b", L"[A-Ca-c]", true},
    {L"X", L"[AXZ]", true},
    {L"-", L"[A-]", true},
    {L"-", L"[-A]", true},
    {L"A", L"[-A]", true},
    {L"*", L"[*]", true},
    {L"?", L"[?]", true},
    {L"#", L"[#]", true},
    {L"5", L"[#]", false},
    {L"[", L"[[]", true},
    {L"!", L"[A!]", true},
    {L"!", L"!", true},
    {L"-", L"-", true},
    {L"]", L"]", true},
    {L"A]", L"[A]]", true},
    {L"AB", L"A[]B", true},
    {L"", L"[]", true},
    {L"A", L"[]", false},
    {L"B", L"[A-A]", false},
    {L"A", L"[A-A]", true},
    {L"A\r\nB", L"A*B", true},
};

TEST(Text, LikeMatchesTheWholeText) {
  for (const auto& [text, pattern, matches] : kLikes) {
    EXPECT_EQ(Like(text, pattern), matches) << text << L" Like " << pattern;
  }
}

TEST(Text, ABrokenPatternIsAFailure) {
  EXPECT_THROW(Like(L"A", L"[A"), RunTimeError);
  EXPECT_THROW(Like(L"A", L"["), RunTimeError);
  EXPECT_THROW(Like(L"A", L"[!"), RunTimeError);
  EXPECT_THROW(Like(L"A", L"[Z-A]"), RunTimeError);
}

struct Utf8Row {
  const wchar_t* text;
  const char* bytes;
};

constexpr Utf8Row kUtf8[] = {
    {L"", ""},
    {L"SEK120", "SEK120"},
    {L"\u007F", "\x7F"},
    {L"\u0080", "\xC2\x80"},
    {L"\u00C5\u00C4\u00D6", "\xC3\x85\xC3\x84\xC3\x96"},
    {L"\u07FF", "\xDF\xBF"},
    {L"\u0800", "\xE0\xA0\x80"},
    {L"\u20AC", "\xE2\x82\xAC"},
    {L"\uFFFD", "\xEF\xBF\xBD"},
    {L"\U00010000", "\xF0\x90\x80\x80"},
    {L"\U0001F600", "\xF0\x9F\x98\x80"},
    {L"\U0010FFFF", "\xF4\x8F\xBF\xBF"},
};

TEST(Text, Utf8GoesBothWays) {
  for (const auto& [text, bytes] : kUtf8) {
    EXPECT_EQ(ToUtf8(text), bytes);
    EXPECT_EQ(FromUtf8(bytes), text);
  }
}

constexpr Utf8Row kNoUtf8[] = {
    {L"\uFFFD", "\x80"},  // a continuation alone
    {L"\uFFFD", "\xFF"},
    {L"\uFFFD", "\xC3"},  // cut off
    {L"\uFFFD"
     L"A",
     "\xC3"
     "A"},
    {L"\uFFFD\uFFFD", "\xE2\x82"},
    {L"\uFFFD\uFFFD", "\xC0\x80"},  // longer than needed
    {L"\uFFFD\uFFFD\uFFFD", "\xE0\x80\x80"},
    {L"\uFFFD\uFFFD\uFFFD", "\xED\xA0\x80"},            // half of a pair
    {L"\uFFFD\uFFFD\uFFFD\uFFFD", "\xF4\x90\x80\x80"},  // past the last character
    {L"\uFFFD\u00C5", "\xC5\xC3\x85"},
};

TEST(Text, WhatIsNoUtf8BecomesTheReplacementCharacter) {
  for (const auto& [text, bytes] : kNoUtf8) EXPECT_EQ(FromUtf8(bytes), text);
}

TEST(Text, HalfOfAPairBecomesTheReplacementCharacter) {
  const std::wstring lead(1, static_cast<wchar_t>(0xD83D));
  const std::wstring trail(1, static_cast<wchar_t>(0xDE00));
  EXPECT_EQ(ToUtf8(lead), "\xEF\xBF\xBD");
  EXPECT_EQ(ToUtf8(trail), "\xEF\xBF\xBD");
  EXPECT_EQ(ToUtf8(lead + L"A"),
            "\xEF\xBF\xBD"
            "A");
  EXPECT_EQ(ToUtf8(lead + trail), "\xF0\x9F\x98\x80");
}

}  // namespace
}  // namespace common
