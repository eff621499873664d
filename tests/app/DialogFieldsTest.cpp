#include <gtest/gtest.h>

#include "app/DialogFields.h"
#include "tests/support/RoomBench.h"

namespace app {
namespace {

struct Bench : support::RoomBench {
  ui::frmPTA dialog{desktop, errors, runEnd};
  pnr::MCOInfo mco;
  pnr::PNRInfo pnr;
  tst::TSTGeneral general;
  tst::TSTTotals totals;
  DialogFields fields{global, dialog, mco, pnr, general, totals};
};

TEST(DialogFields, TheMCONumberIsSplitBehindItsFirstThreeAndItsFourthCharacter) {
  Bench bench;
  bench.mco.strMCONumber = L"117-4012345678";
  bench.mco.strAirlineCode = L"SK";
  bench.mco.strFormOfPayment = L"CASH";
  bench.fields.FillDocument();
  EXPECT_EQ(bench.dialog.txtAirlinePrefix.Text(), L"117");
  EXPECT_EQ(bench.dialog.txtMCONumber.Text(), L"4012345678");
  EXPECT_EQ(bench.dialog.txtCarrier.Text(), L"SK");
  EXPECT_EQ(bench.dialog.txtFormOfPayment.Text(), L"CASH");
}

TEST(DialogFields, ANumberOfThreeCharactersLeavesTheDocumentEmpty) {
  Bench bench;
  bench.mco.strMCONumber = L"117";
  bench.fields.FillDocument();
  EXPECT_EQ(bench.dialog.txtMCONumber.Text(), L"");
}

TEST(DialogFields, TheMCOsFormOfPaymentGoesIntoAnEmptyFirstFP) {
  Bench bench;
  bench.mco.strFormOfPayment = L"CASH";
  bench.fields.FillDocument();
  EXPECT_EQ(bench.pnr.strFP1, L"CASH");
  bench.mco.strFormOfPayment = L"CC";
  bench.fields.FillDocument();
  EXPECT_EQ(bench.pnr.strFP1, L"CASH");
}

TEST(DialogFields, OnlyThePrefix117NeedsTheOSI) {
  Bench bench;
  bench.mco.strMCONumber = L"117-4012345678";
  EXPECT_TRUE(bench.fields.NeedsOSI());
  bench.mco.strMCONumber = L"220-1174012345";
  EXPECT_FALSE(bench.fields.NeedsOSI());
}

struct CommissionCase {
  const wchar_t* found;
  const wchar_t* kept;
};
class DialogCommission : public testing::TestWithParam<CommissionCase> {};

TEST_P(DialogCommission, IsTheThirdFieldWhenItsFirstCharacterIsAStar) {
  Bench bench;
  bench.mco.strCommission = GetParam().found;
  bench.dialog.txtCommission.SetText(L"before");
  bench.fields.FillCommission();
  EXPECT_EQ(bench.mco.strCommission, GetParam().kept);
  EXPECT_EQ(bench.dialog.txtCommission.Text(), GetParam().kept);
}

INSTANTIATE_TEST_SUITE_P(
    DialogFields, DialogCommission,
    testing::Values(CommissionCase{L"*C*10", L"10"}, CommissionCase{L"*10", L""},
                    CommissionCase{L"  *C*10", L"10"}, CommissionCase{L"10", L"10"},
                    CommissionCase{L"C*10*5", L"C*10*5"}, CommissionCase{L"", L""},
                    CommissionCase{L"*C*10*X", L"10"}));

TEST(DialogFields, APNRWithoutAPWCTRemarkGetsAProposal) {
  Bench bench;
  bench.mco.strAirlineCode = L"SK";
  bench.general.strOriginAirport = L"ARN";
  bench.general.strOriginCity = L"STO";
  bench.fields.FillPWCT();
  EXPECT_EQ(bench.dialog.txtPWCT.Text(), L"SK AT ARN A/P BEFORE DEPARTURE");
}

TEST(DialogFields, WithoutAnOriginAirportTheProposalHasTwoBlanks) {
  Bench bench;
  bench.mco.strAirlineCode = L"SK";
  bench.fields.FillPWCT();
  EXPECT_EQ(bench.dialog.txtPWCT.Text(), L"SK AT  A/P BEFORE DEPARTURE");
}

TEST(DialogFields, APWCTRemarkOfThePNRIsShownAsItIs) {
  Bench bench;
  bench.pnr.strRMPWCTNumber = L"12";
  bench.pnr.strRMPWCTAction = L"REISSUE";
  bench.fields.FillPWCT();
  EXPECT_EQ(bench.dialog.txtPWCT.Text(), L"REISSUE");
}

TEST(DialogFields, EveryPlaceholderOfTheOfficeBecomesTheOriginCity) {
  Bench bench;
  bench.general.strOriginCity = L"OSL";
  bench.fields.FillQueueing(L"XXXSKXXXA", L"");
  EXPECT_EQ(bench.dialog.txtQueueingOfficeID.Text(), L"OSLSKOSLA");
  EXPECT_EQ(bench.dialog.txtQueueCat.Text(), L"80");
}

TEST(DialogFields, APlaceholderThatIsNotAtTheBeginningOrNotInCapitalsStays) {
  Bench bench;
  bench.general.strOriginCity = L"OSL";
  bench.fields.FillQueueing(L"CPHSKXXX1", L"81C2");
  EXPECT_EQ(bench.dialog.txtQueueingOfficeID.Text(), L"CPHSKXXX1");
  EXPECT_EQ(bench.dialog.txtQueueCat.Text(), L"81C2");
  bench.fields.FillQueueing(L"xxxSK08AA", L"");
  EXPECT_EQ(bench.dialog.txtQueueingOfficeID.Text(), L"xxxSK08AA");
}

TEST(DialogFields, TheAirportTRFIsACityOfItsOwn) {
  Bench bench;
  bench.general.strOriginAirport = L"TRF";
  bench.general.strOriginCity = L"OSL";
  bench.fields.FillQueueing(L"XXXSK08AA", L"");
  EXPECT_EQ(bench.general.strOriginCity, L"TRF");
  EXPECT_EQ(bench.dialog.txtQueueingOfficeID.Text(), L"TRFSK08AA");
}

TEST(DialogFields, TheAirportTRFBecomesTheCityWithoutAnOfficeToo) {
  Bench bench;
  bench.general.strOriginAirport = L"TRF";
  bench.fields.FillQueueing(L"", L"75");
  EXPECT_EQ(bench.general.strOriginCity, L"TRF");
  EXPECT_EQ(bench.dialog.txtQueueCat.Text(), L"");
}

TEST(DialogFields, TwoFormsOfPaymentAreShownWithTheAmountsTheyPay) {
  Bench bench;
  bench.mco.strFormOfPayment = L"CASH + CC";
  bench.general.blnMultipleFP = true;
  bench.totals.strTotalFareFirstTST = L"SEK1160";
  bench.totals.strTotalFareLastTSTs = L"SEK580";
  bench.fields.RebuildFormOfPayment();
  EXPECT_EQ(bench.mco.strFormOfPayment, L"CASH/SEK1160 + CC/SEK580");
  EXPECT_EQ(bench.dialog.txtFormOfPayment.Text(), L"CASH/SEK1160 + CC/SEK580");
}

TEST(DialogFields, OneFormOfPaymentOrNoLaterTotalIsNotRebuilt) {
  Bench bench;
  bench.mco.strFormOfPayment = L"CASH + CC";
  bench.totals.strTotalFareFirstTST = L"SEK1160";
  bench.general.blnMultipleFP = true;
  bench.fields.RebuildFormOfPayment();
  EXPECT_EQ(bench.mco.strFormOfPayment, L"CASH + CC");
  bench.general.blnMultipleFP = false;
  bench.totals.strTotalFareLastTSTs = L"SEK580";
  bench.fields.RebuildFormOfPayment();
  EXPECT_EQ(bench.mco.strFormOfPayment, L"CASH + CC");
}

TEST(DialogFields, OnlyWhatIsStillEmptyTakesWhatTheTSTsGave) {
  Bench bench;
  bench.dialog.txtCarrier.SetText(L"SK");
  bench.mco.strAirlineCode = L"LH";
  bench.mco.strFormOfPayment = L"CASH";
  bench.mco.strCommission = L"*C*9";
  bench.fields.FillWhatIsStillEmpty();
  EXPECT_EQ(bench.dialog.txtCarrier.Text(), L"SK");
  EXPECT_EQ(bench.dialog.txtFormOfPayment.Text(), L"CASH");
  EXPECT_EQ(bench.dialog.txtCommission.Text(), L"9");
  EXPECT_EQ(bench.mco.strCommission, L"9");
}

// A change, be it to nothing, evaluates OK and speaks in the status line.
TEST(DialogFields, WhatTheTSTsDidNotGiveEitherIsNotTouched) {
  Bench bench;
  int changes = 0;
  for (ui::TextBox* field :
       {&bench.dialog.txtCarrier, &bench.dialog.txtFormOfPayment, &bench.dialog.txtCommission}) {
    field->onChange = [&] { ++changes; };
  }
  bench.fields.FillWhatIsStillEmpty();
  EXPECT_EQ(changes, 0);
}

}  // namespace
}  // namespace app
