#include <gtest/gtest.h>

#include "journal/Masking.h"
#include "tests/journal/CpuTime.h"

namespace journal {
namespace {

std::wstring Masked(std::wstring_view value, std::wstring_view text) {
  Masking masking;
  masking.Declare(value);
  return masking.Masked(text);
}

TEST(Masking, HidesADeclaredValueWhereverItStands) {
  EXPECT_EQ(Masked(L"INVOICE 4711", L"CH 7 O/PT/INVOICE 4711;FPINVOICE 4711AGT"),
            L"CH 7 O/PT/<payment>;FP<payment>AGT");
}

TEST(Masking, LeavesTheLastFourDigitsOfADeclaredCard) {
  EXPECT_EQ(Masked(L"CCVI4929876538712343/1209", L"7 FP CCVI4929876538712343/1209 [P1]"),
            L"7 FP <payment 2343> [P1]");
}

TEST(Masking, HidesACardThatNobodyDeclared) {
  EXPECT_EQ(Masking().Masked(L"RM CARD 4929-8765-3871-2343"), L"RM CARD ****-****-****-2343");
}

TEST(Masking, DisregardsCaseBlanksAndLineBreaks) {
  EXPECT_EQ(Masked(L"Invoice 4711", L"FP INVOICE4711"), L"FP <payment>");
  EXPECT_EQ(Masked(L"INVOICE 4711", L"FP inv\r\n   oice  47\n11."), L"FP <payment>.");
}

TEST(Masking, HidesThePartsOfAValueOnTheirOwn) {
  EXPECT_EQ(Masked(L"CASH/SEK500 + GRANT77/SEK660", L"CASH AND GRANT77"),
            L"<payment> AND <payment>");
  EXPECT_EQ(Masked(L"O/PT/CCXX123456/1209", L"CCXX123456"), L"<payment>");
}

TEST(Masking, LeavesAmountsAndPartsThatTellNothing) {
  const std::wstring text = L"SEK500 OR SEK12.50 AT 1209 ON PT";
  EXPECT_EQ(Masked(L"O/PT/CASH/SEK500/1209/SEK12.50", text), text);
}

TEST(Masking, HidesAShortValueOnlyAsAWord) {
  EXPECT_EQ(Masked(L"CA", L"FP CA BY CARRIER OR X/CA"), L"FP <payment> BY CARRIER OR X/<payment>");
}

TEST(Masking, TakesALetterOrADigitNextToAShortValueForTheRestOfAWord) {
  EXPECT_EQ(Masked(L"CA", L"CA 7CA CA8 XCA"), L"<payment> 7CA CA8 XCA");
}

TEST(Masking, LeavesTheLastFourDigitsOfTwoCardsInOneValueOnce) {
  EXPECT_EQ(Masked(L"4929876538712343+4111111111111111", L"FP 4929876538712343+4111111111111111."),
            L"FP <payment 1111>.");
}

TEST(Masking, HidesTheLongerOfTwoValuesAndWhatTheyShare) {
  Masking masking;
  masking.Declare(L"CASHABCD");
  masking.Declare(L"ABCDEFGH");
  masking.Declare(L"CASH");
  EXPECT_EQ(masking.Masked(L"CASHABCDEFGH CASHIER"), L"<payment> <payment>IER");
}

TEST(Masking, HidesTheRestOfACardOfWhichAPartIsDeclared) {
  EXPECT_EQ(Masked(L"8765387", L"4929876538712343"), L"****<payment>*2343");
}

TEST(Masking, HidesAValueOfAnyLengthToItsEnd) {
  for (const std::size_t length : {31u, 32u, 33u, 63u, 64u, 10'000u}) {
    std::wstring value;
    while (value.size() < length) value += std::to_wstring(value.size()) + L"X";
    value.resize(length);
    EXPECT_EQ(Masked(value, L"CH 7 " + value + L"."), L"CH 7 <payment>.") << length;
  }
}

/// "VALUE1001" and so on.
std::wstring NumberedValue(int number) { return L"VALUE" + std::to_wstring(1000 + number); }

Masking WithValues(int count) {
  Masking masking;
  for (int number = 1; number <= count; ++number) masking.Declare(NumberedValue(number));
  return masking;
}

TEST(Masking, HidesTwoThousandValues) {
  EXPECT_EQ(WithValues(2000).Masked(L"A VALUE1001 VALUE3000 VALUE"),
            L"A <payment> <payment> VALUE");
}

TEST(Masking, WithholdsEveryTextOnceThereIsNoRoomForAnotherValue) {
  Masking masking = WithValues(2000);
  masking.Declare(L"VALUE1001");
  EXPECT_EQ(masking.Masked(L"plain"), L"plain");
  masking.Declare(NumberedValue(2001));
  EXPECT_EQ(masking.Masked(L"plain"), L"<withheld>");
}

TEST(Masking, TakesNoLongerForManyValuesThatNearlyStandAllOverAText) {
  Masking masking;
  for (int number = 1; number <= 2000; ++number) {
    masking.Declare(std::wstring(20, L'A') + NumberedValue(number));
  }
  const std::wstring text(20'000, L'A');
  const CpuTime time;
  EXPECT_EQ(masking.Masked(text), text);
  EXPECT_LT(time.Seconds(), 10);
}

TEST(Masking, TakesAnEmptyValueForNone) {
  EXPECT_EQ(Masked(L"  ", L"A  B"), L"A  B");
  EXPECT_EQ(Masked(L"", L""), L"");
}

}  // namespace
}  // namespace journal
