#include <gtest/gtest.h>

#include "fares/Totals.h"
#include "tests/fares/FaresBench.h"

namespace fares {
namespace {

using Lines = std::vector<std::wstring>;

struct Addition {
  const wchar_t* held;
  const wchar_t* added;
  const wchar_t* sum;
};

// The fare keeps the currency of the TST that is added.
constexpr Addition kFares[] = {
    {L"", L"SEK1000", L"SEK1000"},
    {L"SEK1000", L"", L"SEK1000"},
    {L"", L"", L""},
    {L"SEK1000", L"SEK234", L"SEK1234"},
    {L"", L"SEK100.50", L"SEK100.50"},
    {L"", L"SEK 100 XT", L"SEK 100 XT"},
    {L"SEK100.50", L"SEK100.50", L"SEK200"},
    {L"SEK101.50", L"SEK101.50", L"SEK204"},
    {L"SEK0.5", L"SEK0.5", L"SEK0"},
    {L"SEK0.51", L"SEK0.51", L"SEK2"},
    {L"SEK1.5", L"SEK2.5", L"SEK4"},
    {L"SEK99.49", L"SEK0.49", L"SEK99"},
    {L"SEK007", L"SEK0", L"SEK7"},
    {L"SEK000", L"SEK00", L"SEK0"},
    {L"SEK10", L"SEKXT", L"SEK10"},
    {L"NOFARE", L"SEK5", L"SEK5"},
    {L"SEK5", L"NOFARE", L"NOF5"},
    {L"SEK", L"SE", L"SE0"},
    {L"SEK10", L"SEK-5", L"SEK10"},
    {L"SEK10", L"SEK 5", L"SEK10"},
    {L"SEK1.2.3", L"SEK1.9.9", L"SEK3"},
    {L"SEK10,5", L"SEK1,9", L"SEK11"},
    {L"SEK1E5", L"SEK1E5", L"SEK2"},
    {L"SEK2147483646", L"SEK1", L"SEK2147483647"},
    {L"SEK2147483647", L"SEK0.5", L"SEK2147483647"},
    {L"SEK2147483647.4", L"SEK0.4", L"SEK2147483647"},
};

TEST(AddTSTValues, FaresAreSummedAsWholeNumbers) {
  for (const auto& [held, added, sum] : kFares) {
    FaresBench bench;
    bench.mco.strFare = held;
    bench.AddFare(added);
    EXPECT_EQ(bench.mco.strFare, sum) << held << L" + " << added;
    EXPECT_EQ(bench.TakeCalls(), Lines{}) << held << L" + " << added;
  }
}

TEST(AddTSTValues, QuirkHalvesAreRoundedToEvenBeforeTheyAreAdded) {
  FaresBench bench;
  bench.AddFare(L"SEK100.50");
  bench.AddFare(L"SEK100.50");
  EXPECT_EQ(bench.mco.strFare, L"SEK200") << "and not SEK201";
}

TEST(AddTSTValues, QuirkFaresOfDifferentCurrenciesAreSummedUnderTheLastOne) {
  FaresBench bench;
  bench.AddFare(L"SEK1000");
  bench.AddFare(L"NOK500");
  EXPECT_EQ(bench.mco.strFare, L"NOK1500");
}

TEST(AddTSTValues, TheCurrencyOfTheReadingStopsAtThreeCharacters) {
  FaresBench bench;
  bench.mco.strFare = L"SEK1";
  bench.AddFare(L"EURO5");
  EXPECT_EQ(bench.mco.strFare, L"EUR1") << "an amount that begins with a letter counts as 0";
}

struct OtherField {
  std::wstring pnr::MCOInfo::*mco;
  std::wstring tst::TSTTotals::*tst;
};

class OtherAmount : public testing::TestWithParam<OtherField> {};

TEST_P(OtherAmount, IsSummedUnderTheDocumentsCurrency) {
  const auto [mco, tst] = GetParam();
  FaresBench bench;
  bench.totals.*tst = L"NOK100.50";
  bench.sums.AddTSTValues();
  EXPECT_EQ(bench.mco.*mco, L"NOK100.50") << "the first one as it stands";
  bench.sums.AddTSTValues();
  EXPECT_EQ(bench.mco.*mco, L"SEK200");
  bench.totals.*tst = L"";
  bench.sums.AddTSTValues();
  EXPECT_EQ(bench.mco.*mco, L"SEK200");
}

TEST_P(OtherAmount, PastTheWidthIsReportedAndStopsTheRun) {
  const auto [mco, tst] = GetParam();
  FaresBench bench;
  bench.mco.*mco = L"SEK2147483647";
  bench.totals.*tst = L"SEK1";
  bench.sums.AddTSTValues();
  EXPECT_EQ(bench.TakeCalls(), Lines{kReport21});
  EXPECT_EQ(bench.mco.*mco, L"SEK2147483647");
  EXPECT_TRUE(bench.stop.isSet);
}

INSTANTIATE_TEST_SUITE_P(
    Fields, OtherAmount,
    testing::Values(OtherField{&pnr::MCOInfo::strEquivalentFare,
                               &tst::TSTTotals::strEquivalentFare},
                    OtherField{&pnr::MCOInfo::strNetFare, &tst::TSTTotals::strNetFare},
                    OtherField{&pnr::MCOInfo::strSellingFare, &tst::TSTTotals::strSellingFare},
                    OtherField{&pnr::MCOInfo::strTotalFare, &tst::TSTTotals::strTotalFare}));

constexpr Addition kOverflows[] = {
    {L"SEK2147483647", L"SEK1", nullptr},          {L"SEK1", L"SEK2147483647", nullptr},
    {L"SEK2147483647.5", L"SEK0", nullptr},        {L"SEK0", L"SEK2147483648", nullptr},
    {L"SEK1073741824", L"SEK1073741824", nullptr}, {L"SEK99999999999999999999", L"SEK1", nullptr}};

TEST(AddTSTValues, ASumPastTheWidthIsReportedAndTheFareStays) {
  for (const auto& [held, added, none] : kOverflows) {
    FaresBench bench;
    bench.mco.strFare = held;
    bench.AddFare(added);
    EXPECT_EQ(bench.TakeCalls(), Lines{kReport21}) << held;
    EXPECT_EQ(bench.mco.strFare, held);
    EXPECT_TRUE(bench.stop.isSet);
  }
}

TEST(AddTSTValues, TheFieldsAreAddedInTheirOrderUpToTheFirstFailure) {
  constexpr OtherField kOrder[] = {
      {&pnr::MCOInfo::strFare, &tst::TSTTotals::strFare},
      {&pnr::MCOInfo::strEquivalentFare, &tst::TSTTotals::strEquivalentFare},
      {&pnr::MCOInfo::strNetFare, &tst::TSTTotals::strNetFare},
      {&pnr::MCOInfo::strSellingFare, &tst::TSTTotals::strSellingFare},
      {&pnr::MCOInfo::strTotalFare, &tst::TSTTotals::strTotalFare}};
  for (std::size_t bad = 0; bad < std::size(kOrder); ++bad) {
    FaresBench bench;
    for (const auto& [mco, tst] : kOrder) bench.mco.*mco = bench.totals.*tst = L"SEK1";
    bench.mco.*kOrder[bad].mco = L"SEK2147483647";
    bench.totals.strTourCode = L"IT1";
    bench.totals.strXFTax = bench.totals.strTaxList = L"SEK1XT";
    bench.sums.AddTSTValues();
    for (std::size_t i = 0; i < std::size(kOrder); ++i) {
      if (i == bad) continue;
      EXPECT_EQ(bench.mco.*kOrder[i].mco, i < bad ? L"SEK2" : L"SEK1") << bad;
    }
    const bool beyondTheTourCode = bad + 1 == std::size(kOrder);
    EXPECT_EQ(bench.mco.strTourCode, beyondTheTourCode ? L"IT1" : L"") << bad;
    EXPECT_EQ(bench.mco.strXFTax + bench.JoinedTaxes(), L"") << bad;
  }
}

TEST(AddTSTValues, TheTourCodeIsTakenOnceAndNeverSummed) {
  FaresBench bench;
  bench.totals.strTourCode = L"IT1";
  bench.sums.AddTSTValues();
  bench.totals.strTourCode = L"IT2";
  bench.sums.AddTSTValues();
  EXPECT_EQ(bench.mco.strTourCode, L"IT1");
}

constexpr Addition kXFTaxes[] = {
    {L"", L"LAX4.50", L"LAX4.50"},        {L"LAX4.50", L"", L"LAX4.50"},
    {L"LAX4.50", L"SFO3", L"SEK7.5"},     {L"XFLAX4.50", L"XFSFO3", L"SEK7.5"},
    {L"SEK7.5", L"LAX4.50", L"SEK12"},    {L"LAX0.1", L"LAX0.2", L"SEK0.3"},
    {L"LAX4.5;SFO3", L"JFK1", L"SEK8.5"}, {L"LAX007", L"LAX3", L"SEK10"},
    {L"LAX;SFO3", L"LAX3", L"SEK6"},      {L"LAX2147483647", L"LAX1", L"SEK2147483648"},
};

TEST(AddTSTValues, XFTaxesKeepTheirDecimals) {
  for (const wchar_t* symbol : {L",", L"."}) {
    for (const auto& [held, added, sum] : kXFTaxes) {
      FaresBench bench(symbol);
      bench.mco.strXFTax = held;
      bench.totals.strXFTax = added;
      bench.sums.AddTSTValues();
      EXPECT_EQ(bench.mco.strXFTax, sum) << held << L" + " << added;
      EXPECT_EQ(bench.TakeCalls(), Lines{});
    }
  }
}

TEST(AddTSTValues, AnXFTaxWithoutAnAmountIsReportedAsTheReadingOfAnAmount) {
  for (const wchar_t* text : {L"LAX", L"LAX1.2.3", L";"}) {
    FaresBench bench;
    bench.mco.strXFTax = L"LAX4.5";
    bench.totals.strXFTax = text;
    bench.totals.strTaxList = L"SEK1XT";
    bench.sums.AddTSTValues();
    EXPECT_EQ(bench.TakeCalls(), Lines{kReport26});
    EXPECT_EQ(bench.mco.strXFTax, L"LAX4.5");
    EXPECT_EQ(bench.JoinedTaxes(), L"SEK1XT");
    EXPECT_TRUE(bench.stop.isSet);
  }
}

struct TotalFare {
  const wchar_t* fare;
  const wchar_t* equivalent;
  const wchar_t* taxes;
  const wchar_t* total;
};

constexpr TotalFare kTotalFares[] = {
    {L"SEK1000", L"", L"", L"SEK1000"},
    {L"SEK1000", L"", L"SEK120XT;SEK40YQ", L"SEK1160"},
    {L"NOK1000", L"SEK1200", L"SEK120XT", L"SEK1320"},
    {L"SEK100.50", L"", L"SEK20.50XT", L"SEK120"},
    {L"SEK100", L"", L"SEK0.5XT;SEK0.5YQ", L"SEK100"},
    {L"SEK101", L"", L"SEK0.5XT;SEK0.5YQ", L"SEK102"},
    {L"SEK99.5", L"", L"SEK0.5XT", L"SEK100"},
    {L"SEK100", L"", L"SEK20XT;;SEK40YQ", L"SEK120"},
    {L"SEK100", L"", L";SEK40YQ", L"SEK100"},
    {L"SEK100", L"", L"SEK20XT;", L"SEK120"},
    {L"SEK100", L"", L"SEKXT;EXEMPT;X;SEK1YQ", L"SEK101"},
    {L"", L"", L"", L"SEK0"},
    {L"NOFARE", L"", L"SEK5XT", L"SEK5"},
    {L"SEK2147483647", L"", L"SEK0.4XT", L"SEK2147483647"},
    {L"SEK2147483646", L"", L"SEK0.5XT;SEK1YQ", L"SEK2147483647"},
};

TEST(CalculateTotalFare, TheTotalIsRoundedAfterEveryTax) {
  for (const auto& [fare, equivalent, taxes, total] : kTotalFares) {
    FaresBench bench;
    bench.mco.strFare = fare;
    bench.mco.strEquivalentFare = equivalent;
    bench.mco.strTaxList = taxes;
    bench.sums.CalculateTotalFare();
    EXPECT_EQ(bench.mco.strTotalFare, total) << fare << L" " << taxes;
    EXPECT_EQ(bench.TakeCalls(), Lines{});
  }
}

TEST(CalculateTotalFare, ATotalPastTheWidthIsReportedAndStopsTheRun) {
  for (const wchar_t* tax : {L"SEK1XT", L"SEK0.5XT", L"SEK2147483647XT"}) {
    FaresBench bench;
    bench.mco.strFare = L"SEK2147483647";
    bench.mco.strTaxList = tax;
    bench.sums.CalculateTotalFare();
    EXPECT_EQ(bench.TakeCalls(), Lines{kReport20}) << tax;
    EXPECT_EQ(bench.mco.strTotalFare, L"");
    EXPECT_TRUE(bench.stop.isSet);
  }
}

constexpr TotalFare kRemarks[] = {
    {L"SEK1000", L"", L"SEK120XT;SEK40YQ", L"SEK1000/TAX SEK120XT, SEK40YQ"},
    {L"NOK1000", L"SEK1200", L"SEK120XT;SEK40YQ", L"NOK1000/EQUIV SEK1200/TAX SEK120XT, SEK40YQ"},
    {L"NOK1000", L"SEK1200", L"", L"NOK1000/EQUIV SEK1200"},
    {L"SEK1000", L"", L"", L"SEK1000"},
    {L"SEK1000", L"", L"SEK0YR", L"SEK1000/TAX SEK0YR"},
    {L"", L"", L"SEK120XT", L"/TAX SEK120XT"},
    {L"", L"", L"", L""},
};

TEST(BuildPTATotalRemark, TheRemarkIsKeptAndShown) {
  for (const auto& [fare, equivalent, taxes, remark] : kRemarks) {
    FaresBench bench;
    bench.mco.strFare = fare;
    bench.mco.strEquivalentFare = equivalent;
    bench.mco.strTaxList = taxes;
    bench.sums.BuildPTATotalRemark();
    EXPECT_EQ(bench.pnr.strRMPTATotal, remark);
    EXPECT_EQ(bench.form.txtPTA.Text(), remark);
    EXPECT_EQ(bench.TakeCalls(), Lines{});
  }
}

TEST(BuildPTATotalRemark, AFieldThatRefusesIsReportedAndStopsTheRun) {
  FaresBench bench;
  bench.form.txtPTA.onChange = [] { throw common::RunTimeError(L"no field"); };
  bench.sums.BuildPTATotalRemark();
  EXPECT_EQ(bench.TakeCalls(),
            Lines{L"ScriptErrorReporter.1.18 ShowError(-2147221481, \"  PTA Script \", \"Error "
                  L"when calculating the PTA Total Remarks!\", 16)"});
  EXPECT_TRUE(bench.stop.isSet);
}

TEST(AddTSTValues, TheOrdinaryBookingIsTakenAsItStands) {
  FaresBench bench;
  bench.totals.strFare = L"SEK1000";
  bench.totals.strTotalFare = L"SEK1160";
  bench.totals.strTaxList = L"SEK120XT;SEK40YQ;";
  bench.sums.AddTSTValues();
  EXPECT_EQ(bench.mco.strFare, L"SEK1000");
  EXPECT_EQ(bench.mco.strTotalFare, L"SEK1160");
  EXPECT_EQ(bench.JoinedTaxes(), L"SEK120XT;SEK40YQ");
  EXPECT_EQ(bench.mco.strEquivalentFare, L"");
  EXPECT_EQ(bench.TakeCalls(), Lines{}) << "sums ask the library nothing";
}

}  // namespace
}  // namespace fares
