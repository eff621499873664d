#include <gtest/gtest.h>

#include "fares/ItemLists.h"
#include "tests/fares/FaresBench.h"

namespace fares {
namespace {

using Lines = std::vector<std::wstring>;

struct TaxAddition {
  const wchar_t* first;
  const wchar_t* second;
  const wchar_t* sum;
};

constexpr TaxAddition kTaxes[] = {
    // The first list is taken as it stands, up to its first empty field.
    {L"SEK120XT;SEK40YQ;", L"", L"SEK120XT;SEK40YQ"},
    {L"SEK120XT", L"", L"SEK120XT"},
    {L"SEK0YR;SEK1.50XT;EXEMPT;", L"", L"SEK0YR;SEK1.50XT;EXEMPT"},
    {L"SEK1XT;;SEK2YQ;", L"", L"SEK1XT"},
    {L"", L"SEK1XT;", L"SEK1XT"},
    {L";", L"SEK0XT;", L"SEK0XT"},
    // The same codes.
    {L"SEK100XT;", L"SEK120XT;SEK0YR;", L"SEK220XT"},
    {L"SEK120XT;SEK40YQ;", L"SEK40YQ;SEK120XT;", L"SEK240XT;SEK80YQ"},
    {L"SEK100XT;", L"SEK1XT;SEK2XT;", L"SEK103XT"},
    {L"SEK0XT;", L"SEK0XT;", L"SEK0XT"},
    {L"SEK100XT;", L"SEK0XT;", L"SEK100XT"},
    // New codes.
    {L"SEK100XT;", L"SEK40YQ;", L"SEK100XT;SEK40YQ"},
    {L"SEK100XT;", L"SEK40YQ;SEK5YQ;", L"SEK100XT;SEK45YQ"},
    {L"SEK100XT;", L"SEK0YQ;", L"SEK100XT"},
    {L"SEK100XT;", L"SEK40YQ;;SEK5SE;", L"SEK100XT;SEK40YQ"},
    {L"SEK100XT;", L";SEK40YQ;", L"SEK100XT"},
    {L"SEK100XT;", L"SEK007YQ;", L"SEK100XT;SEK707YQ"},
    // Halves to even, in the held item and in the new one.
    {L"SEK0.5XT;", L"SEK1XT;", L"SEK1XT"},
    {L"SEK1.5XT;", L"SEK1XT;", L"SEK3XT"},
    {L"SEK2.5XT;", L"SEK1XT;", L"SEK3XT"},
    // Without a code: no match, appended above 0.
    {L"SEK100XT;", L"SEK40;", L"SEK100XT;SEK40"},
    {L"SEK100;", L"SEK40;", L"SEK100;SEK40"},
    {L"SEK100XT;", L"SEK0;", L"SEK100XT"},
    {L"SEK100XT;", L"SEK;SE;", L"SEK100XT"},
    // Case decides.
    {L"SEK100XT;", L"SEK5xt;", L"SEK100XT;SEK5xt"},
    // Longer codes: the held item must contain the new code.
    {L"SEK100XTSGO;", L"SEK5XT;", L"SEK105XT"},
    {L"SEK100XT;", L"SEK5XTSGO;", L"SEK100XT;SEK5XTSGO"},
    // The first that contains it wins, and the search starts anew for every item.
    {L"SEK1XTA;SEK2XT;", L"SEK5XT;SEK7XT;", L"SEK13XT;SEK2XT"},
};

TEST(TaxList, ASecondTSTsTaxesAreAddedByTheirCodes) {
  for (const auto& [first, second, sum] : kTaxes) {
    FaresBench bench;
    bench.AddTaxes(first);
    bench.AddTaxes(second);
    EXPECT_EQ(bench.JoinedTaxes(), sum) << first << L" + " << second;
    EXPECT_EQ(bench.TakeCalls(), Lines{}) << first << L" + " << second;
  }
}

TEST(TaxList, QuirkDecimalsOfALaterTSTCountAsPartOfTheCode) {
  FaresBench bench;
  bench.AddTaxes(L"SEK100XT;");
  bench.AddTaxes(L"SEK120.50XT;");
  EXPECT_EQ(bench.JoinedTaxes(), L"SEK100XT;SEK120.50XT") << "no XT, but another tax: .50XT";
  bench.AddTaxes(L"SEK7.50XT;");
  EXPECT_EQ(bench.JoinedTaxes(), L"SEK100XT;SEK128.50XT") << "7.50 is 8, and 120 + 8 is 128";
}

TEST(TaxList, QuirkLeadingZerosOfALaterTSTCountAsPartOfTheCode) {
  FaresBench bench;
  bench.AddTaxes(L"SEK101XT;");
  bench.AddTaxes(L"SEK0120XT;");
  EXPECT_EQ(bench.JoinedTaxes(), L"SEK101XT;SEK1200XT") << "120, and the code 0XT";
}

TEST(TaxList, QuirkSuchACodeMatchesAnAmountThatEndsInTheSameDigits) {
  FaresBench bench;
  bench.AddTaxes(L"SEK100XT;");
  bench.AddTaxes(L"SEK0120XT;");
  EXPECT_EQ(bench.JoinedTaxes(), L"SEK2200XT") << "100 + 120, and the code 0XT";
}

TEST(TaxList, QuirkATaxWithoutAnAmountLosesTheFirstLetterOfItsCode) {
  FaresBench bench;
  bench.AddTaxes(L"SEK100XT;");
  bench.AddTaxes(L"SEKXT;");
  EXPECT_EQ(bench.JoinedTaxes(), L"SEK100T") << "the amount is 0, one digit, so the code is T";
}

TEST(TaxList, QuirkACodeThatOccursInACurrencyMatchesThatItem) {
  FaresBench bench;
  bench.AddTaxes(L"SEK100XT;SEK20SE;");
  bench.AddTaxes(L"SEK5SE;");
  EXPECT_EQ(bench.JoinedTaxes(), L"SEK105SE;SEK20SE") << "XT has become SE";
}

TEST(TaxList, QuirkACodeOfDigitsMatchesAnAmount) {
  FaresBench bench;
  bench.AddTaxes(L"SEK100XT;");
  bench.AddTaxes(L"SEK00;");
  EXPECT_EQ(bench.JoinedTaxes(), L"SEK1000") << "the code is 0, and it occurs in 100";
}

TEST(TaxList, QuirkTaxesOfDifferentCurrenciesAreSummedUnderTheDocuments) {
  FaresBench bench;
  bench.AddTaxes(L"NOK100XT;");
  bench.AddTaxes(L"USD5XT;EUR7YQ;");
  EXPECT_EQ(bench.JoinedTaxes(), L"SEK105XT;SEK7YQ");
}

TEST(TaxList, QuirkANewTaxOfZeroIsDroppedButThoseOfTheFirstTSTAreKept) {
  FaresBench bench;
  bench.AddTaxes(L"SEK0YR;");
  bench.AddTaxes(L"SEK0YQ;SEK0YR;");
  EXPECT_EQ(bench.JoinedTaxes(), L"SEK0YR");
}

TEST(TaxList, ASumPastTheWidthIsReportedAndTheHeldItemStays) {
  FaresBench bench;
  bench.AddTaxes(L"SEK2147483647XT;");
  bench.AddTaxes(L"SEK1XT;");
  EXPECT_EQ(bench.TakeCalls(), Lines{kReport21});
  EXPECT_EQ(bench.JoinedTaxes(), L"SEK2147483647XT");
  EXPECT_TRUE(bench.stop.isSet);
}

TEST(TaxList, TheFirstTSTsTaxesAreNotRead) {
  FaresBench bench;
  bench.AddTaxes(L"SEK9999999999XT;");
  EXPECT_EQ(bench.JoinedTaxes(), L"SEK9999999999XT");
  EXPECT_EQ(bench.TakeCalls(), Lines{});
}

TEST(TaxList, AnEmptyListLeavesTheDocumentsAlone) {
  FaresBench bench;
  bench.mco.strTaxList = L"from elsewhere";
  bench.AddTaxes(L"");
  EXPECT_EQ(bench.JoinedTaxes(), L"from elsewhere");
}

TEST(TaxList, TheTaxesOfSeveralTSTsAreJoinedOnDemand) {
  FaresBench bench;
  bench.AddTaxes(L"SEK120XT;");
  bench.AddTaxes(L"SEK40YQ;");
  EXPECT_EQ(bench.mco.strTaxList, L"");
  bench.sums.JoinTaxes();
  EXPECT_EQ(bench.mco.strTaxList, L"SEK120XT;SEK40YQ");
}

TEST(TaxList, TheNumberOfHeldItemsIsKnown) {
  FaresBench bench;
  EXPECT_EQ(bench.sums.TaxCount(), 0);
  bench.AddTaxes(L"SEK120XT;SEK40YQ;");
  EXPECT_EQ(bench.sums.TaxCount(), 2);
  bench.AddTaxes(L"SEK120XT;SEK5SE;");
  EXPECT_EQ(bench.sums.TaxCount(), 2) << "SE is found in SEK120XT";
  bench.AddTaxes(L"SEK5DK;");
  EXPECT_EQ(bench.sums.TaxCount(), 3);
}

TEST(ItemLists, SplittingAndJoiningGivesTheSameText) {
  for (const wchar_t* list : {L"", L";", L"A", L"A;", L";A", L"A;;B", L";;A;;"}) {
    EXPECT_EQ(JoinItems(SplitItems(list)), list);
  }
  EXPECT_EQ(SplitItems(L"A;;B;"), (Lines{L"A", L"", L"B", L""}));
}

TEST(ItemLists, TheLeadingItemsEndAtTheFirstEmptyOne) {
  EXPECT_EQ(LeadingItems(L"A;B;"), (Lines{L"A", L"B"}));
  EXPECT_EQ(LeadingItems(L"A;;B"), Lines{L"A"});
  EXPECT_EQ(LeadingItems(L"A; ;B"), (Lines{L"A", L" ", L"B"}));
  EXPECT_EQ(LeadingItems(L""), Lines{});
}

}  // namespace
}  // namespace fares
