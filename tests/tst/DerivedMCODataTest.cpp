// What the MCO takes over once the TSTs have been read.
#include "tests/tst/SelectionBench.h"

namespace tst {
namespace {

TEST(DerivedMCOData, AMissingAirlineIsTakenFromTheFirstFlight) {
  SelectionBench bench;
  bench.HasOneTST({.firstFlightNo = L"LH3012", .fv = L""});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.mco.strAirlineCode, L"LH");
}

TEST(DerivedMCOData, AnAirlineThatIsThereIsKept) {
  SelectionBench bench;
  bench.HasOneTST({.firstFlightNo = L"LH3012"});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.mco.strAirlineCode, L"SK");
}

TEST(DerivedMCOData, ThePassengerAssociationIsRewrittenOnce) {
  SelectionBench bench;
  bench.HasOneTST({.names = L"1.A/A MR2.B/B MR3.C/C MR"});
  bench.pnrNames = {L"1.A/A MR", L"2.B/B MR", L"3.C/C MR"};
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.mco.strPasAsso, L"1-3");
  EXPECT_EQ(bench.TakeCalls().back(), L"ScriptGlobal.1.22 FormatAssociation(\"1,2,3\") -> \"1-3\"");
}

TEST(DerivedMCOData, JoinedSegmentsBecomeNone) {
  SelectionBench bench;
  bench.HasList({{.number = L"1", .segment = L"2 + 3"}, {.number = L"2", .segment = L"2 + 3"}});
  bench.AgentPicks({0, 1});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.mco.strSegAsso, L"");
  EXPECT_EQ(bench.general.strSegAsso, L"2 + 3");
  EXPECT_EQ(bench.Filed(), (Lines{L"1", L"2"}));
}

TEST(DerivedMCOData, ABlankAtTheEndDoesNotJoinSegments) {
  SelectionBench bench;
  bench.HasOneTST({});
  bench.mco.strSegAsso = L"2 + ";
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.mco.strSegAsso, L"2 + ");
}

TEST(DerivedMCOData, TheTaxesOfAllPickedTSTsAreOneList) {
  SelectionBench bench;
  bench.HasList({{.number = L"1"}, {.number = L"2"}, {.number = L"3"}});
  bench.Shows({.number = L"2", .taxes = {L"SEK5DK", L"SEK120XT"}});
  bench.AgentPicks({0, 1, 2});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.mco.strTaxList, L"SEK360XT;SEK80YQ;SEK5DK");
}

TEST(DerivedMCOData, ATSTThatFailsLeavesTheDocumentWithoutTaxes) {
  SelectionBench bench;
  bench.HasList({{.number = L"1"}, {.number = L"2"}});
  bench.Shows({.number = L"2", .taxes = {L"SEK5DK", L"SEK2147483647XT"}});
  bench.AgentPicks({0, 1});
  bench.room.ReadTSTList();
  EXPECT_TRUE(bench.stop.isSet);
  EXPECT_EQ(bench.mco.strTaxList, L"") << "nothing is built on what was read by halves";
}

TEST(DerivedMCOData, AReissueOfSeveralTSTsIsComputedFromAllTheirTaxes) {
  SelectionBench bench;
  bench.HasList({{.number = L"1"}, {.number = L"2"}});
  for (const wchar_t* number : {L"1", L"2"}) {
    bench.Shows({.number = number, .totalFare = L"SEK0", .isReissue = true});
  }
  bench.AgentPicks({0, 1});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.mco.strTotalFare, L"SEK2320");
}

TEST(DerivedMCOData, AReissueWithTotal0GetsItsTotalComputed) {
  SelectionBench bench;
  bench.HasOneTST({.totalFare = L"SEK0", .isReissue = true});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.mco.strTotalFare, L"SEK1160");
}

TEST(DerivedMCOData, AReissueWhoseTotalIsNoNumberGetsItComputedToo) {
  SelectionBench bench;
  bench.HasOneTST({.totalFare = L"NO ADC", .isReissue = true});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.mco.strTotalFare, L"SEK1160");
}

TEST(DerivedMCOData, AReissueWithATotalKeepsIt) {
  SelectionBench bench;
  bench.HasOneTST({.totalFare = L"SEK90", .isReissue = true});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.mco.strTotalFare, L"SEK90");
}

TEST(DerivedMCOData, Total0WithoutAReissueStays0) {
  SelectionBench bench;
  bench.HasOneTST({.totalFare = L"SEK0"});
  bench.room.ReadTSTList();
  EXPECT_EQ(bench.mco.strTotalFare, L"SEK0");
}

}  // namespace
}  // namespace tst
