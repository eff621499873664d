#include <gtest/gtest.h>

#include "common/RunTimeError.h"
#include "fares/Amounts.h"
#include "tests/fares/FaresBench.h"

namespace fares {
namespace {

using Lines = std::vector<std::wstring>;

struct Reading {
  const wchar_t* text;
  double number;
};

constexpr Reading kReadings[] = {
    {L"120", 120},
    {L"120.50", 120.5},
    {L"120.50XT", 120.5},
    {L"0", 0},
    {L"0.00", 0},
    {L"007", 7},
    {L"007.70", 7.7},
    {L".5", 0.5},
    {L"5.", 5},
    {L"5.XT", 5},
    {L"12 34", 12},
    {L"12-3", 12},
    {L"12,5", 12},
    {L"1E5", 1},
    {L"1e5", 1},
    {L"0x10", 0},
    {L"2147483648", 2147483648.0},
    {L"999999999999.99", 999999999999.99},
    {L"0.1", 0.1},
    {L"0000000000000000000000000000000001", 1},
    {L"1XT2", 1},
    {L"40YQ;50SE", 40},
};

constexpr const wchar_t* kNoReadings[] = {L"",     L" ",   L" 120",   L"-120",  L"+120",  L",5",
                                          L"XT",   L".",   L"..",     L".XT",   L"1.2.3", L"1..2",
                                          L"1.2.", L"ARE", L"\u0661", L"SEK120"};

class BothSymbols : public testing::TestWithParam<const wchar_t*> {};
INSTANTIATE_TEST_SUITE_P(Symbols, BothSymbols, testing::Values(L",", L"."));

TEST_P(BothSymbols, AnAmountIsReadUpToTheFirstOtherCharacter) {
  FaresBench bench(GetParam());
  for (const Reading& row : kReadings) {
    EXPECT_EQ(bench.amounts.ParseAmount(row.text), row.number) << row.text;
  }
}

TEST_P(BothSymbols, WhatIsNoNumberDoesNotConvert) {
  FaresBench bench(GetParam());
  for (const wchar_t* text : kNoReadings) {
    EXPECT_THROW(bench.amounts.ParseAmount(text), common::RunTimeError) << text;
  }
}

TEST(ParseAmount, WithoutASymbolAPointIsNotSilentlyDropped) {
  FaresBench bench(L"");
  EXPECT_THROW(bench.amounts.ParseAmount(L"120.50"), common::RunTimeError);
  EXPECT_EQ(bench.amounts.ParseAmount(L"120"), 120);
}

TEST(ParseAmount, ANumberBeyondAllNumbersIsAnOverflow) {
  FaresBench bench;
  EXPECT_THROW(bench.amounts.ParseAmount(std::wstring(400, L'9')), common::OverflowError);
}

struct Product {
  const wchar_t* amount;
  int names;
  const wchar_t* product;
};

// The plain ones.
constexpr Product kProducts[] = {
    {L"SEK1000", 1, L"SEK1000"},
    {L"SEK1000", 2, L"SEK2000"},
    {L"SEK120XT", 3, L"SEK360XT"},
    {L"SEK40YQ", 9, L"SEK360YQ"},
    {L"SEK120.5", 2, L"SEK241"},
    {L"SEK120.25", 2, L"SEK240.5"},
    {L"SEK120.25XT", 2, L"SEK240.5XT"},
    {L"USD0.1", 3, L"USD0.3"},
    {L"USD1.1XT", 3, L"USD3.3XT"},
    {L"NOK33.33", 3, L"NOK99.99"},
    {L"SEK0", 5, L"SEK0"},
    {L"SEK0YR", 5, L"SEK0YR"},
    {L"JPY123456789", 9, L"JPY1111111101"},
    {L"SEK2147483647", 2, L"SEK4294967294"},
    {L"EUR120-XT", 2, L"EUR240-XT"},
    {L"GBP12 XT", 4, L"GBP48 XT"},
    {L"123456", 2, L"123912"},
    {L"SEK1000", 0, L"SEK0"},
    {L"SEK1000XT", -1, L"SEK-1000XT"},
    {L"SEK1", 32767, L"SEK32767"},
};

TEST_P(BothSymbols, AnAmountIsMultipliedAndWrittenInTheHostsForm) {
  FaresBench bench(GetParam());
  for (const Product& row : kProducts) {
    EXPECT_EQ(bench.Multiplied(row.amount, row.names), row.product) << row.amount;
  }
  EXPECT_FALSE(bench.stop.isSet);
}

// The quirk: the suffix is taken from behind as many characters as the shortest text of the value
// has, so zeros that the host wrote are taken for a suffix and become digits again.
constexpr Product kSuffixQuirks[] = {
    {L"SEK120.50", 2, L"SEK2410"},
    {L"SEK120.50", 1, L"SEK120.50"},
    {L"SEK120.50XT", 2, L"SEK2410XT"},
    {L"SEK120.00XT", 2, L"SEK240.00XT"},
    {L"SEK100.10", 3, L"SEK300.30"},
    {L"SEK007XT", 2, L"SEK1407XT"},
    {L"SEK0120", 2, L"SEK2400"},
    {L"SEK00", 2, L"SEK00"},
    {L"SEK5.XT", 2, L"SEK10.XT"},
    {L"SEK5.", 2, L"SEK10."},
    {L"SEK.5", 2, L"SEK1"},
    {L"SEK.5XT", 2, L"SEK1T"},
    {L"SEK00.50XT", 2, L"SEK150XT"},
    {L"SEK0.0", 2, L"SEK0.0"},
    {L"SEK1.0", 3, L"SEK3.0"},
    {L"SEK10.0", 3, L"SEK30.0"},
};

TEST_P(BothSymbols, QuirkZerosBeyondTheShortestTextCountAsSuffix) {
  FaresBench bench(GetParam());
  for (const Product& row : kSuffixQuirks) {
    EXPECT_EQ(bench.Multiplied(row.amount, row.names), row.product) << row.amount;
  }
}

TEST(MultiplyAmount, ASeparatorOfTwoCharactersDoesNotEatTheSuffix) {
  FaresBench bench(L"::");
  EXPECT_EQ(bench.Multiplied(L"SEK120.25XT", 2), L"SEK240.5XT");
}

TEST(MultiplyAmount, QuirkACommaInTheSuffixBecomesAPointWhenItIsTheUsersSymbol) {
  FaresBench comma(L",");
  EXPECT_EQ(comma.Multiplied(L"SEK120X,T", 2), L"SEK240X.T");
  FaresBench point(L".");
  EXPECT_EQ(point.Multiplied(L"SEK120X,T", 2), L"SEK240X,T");
}

TEST(MultiplyAmount, FifteenDigitsAreAllThatIsWritten) {
  FaresBench bench;
  EXPECT_EQ(bench.Multiplied(L"SEK0.1234567890123456", 1), L"SEK0.1234567890123466");
  EXPECT_EQ(bench.Multiplied(L"SEK123456789012343", 9), L"SEK1111111101111090");
}

class NoAmount : public testing::TestWithParam<const wchar_t*> {};

TEST_P(NoAmount, IsReportedOnceAndStaysAsItWas) {
  FaresBench bench;
  EXPECT_EQ(bench.Multiplied(GetParam(), 2), GetParam());
  EXPECT_EQ(bench.TakeCalls(), Lines{kReport26});
  EXPECT_TRUE(bench.stop.isSet);
}

INSTANTIATE_TEST_SUITE_P(Texts, NoAmount,
                         testing::Values(L"", L"S", L"SEK", L"SEKXT", L"NOFARE", L"SEK-5",
                                         L"SEK 120", L"SEK1.2.3", L"SEK.", L"IT", L"SEK,5"));

TEST(MultiplyAmount, AProductBeyondAllNumbersIsReportedAndTheTextStays) {
  FaresBench bench;
  const std::wstring amount = L"SEK" + std::wstring(308, L'9');
  EXPECT_EQ(bench.Multiplied(amount, 1000), amount);
  EXPECT_EQ(bench.TakeCalls(), Lines{kReport26});
}

}  // namespace
}  // namespace fares
