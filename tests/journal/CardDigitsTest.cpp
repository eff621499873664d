#include <gtest/gtest.h>

#include <string>

#include "journal/CardDigits.h"
#include "tests/journal/CpuTime.h"

namespace journal {
namespace {

// The text as it shows: hidden digits as "*", the last four of a card as "t".
std::wstring Shown(std::wstring text) {
  const std::vector<CardMark> marks = MarkCards(text);
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (marks[i] == CardMark::kHidden) text[i] = L'*';
    if (marks[i] == CardMark::kTail) text[i] = L't';
  }
  return text;
}

TEST(CardDigits, ShowTheLastFourOfARunThatPassesTheCheckDigit) {
  EXPECT_EQ(Shown(L"CCVI4929876538712343/1209"), L"CCVI************tttt/1209");
}

TEST(CardDigits, LeaveARunThatFailsTheCheckDigit) {
  EXPECT_EQ(Shown(L"4929876538712345"), L"4929876538712345");
}

TEST(CardDigits, AreThirteenToNineteen) {
  EXPECT_EQ(Shown(L"000000000000"), L"000000000000");
  EXPECT_EQ(Shown(L"0000000000000"), L"*********tttt");
  EXPECT_EQ(Shown(L"0000000000000000000"), L"***************tttt");
}

TEST(CardDigits, MayHaveBlanksHyphensPointsAndLineBreaksBetweenThem) {
  EXPECT_EQ(Shown(L"4929 8765 3871 2343"), L"**** **** **** tttt");
  EXPECT_EQ(Shown(L"4929-8765-3871-2343"), L"****-****-****-tttt");
  EXPECT_EQ(Shown(L"4929.8765.3871.2343"), L"****.****.****.tttt");
  EXPECT_EQ(Shown(L"4929 - 8765\u00A03871\u20132343"), L"**** - ****\u00A0****\u2013tttt");
  EXPECT_EQ(Shown(L"FP CC49298765\r\n     38712343"), L"FP CC********\r\n     ****tttt");
}

TEST(CardDigits, MayNotHaveAnythingElseBetweenThem) {
  EXPECT_EQ(Shown(L"49298765/38712343"), L"49298765/38712343");
  EXPECT_EQ(Shown(L"49298765                 38712343"), L"49298765                 38712343");
}

TEST(CardDigits, AreFoundBehindOtherNumbersAndBeforeThem) {
  EXPECT_EQ(Shown(L"7 4929876538712343"), L"7 ************tttt");
  EXPECT_EQ(Shown(L"4929876538712343 1209"), L"************tttt 1209");
  EXPECT_EQ(Shown(L"12-4929 8765 3871 2343-0709"), L"12-**** **** **** tttt-0709");
}

TEST(CardDigits, AreFoundWithinALongerRun) {
  EXPECT_EQ(Shown(L"24929876538712343"), L"2************tttt");
  EXPECT_EQ(Shown(L"49298765387123431"), L"************tttt1");
  EXPECT_EQ(Shown(L"102492987653871234310"), L"102************tttt10");
}

TEST(CardDigits, AreFoundInAGroupThatOthersFollow) {
  EXPECT_EQ(Shown(L"7 24929876538712343 1209"), L"7 2************tttt 1209");
}

TEST(CardDigits, InGroupsBeginAndEndWithAGroup) {
  EXPECT_EQ(Shown(L"24929 8765 3871 2343"), L"24929 8765 3871 2343");
}

TEST(CardDigits, ThatTwoCardsShareAreHiddenWhenEitherHidesThem) {
  // The first thirteen are a card, and so are all sixteen.
  EXPECT_EQ(Shown(L"0000000000000 000"), L"************t ttt");
}

TEST(CardDigits, OfADocumentNumberAreNoneUnlessItPasses) {
  EXPECT_EQ(Shown(L"117-4012345678"), L"117-4012345678");
}

TEST(CardDigits, AreLookedForInAnyText) {
  EXPECT_EQ(Shown(L""), L"");
  EXPECT_EQ(Shown(L"- - -"), L"- - -");
}

// A host may answer anything. Looking at every pair of digits would take minutes.
TEST(CardDigits, AreFoundInAHundredThousandDigitsAtOnce) {
  const CpuTime time;
  const std::wstring run(100'000, L'0');
  EXPECT_EQ(Shown(run), std::wstring(run.size() - 4, L'*') + L"tttt");
  std::wstring groups;
  while (groups.size() < 100'000) groups += L"0 ";
  EXPECT_EQ(Shown(groups).find(L'0'), groups.npos);
  EXPECT_LT(time.Seconds(), 20);
}

}  // namespace
}  // namespace journal
