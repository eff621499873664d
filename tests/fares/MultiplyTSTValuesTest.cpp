#include <gtest/gtest.h>

#include <array>

#include "fares/Amounts.h"
#include "tests/fares/FaresBench.h"

namespace fares {
namespace {

using Lines = std::vector<std::wstring>;

TEST(MultiplyTSTValues, EveryValueIsMultipliedAndTheTourCodeIsNot) {
  FaresBench bench;
  bench.totals.strFare = L"SEK1000";
  bench.totals.strEquivalentFare = L"NOK900";
  bench.totals.strNetFare = L"SEK800";
  bench.totals.strSellingFare = L"SEK700";
  bench.totals.strTourCode = L"SEK1";
  bench.totals.strTaxList = L"SEK120XT;SEK40YQ;";
  bench.totals.strXFTax = L"LAX4.5";
  bench.totals.strTotalFare = L"SEK1160";
  bench.totals.strTotalFareFirstTST = L"SEK5";
  bench.totals.strTotalFareLastTSTs = L"SEK6";
  bench.amounts.MultiplyTSTValues(FaresBench::TST(2));
  EXPECT_EQ(bench.totals.strFare, L"SEK2000");
  EXPECT_EQ(bench.totals.strEquivalentFare, L"NOK1800");
  EXPECT_EQ(bench.totals.strNetFare, L"SEK1600");
  EXPECT_EQ(bench.totals.strSellingFare, L"SEK1400");
  EXPECT_EQ(bench.totals.strTourCode, L"SEK1");
  EXPECT_EQ(bench.totals.strTaxList, L"SEK240XT;SEK80YQ;");
  EXPECT_EQ(bench.totals.strXFTax, L"LAX9");
  EXPECT_EQ(bench.totals.strTotalFare, L"SEK2320");
  EXPECT_EQ(bench.totals.strTotalFareFirstTST, L"SEK5");
  EXPECT_EQ(bench.totals.strTotalFareLastTSTs, L"SEK6");
  EXPECT_EQ(bench.TakeCalls(), Lines{});
}

TEST(MultiplyTSTValues, OnlyTheFareMayNotBeEmpty) {
  FaresBench bench;
  bench.amounts.MultiplyTSTValues(FaresBench::TST(2));
  EXPECT_EQ(bench.TakeCalls(), Lines{kReport26});
  EXPECT_EQ(bench.totals.strTotalFare, L"");
  EXPECT_EQ(bench.totals.strTaxList, L"");
  EXPECT_EQ(bench.totals.strXFTax, L"");
}

TEST(MultiplyTSTValues, TheRecordOfTheTSTIsOnlyRead) {
  FaresBench bench;
  tst::TSTInfo tst = FaresBench::TST(3);
  tst.strFare = L"SEK1000";
  bench.totals.strFare = tst.strFare;
  bench.mco.intNoNames = 7;
  bench.amounts.MultiplyTSTValues(tst);
  EXPECT_EQ(bench.totals.strFare, L"SEK3000");
  EXPECT_EQ(tst.strFare, L"SEK1000");
}

struct ListProduct {
  const wchar_t* list;
  const wchar_t* product;
};

TEST(MultiplyTSTValues, EmptyPiecesOfTheTaxListAreKept) {
  constexpr ListProduct kLists[] = {{L"SEK1XT", L"SEK2XT"},
                                    {L"SEK1XT;", L"SEK2XT;"},
                                    {L";SEK1XT", L";SEK2XT"},
                                    {L"SEK1XT;;SEK2YQ", L"SEK2XT;;SEK4YQ"},
                                    {L";", L";"},
                                    {L";;;", L";;;"}};
  for (const auto& [list, product] : kLists) {
    FaresBench bench;
    bench.totals.strFare = L"SEK1";
    bench.totals.strTaxList = list;
    bench.amounts.MultiplyTSTValues(FaresBench::TST(2));
    EXPECT_EQ(bench.totals.strTaxList, product) << list;
    EXPECT_EQ(bench.TakeCalls(), Lines{}) << list;
  }
}

TEST(MultiplyTSTValues, NothingIsMultipliedBehindATaxThatDoesNotConvert) {
  FaresBench bench;
  bench.totals.strFare = L"SEK1";
  bench.totals.strTaxList = L"SEK1XT;EXEMPT;SEK2YQ;NONE;";
  bench.totals.strXFTax = L"LAX3";
  bench.totals.strTotalFare = L"SEK4";
  bench.amounts.MultiplyTSTValues(FaresBench::TST(2));
  EXPECT_EQ(bench.totals.strTaxList, L"SEK2XT;EXEMPT;SEK2YQ;NONE;");
  EXPECT_EQ(bench.totals.strXFTax, L"LAX3");
  EXPECT_EQ(bench.totals.strTotalFare, L"SEK4");
  EXPECT_EQ(bench.TakeCalls(), Lines{kReport26});
  EXPECT_TRUE(bench.stop.isSet);
}

// In the order of multiplying; the lists come before the last.
constexpr std::array kAmounts = {&tst::TSTTotals::strFare,     &tst::TSTTotals::strEquivalentFare,
                                 &tst::TSTTotals::strNetFare,  &tst::TSTTotals::strSellingFare,
                                 &tst::TSTTotals::strTaxList,  &tst::TSTTotals::strXFTax,
                                 &tst::TSTTotals::strTotalFare};

TEST(MultiplyTSTValues, NothingIsMultipliedBehindTheFirstAmountThatDoesNotConvert) {
  for (std::size_t bad = 0; bad < kAmounts.size(); ++bad) {
    FaresBench bench;
    for (std::size_t i = 0; i < kAmounts.size(); ++i) {
      bench.totals.*kAmounts[i] = i < bad ? L"SEK1" : L"SEK1.2.3";
    }
    bench.amounts.MultiplyTSTValues(FaresBench::TST(2));
    for (std::size_t i = 0; i < kAmounts.size(); ++i) {
      EXPECT_EQ(bench.totals.*kAmounts[i], i < bad ? L"SEK2" : L"SEK1.2.3") << bad << " " << i;
    }
    EXPECT_EQ(bench.TakeCalls(), Lines{kReport26}) << bad;
  }
}

TEST(MultiplyTSTValues, TheAmountsAreMultipliedInTheirOrder) {
  for (std::size_t bad = 0; bad < kAmounts.size(); ++bad) {
    FaresBench bench;
    for (const auto amount : kAmounts) bench.totals.*amount = L"SEK1";
    bench.totals.*kAmounts[bad] = L"SEK1.2.3";
    bench.amounts.MultiplyTSTValues(FaresBench::TST(2));
    for (std::size_t i = 0; i < kAmounts.size(); ++i) {
      if (i == bad) continue;
      EXPECT_EQ(bench.totals.*kAmounts[i], i < bad ? L"SEK2" : L"SEK1") << bad;
    }
  }
}

// In an XF item the amount stands behind an airport, and its zeros are no suffix.
constexpr ListProduct kXFItems[] = {
    {L"LAX4.50", L"LAX9"},
    {L"LAX4.50;", L"LAX9;"},
    {L"LAX4.50;SFO3", L"LAX9;SFO6"},
    {L"XFLAX4.50", L"XFLAX9"},
    {L"XF LAX3", L"XF LAX6"},
    {L"USD4.5XF", L"USD9XF"},
    {L"LAX007", L"LAX14"},
    {L"LAX", L"LAX"},
    {L"XF LAX", L"XF LAX"},
    {L"1AX", L"1AX"},
    {L"12", L"12"},
    {L"LAX.SFO", L"LAX.SFO"},
    {L"LAX4 SFO3", L"LAX8 SFO3"},
    {L"LAX.5", L"LAX1"},
    {L";;", L";;"},
    {L"", L""},
};

TEST(MultiplyTSTValues, AnXFItemKeepsWhatStandsAroundItsAmount) {
  for (const wchar_t* symbol : {L",", L"."}) {
    for (const auto& [list, product] : kXFItems) {
      FaresBench bench(symbol);
      bench.totals.strFare = L"SEK1";
      bench.totals.strXFTax = list;
      bench.amounts.MultiplyTSTValues(FaresBench::TST(2));
      EXPECT_EQ(bench.totals.strXFTax, product) << list;
      EXPECT_EQ(bench.TakeCalls(), Lines{}) << list;
    }
  }
}

TEST(MultiplyTSTValues, NothingIsMultipliedBehindAnXFAmountThatDoesNotConvert) {
  FaresBench bench;
  bench.totals.strFare = L"SEK1";
  bench.totals.strXFTax = L"LAX1;LAX1.2.3;SFO3;LAX1.2.3";
  bench.totals.strTotalFare = L"SEK4";
  bench.amounts.MultiplyTSTValues(FaresBench::TST(2));
  EXPECT_EQ(bench.totals.strXFTax, L"LAX2;LAX1.2.3;SFO3;LAX1.2.3");
  EXPECT_EQ(bench.totals.strTotalFare, L"SEK4");
  EXPECT_EQ(bench.TakeCalls(), Lines{kReport26});
}

}  // namespace
}  // namespace fares
