#include <gtest/gtest.h>

#include "tests/pnr/TSTReadersBench.h"

namespace pnr {
namespace {

/// A TST of the passengers 2 and 3, in SEK.
struct FareBench : TSTReadersBench {
  FareBench() {
    tst.strPasAsso = L"2,3";
    mco.strCurrency = L"SEK";
  }
  /// Whether an FS element with these associations is taken.
  bool Takes(std::wstring_view passengers, std::wstring_view segments = {}) {
    HasFS({{L"SEK900", L"SEK950", L"TOUR1", std::wstring(passengers), std::wstring(segments)}});
    room.GetFareInformation(tst);
    return totals.strNetFare == L"SEK900";
  }
};

TEST(GetFareInformation, AsksTheLibraryInThisExactOrder) {
  FareBench bench;
  bench.HasFS({{L"SEK900", L"SEK950", L"TOUR1", L"2,3", L"4"}, {L"SEK100", L"", L"", L"INF", L""}});
  bench.room.GetFareInformation(bench.tst);
  EXPECT_EQ(bench.TakeCalls(), Together({
                                   Call(L"PnrReader.1.44 CountFSElements() -> 2"),
                                   Put(L"intKeyIndex", L"0"),
                                   Put(L"strKeyPNRElement", L"\"FS\""),
                                   Call(L"PnrReader.3.7 FindElements(<ParameterBag>)"),
                                   Read(L"strKeyNetFare", L"SEK900"),
                                   Read(L"strKeySellFare", L"SEK950"),
                                   Read(L"strKeyElement", L"FS SEK900"),
                                   Read(L"strKeyTourCode", L"TOUR1"),
                                   Read(L"strKeyPasAsso", L"2,3"),
                                   Read(L"strKeySegAsso", L"4"),
                                   Put(L"intKeyIndex", L"1"),
                                   Put(L"strKeyPNRElement", L"\"FS\""),
                                   Call(L"PnrReader.3.7 FindElements(<ParameterBag>)"),
                                   Read(L"strKeyNetFare", L"SEK100"),
                                   Read(L"strKeySellFare", L""),
                                   Read(L"strKeyElement", L"FS SEK100"),
                                   Read(L"strKeyTourCode", L""),
                                   Read(L"strKeyPasAsso", L"INF"),
                                   Read(L"strKeySegAsso", L""),
                               }));
}

TEST(GetFareInformation, AMatchingElementGivesNetFareSellingFareAndTourCode) {
  FareBench bench;
  bench.HasFS({{L"SEK900", L"SEK950", L"TOUR1", L"2,3", L""}});
  bench.room.GetFareInformation(bench.tst);
  EXPECT_EQ(bench.totals.strNetFare, L"SEK900");
  EXPECT_EQ(bench.totals.strSellingFare, L"SEK950");
  EXPECT_EQ(bench.totals.strTourCode, L"TOUR1");
}

TEST(GetFareInformation, TheThreeValuesAreClearedAndNoOthers) {
  FareBench bench;
  bench.totals = {.strXFTax = L"a",
                  .strTotalFareLastTSTs = L"b",
                  .strTotalFareFirstTST = L"c",
                  .strTotalFare = L"d",
                  .strTaxList = L"e",
                  .strEquivalentFare = L"f",
                  .strTourCode = L"g",
                  .strSellingFare = L"h",
                  .strNetFare = L"i",
                  .strFare = L"j"};
  bench.room.GetFareInformation(bench.tst);
  EXPECT_EQ(bench.totals.strNetFare, L"");
  EXPECT_EQ(bench.totals.strSellingFare, L"");
  EXPECT_EQ(bench.totals.strTourCode, L"");
  EXPECT_EQ(bench.totals.strXFTax + bench.totals.strTotalFareLastTSTs +
                bench.totals.strTotalFareFirstTST + bench.totals.strTotalFare +
                bench.totals.strTaxList + bench.totals.strEquivalentFare + bench.totals.strFare,
            L"abcdefj");
  EXPECT_EQ(bench.TakeCalls(), Call(L"PnrReader.1.44 CountFSElements() -> 0"));
}

TEST(GetFareInformation, AnElementOfNobodyInParticularIsEveryAdults) {
  FareBench bench;
  EXPECT_TRUE(bench.Takes(L""));
}

TEST(GetFareInformation, AnAdultTakesTheElementOfItsOwnPassengers) {
  FareBench bench;
  EXPECT_TRUE(bench.Takes(L"2,3"));
}

TEST(GetFareInformation, AnAdultTakesAnElementThatHoldsAllItsPassengers) {
  FareBench bench;
  EXPECT_TRUE(bench.Takes(L"1,3,4,2"));
}

TEST(GetFareInformation, AnAdultLeavesAnElementThatHoldsOnlySomeOfItsPassengers) {
  FareBench bench;
  EXPECT_FALSE(bench.Takes(L"2"));
  EXPECT_FALSE(bench.Takes(L"1,2,4"));
}

TEST(GetFareInformation, APassengersNumberIsNotFoundInsideALongerOne) {
  FareBench bench;
  EXPECT_FALSE(bench.Takes(L"12,23"));
  EXPECT_FALSE(bench.Takes(L"2,33"));
}

TEST(GetFareInformation, AnAssociationInAnyOtherFormMatchesWhenItIsTheSameText) {
  FareBench bench;
  bench.tst.strPasAsso = L"2-4";
  EXPECT_TRUE(bench.Takes(L"2-4"));
  EXPECT_FALSE(bench.Takes(L"2-5"));
}

TEST(GetFareInformation, AnAdultLeavesAnInfantsElement) {
  FareBench bench;
  EXPECT_FALSE(bench.Takes(L"INF"));
  EXPECT_FALSE(bench.Takes(L"2,3,INF"));
}

TEST(GetFareInformation, AnInfantTakesAnInfantsElementOrOneOfNobodyInParticular) {
  FareBench bench;
  bench.tst.blnInf = true;
  EXPECT_TRUE(bench.Takes(L"1,INF"));
  EXPECT_TRUE(bench.Takes(L""));
}

TEST(GetFareInformation, AnInfantLeavesAnAdultsElementEvenOfTheSameAssociation) {
  FareBench bench;
  bench.tst.blnInf = true;
  EXPECT_FALSE(bench.Takes(L"2,3"));
  bench.tst.strPasAsso = L"";
  EXPECT_FALSE(bench.Takes(L"2"));
  EXPECT_FALSE(bench.Takes(L"inf"));
}

TEST(GetFareInformation, AnElementWithoutSegmentsIsForAllSegments) {
  FareBench bench;
  bench.general.strSegAsso = L"4,5";
  EXPECT_TRUE(bench.Takes(L"2,3", L""));
}

TEST(GetFareInformation, WithoutASegmentAssociationOfTheTSTsAnySegmentsMatch) {
  FareBench bench;
  EXPECT_TRUE(bench.Takes(L"2,3", L"4"));
}

TEST(GetFareInformation, SegmentsMatchWhenBothAreTheSame) {
  FareBench bench;
  bench.general.strSegAsso = L"4,5";
  EXPECT_TRUE(bench.Takes(L"2,3", L"4,5"));
  EXPECT_FALSE(bench.Takes(L"2,3", L"4"));
  EXPECT_FALSE(bench.Takes(L"2,3", L"4,5,6"));
}

TEST(GetFareInformation, TheMCOsSegmentAssociationIsNotLookedAt) {
  FareBench bench;
  bench.general.strSegAsso = L"4,5";
  bench.mco.strSegAsso = L"4";
  EXPECT_FALSE(bench.Takes(L"2,3", L"4"));
}

TEST(GetFareInformation, TheLastMatchStandsAsAWhole) {
  FareBench bench;
  bench.HasFS({{L"SEK1", L"SEK2", L"A", L"2,3", L""},
               {L"SEK3", L"", L"", L"", L""},
               {L"SEK5", L"SEK6", L"C", L"9", L""}});
  bench.room.GetFareInformation(bench.tst);
  EXPECT_EQ(bench.totals.strNetFare, L"SEK3");
  EXPECT_EQ(bench.totals.strSellingFare, L"");
  EXPECT_EQ(bench.totals.strTourCode, L"");
}

TEST(GetFareInformation, AnAmountWithoutCurrencyGetsTheMCOs) {
  FareBench bench;
  bench.HasFS({{L"900.50", L"SE950", L"T", L"", L""}});
  bench.room.GetFareInformation(bench.tst);
  EXPECT_EQ(bench.totals.strNetFare, L"SEK900.50");
  EXPECT_EQ(bench.totals.strSellingFare, L"SEKSE950");
  EXPECT_EQ(bench.totals.strTourCode, L"T");
}

TEST(GetFareInformation, AnAmountOfUnderThreeCharactersGetsTheCurrencyToo) {
  FareBench bench;
  bench.HasFS({{L"90", L"AB", L"", L"", L""}});
  bench.room.GetFareInformation(bench.tst);
  EXPECT_EQ(bench.totals.strNetFare, L"SEK90");
  EXPECT_EQ(bench.totals.strSellingFare, L"SEKAB");
}

TEST(GetFareInformation, AnEmptyAmountAndAnAmountWithItsOwnCurrencyStayAsTheyAre) {
  FareBench bench;
  bench.HasFS({{L"", L"NOK950", L"", L"", L""}});
  bench.room.GetFareInformation(bench.tst);
  EXPECT_EQ(bench.totals.strNetFare, L"");
  EXPECT_EQ(bench.totals.strSellingFare, L"NOK950");
}

TEST(GetFareInformation, AnOwnFailureShowsTheOwnTextAndTheRunGoesOn) {
  FareBench bench;
  bench.scripted.Answer(reader::kCountFSElements, L"many");
  bench.room.GetFareInformation(bench.tst);
  EXPECT_EQ(OnlyReports(bench.TakeCalls()),
            OwnFailure(33, L"Error when getting the fare info!", 16));
  EXPECT_FALSE(bench.stop.isSet);
}

TEST(GetFareInformation, AFailureOfTheLibraryIsReportedByTheLibrary) {
  FareBench bench;
  bench.scripted.Fail(reader::kCountFSElements, 80, L"fare broken");
  bench.room.GetFareInformation(bench.tst);
  EXPECT_EQ(OnlyReports(bench.TakeCalls()), LibraryFailure(80));
  EXPECT_FALSE(bench.stop.isSet);
}

}  // namespace
}  // namespace pnr
