#include "tests/tst/DetailBench.h"

namespace tst {
namespace {

TEST(ReadTSTDetail, EveryFieldOfTheRecordIsFilled) {
  DetailBench bench;
  const TSTInfo tst = bench.Read({.number = L"3",
                                  .names = L"1.SMITH/JOHN MR",
                                  .fareBasis = L"YRT",
                                  .fare = L"NOK900",
                                  .fareIndicator = L"A",
                                  .equivalentFare = L"SEK1000",
                                  .xfTax = L"XFEWR3",
                                  .totalFare = L"SEK1160",
                                  .fareCalc = L"STO SK CPH",
                                  .taxes = {L"SEK100YQ", L"SEK50SE"},
                                  .fm = L"*M*7",
                                  .fp = L"O/PT/CASH",
                                  .fv = L"SK"});
  EXPECT_EQ(tst.strTSTNum, L"3");
  EXPECT_EQ(tst.strNames, L"1.SMITH/JOHN MR");
  EXPECT_EQ(tst.strFareBasis, L"YRT");
  EXPECT_EQ(tst.strFare, L"NOK900");
  EXPECT_EQ(tst.strFareIndicator, L"A");
  EXPECT_EQ(tst.strEquivalentFare, L"SEK1000");
  EXPECT_EQ(tst.strXFTax, L"XFEWR3");
  EXPECT_EQ(tst.strTotalFare, L"SEK1160");
  EXPECT_EQ(tst.strFareCalc, L"STO SK CPH");
  EXPECT_EQ(tst.strTaxList, L"SEK100YQ;SEK50SE;");
  EXPECT_EQ(tst.strFMElementNumber, L"10");
  EXPECT_EQ(tst.strFMElementValue, L"*M*7");
  EXPECT_EQ(tst.strFPElementNumber, L"11");
  EXPECT_EQ(tst.strFPElementValue, L"O/PT/CASH");
  EXPECT_EQ(tst.strFVElementNumber, L"12");
  EXPECT_EQ(tst.strFVElementValue, L"SK");
  EXPECT_FALSE(tst.blnInf);
}

TEST(ReadTSTDetail, TheValuesOfTheTSTGoIntoTheTotals) {
  DetailBench bench;
  bench.Read({.fare = L"NOK900",
              .equivalentFare = L"SEK1000",
              .xfTax = L"XFEWR3",
              .totalFare = L"SEK1160",
              .taxes = {L"SEK100YQ"}});
  EXPECT_EQ(bench.totals.strFare, L"NOK900");
  EXPECT_EQ(bench.totals.strEquivalentFare, L"SEK1000");
  EXPECT_EQ(bench.totals.strXFTax, L"XFEWR3");
  EXPECT_EQ(bench.totals.strTotalFare, L"SEK1160");
  EXPECT_EQ(bench.totals.strTaxList, L"SEK100YQ;");
}

TEST(ReadTSTDetail, OneBagAndARequestForEachGroupAreUsed) {
  DetailBench bench;
  bench.global.ToText({});
  bench.recorder = hostlib::Recorder(hostlib::Recorder::Objects::kShow);
  bench.Read({});
  Lines objects;
  for (const std::wstring& line : bench.TakeCalls()) {
    if (line.starts_with(L"+ ") || line.starts_with(L"- ")) objects.push_back(line);
  }
  Lines expected = {L"+ ParameterBag"};
  for (int group = 0; group < 4; ++group) {
    expected.push_back(L"+ TstDetailRequest");
    expected.push_back(L"- TstDetailRequest");
  }
  expected.push_back(L"- ParameterBag");
  EXPECT_EQ(objects, expected);
}

TEST(ReadTSTDetail, AnInfantInTheNamesMarksTheTSTAndTheMCO) {
  DetailBench bench;
  EXPECT_TRUE(bench.Read({.names = L"1.SMITH/ANNA MRS(INF)"}).blnInf);
  EXPECT_TRUE(bench.mco.blnInf);
}

TEST(ReadTSTDetail, TheMCOStaysAnInfantsWhenTheNextTSTIsAnAdults) {
  DetailBench bench;
  bench.Read({.names = L"1.SMITH/ANNA MRS(INF)"});
  EXPECT_FALSE(bench.Read({.number = L"2"}).blnInf);
  EXPECT_TRUE(bench.mco.blnInf);
}

TEST(ReadTSTDetail, WhatTheSelectionHasInCommonIsTheFirstTSTs) {
  DetailBench bench;
  bench.Read({.firstTravelDate = L"15MAR07",
              .firstFlightNo = L"SK1",
              .notValidAfter = L"01JAN08",
              .fareCalc = L"STO SK"});
  bench.Read({.firstTravelDate = L"16MAR07",
              .firstFlightNo = L"LH2",
              .notValidAfter = L"02JAN08",
              .fareCalc = L"OSL LH"});
  EXPECT_EQ(bench.general.strFirstTravelDate, L"15MAR07");
  EXPECT_EQ(bench.general.strFirstFlightNo, L"SK1");
  EXPECT_EQ(bench.general.strNotValidAfterDate, L"01JAN08");
  EXPECT_EQ(bench.general.strOriginCity, L"STO");
}

TEST(ReadTSTDetail, WhatTheFirstTSTDoesNotSupplyComesFromTheNext) {
  DetailBench bench;
  bench.Read({.firstTravelDate = L"", .firstFlightNo = L"", .notValidAfter = L"", .fareCalc = L""});
  bench.Read({.firstTravelDate = L"16MAR07",
              .firstFlightNo = L"LH2",
              .notValidAfter = L"02JAN08",
              .fareCalc = L"OSL LH"});
  EXPECT_EQ(bench.general.strFirstTravelDate, L"16MAR07");
  EXPECT_EQ(bench.general.strFirstFlightNo, L"LH2");
  EXPECT_EQ(bench.general.strNotValidAfterDate, L"02JAN08");
  EXPECT_EQ(bench.general.strOriginCity, L"OSL");
}

TEST(ReadTSTDetail, TheOriginAirportIsThatOfTheItineraryBefore) {
  DetailBench bench;
  bench.Read({.itinerary = L"ARNCPH"});
  EXPECT_EQ(bench.general.strOriginAirport, L"");
  EXPECT_EQ(bench.mco.strItinerary, L"ARNCPH");
  bench.Read({.itinerary = L"OSLBGO"});
  EXPECT_EQ(bench.general.strOriginAirport, L"ARN");
  EXPECT_EQ(bench.mco.strItinerary, L"OSLBGO");
  bench.Read({.itinerary = L"TRFCPH"});
  EXPECT_EQ(bench.general.strOriginAirport, L"ARN");
  EXPECT_EQ(bench.mco.strItinerary, L"TRFCPH");
}

TEST(ReadTSTDetail, TheOriginCityIsTheBeginningOfTheFareCalculation) {
  DetailBench bench;
  bench.Read({.fareCalc = L"CPH SK OSL"});
  EXPECT_EQ(bench.general.strOriginCity, L"CPH");
}

TEST(ReadTSTDetail, AfterADateTheOriginCityStandsFromPosition8) {
  DetailBench bench;
  bench.Read({.fareCalc = L"15MAR07CPH SK OSL"});
  EXPECT_EQ(bench.general.strOriginCity, L"CPH");
}

TEST(ReadTSTDetail, OneDigitAloneIsNoDate) {
  DetailBench bench;
  bench.Read({.fareCalc = L"1.PH SK OSL"});
  EXPECT_EQ(bench.general.strOriginCity, L"1.P");
}

TEST(ReadTSTDetail, WithoutTaxesTheListIsEmpty) {
  DetailBench bench;
  EXPECT_EQ(bench.Read({.taxes = {}}).strTaxList, L"");
}

TEST(ReadTSTDetail, TaxesThatAreNoArrayAreNone) {
  DetailBench bench;
  bench.taxes = hostlib::Value(L"");
  EXPECT_EQ(bench.Read({}).strTaxList, L"");
}

TEST(ReadTSTDetail, TaxesMayComeAsAListObject) {
  DetailBench bench;
  bench.taxes = bench.scripted.List(hostlib::TextArray{.items = {L"SEK100YQ"}});
  EXPECT_EQ(bench.Read({}).strTaxList, L"SEK100YQ;");
}

TEST(ReadTSTDetail, TheReissueOfTheMCOIsTheLastTSTs) {
  DetailBench bench;
  bench.Read({.isReissue = true});
  EXPECT_TRUE(bench.mco.blnReissue);
  bench.Read({.number = L"2"});
  EXPECT_FALSE(bench.mco.blnReissue);
}

TEST(ReadTSTDetail, FVAndFMFillAnEmptyAirlineAndCommission) {
  DetailBench bench;
  bench.Read({.fm = L"7", .fv = L"LH"});
  EXPECT_EQ(bench.mco.strAirlineCode, L"LH");
  EXPECT_EQ(bench.mco.strCommission, L"7");
  EXPECT_TRUE(bench.pnr.blnFVExists);
  EXPECT_TRUE(bench.pnr.blnFMExists);
}

TEST(ReadTSTDetail, FVAndFMLeaveAnAirlineAndCommissionThatAreThere) {
  DetailBench bench;
  bench.mco.strAirlineCode = L"SK";
  bench.mco.strCommission = L"10";
  bench.Read({.fm = L"7", .fv = L"LH"});
  EXPECT_EQ(bench.mco.strAirlineCode, L"SK");
  EXPECT_EQ(bench.mco.strCommission, L"10");
  EXPECT_TRUE(bench.pnr.blnFVExists);
  EXPECT_TRUE(bench.pnr.blnFMExists);
}

TEST(ReadTSTDetail, WithoutFVAndFMNothingIsKnownOfThem) {
  DetailBench bench;
  bench.Read({.fm = L"", .fv = L""});
  EXPECT_FALSE(bench.pnr.blnFVExists);
  EXPECT_FALSE(bench.pnr.blnFMExists);
  EXPECT_EQ(bench.mco.strAirlineCode, L"");
}

TEST(ReadTSTDetail, TheCurrencyIsThatOfTheFare) {
  DetailBench bench;
  bench.Read({.fare = L"NOK900"});
  EXPECT_EQ(bench.mco.strCurrency, L"NOK");
}

TEST(ReadTSTDetail, TheCurrencyIsThatOfTheEquivalentFareWhereThereIsOne) {
  DetailBench bench;
  bench.Read({.fare = L"NOK900", .equivalentFare = L"SEK1000"});
  EXPECT_EQ(bench.mco.strCurrency, L"SEK");
}

TEST(ReadTSTDetail, TheCurrencyIsTheFirstTSTs) {
  DetailBench bench;
  bench.Read({.fare = L"NOK900"});
  bench.Read({.fare = L"DKK900"});
  EXPECT_EQ(bench.mco.strCurrency, L"NOK");
}

TEST(ReadTSTDetail, AFailureIsReportedAndTellsTheCaller) {
  DetailBench bench;
  bench.scripted.Fail(hostlib::operations::tst_detail_request::kReadGeneral, 77, L"gone");
  TSTInfo tst;
  EXPECT_FALSE(bench.details.ReadTSTDetail(L"R", tst));
  EXPECT_EQ(bench.ReportedBoxes().size(), 1U);
}

}  // namespace
}  // namespace tst
