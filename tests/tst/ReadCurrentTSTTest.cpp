#include "tests/tst/DetailBench.h"

namespace tst {
namespace {

ShownTST ForTwo(const std::wstring& number) {
  return {.number = number, .names = L"1.A/A MR2.B/B MR"};
}

TEST(ReadCurrentTST, TheTSTIsFiledWithItsNames) {
  DetailBench bench;
  bench.ReadAndFile({});
  ASSERT_FALSE(bench.tsts.IsEmpty());
  EXPECT_EQ(bench.tsts.begin()->strTSTNum, L"1");
  EXPECT_EQ(bench.tsts.begin()->intNoNames, 1);
  EXPECT_EQ(bench.tsts.begin()->strPasAsso, L"1");
}

TEST(ReadCurrentTST, OnePassengersAmountsAreNotMultiplied) {
  DetailBench bench;
  bench.ReadAndFile({.fare = L"SEKIT"});
  EXPECT_EQ(bench.ReportedBoxes(), Lines{});
  EXPECT_EQ(bench.mco.strFare, L"SEKIT");
}

TEST(ReadCurrentTST, TheAmountsOfTwoPassengersAreDoubledInTheSumsAlone) {
  DetailBench bench;
  bench.pnrNames = {L"1.A/A MR", L"2.B/B MR"};
  bench.ReadAndFile(ForTwo(L"1"));
  EXPECT_EQ(bench.mco.strFare, L"SEK2000");
  bench.sums.JoinTaxes();
  EXPECT_EQ(bench.mco.strTaxList, L"SEK240XT;SEK80YQ");
  EXPECT_EQ(bench.mco.strTotalFare, L"SEK2320");
  EXPECT_EQ(bench.tsts.begin()->strFare, L"SEK1000");
  EXPECT_EQ(bench.tsts.begin()->strTaxList, L"SEK120XT;SEK40YQ;");
}

TEST(ReadCurrentTST, TheFirstTotalIsTakenAfterTheMultiplication) {
  DetailBench bench;
  bench.pnrNames = {L"1.A/A MR", L"2.B/B MR"};
  bench.ReadAndFile(ForTwo(L"1"));
  EXPECT_EQ(bench.totals.strTotalFareFirstTST, L"SEK2320");
  EXPECT_EQ(bench.totals.strTotalFareLastTSTs, L"");
}

TEST(ReadCurrentTST, TheLaterTotalsAreSummedApartFromTheFirst) {
  DetailBench bench;
  bench.ReadAndFile({.number = L"1", .totalFare = L"SEK100"});
  bench.ReadAndFile({.number = L"2", .totalFare = L"SEK200.25"});
  EXPECT_EQ(bench.totals.strTotalFareLastTSTs, L"SEK200.25");
  bench.ReadAndFile({.number = L"3", .totalFare = L"SEK50.5"});
  EXPECT_EQ(bench.totals.strTotalFareFirstTST, L"SEK100");
  EXPECT_EQ(bench.totals.strTotalFareLastTSTs, L"SEK250.75");
}

TEST(ReadCurrentTST, TheLaterTotalsCarryTheMCOsCurrency) {
  DetailBench bench;
  bench.ReadAndFile({.number = L"1", .equivalentFare = L"DKK10"});
  bench.ReadAndFile({.number = L"2", .totalFare = L"SEK200"});
  EXPECT_EQ(bench.totals.strTotalFareLastTSTs, L"DKK200");
}

TEST(ReadCurrentTST, TheFirstTSTWithATotalIsTheFirst) {
  DetailBench bench;
  bench.ReadAndFile({.number = L"1", .totalFare = L""});
  bench.ReadAndFile({.number = L"2", .totalFare = L"SEK200"});
  EXPECT_EQ(bench.totals.strTotalFareFirstTST, L"SEK200");
  EXPECT_EQ(bench.totals.strTotalFareLastTSTs, L"");
}

TEST(ReadCurrentTST, TheSumsAreMadeBeforeTheTSTIsFiled) {
  DetailBench bench;
  bench.ReadAndFile({.number = L"1"});
  bench.ReadAndFile({.number = L"1"});
  EXPECT_EQ(bench.ReportedBoxes(), Lines{L"16 Error when reading the current TQT Response!"});
  EXPECT_EQ(bench.mco.strFare, L"SEK2000");
  EXPECT_TRUE(bench.stop.isSet);
}

TEST(ReadCurrentTST, AnInfantsTSTCountsTheInfants) {
  DetailBench bench;
  bench.pnrNames = {L"1.SMITH/ANNA MRS(INFSMITH/BABY)", L"2.SMITH/JOHN MR"};
  bench.ReadAndFile({.names = L"1.SMITH/ANNA MRS(INF)"});
  EXPECT_EQ(bench.tsts.begin()->intNoNames, 1);
  EXPECT_EQ(bench.mco.strINFPasAsso, L"1");
  EXPECT_EQ(bench.mco.strPasAsso, L"");
}

TEST(ReadCurrentTST, ANoFareTSTTouchesNoSum) {
  DetailBench bench;
  EXPECT_THROW(bench.ReadAndFile({.fare = L"NOFARE"}), support::EndedByEndScript);
  EXPECT_EQ(bench.mco.strFare, L"");
  EXPECT_TRUE(bench.tsts.IsEmpty());
}

}  // namespace
}  // namespace tst
