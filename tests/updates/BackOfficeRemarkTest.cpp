#include "tests/updates/UpdatesBench.h"
#include "updates/BackOfficeRemark.h"

namespace updates {
namespace {

using namespace hostlib::operations;

struct RemarkBench : UpdatesBench {
  RemarkBench() {
    mco.strTotalFare = L"SEK1160";
    mco.strTaxList = L"SEK120XT;SEK40YQ";
  }
  void AddTst(std::int16_t names) {
    tst::TSTInfo tst;
    tst.strTSTNum = std::to_wstring(++count_);
    tst.intNoNames = names;
    tsts.Add(tst);
  }

  BackOfficeRemark remark{global, errors, settings, tsts, mco};

 private:
  int count_ = 0;
};

TEST(BackOfficeRemark, TheOrdinaryBookingHasFareTaxAndFee) {
  RemarkBench bench;
  bench.AddTst(1);
  bench.mco.dblMCOFee = 250;
  bench.settings.strCountryCode = L"SE";
  EXPECT_EQ(bench.remark.CreateRMStarElement(), L"*FARE:1160,TAX:160,PTA:250");
  EXPECT_EQ(bench.TakeCalls(),
            (Lines{L"ScriptGlobal.1.7 GetField(\"SEK120XT;SEK40YQ\", 1, \";\") -> \"SEK120XT\"",
                   L"ScriptGlobal.1.7 GetField(\"SEK120XT;SEK40YQ\", 2, \";\") -> \"SEK40YQ\"",
                   L"ScriptGlobal.1.7 GetField(\"SEK120XT;SEK40YQ\", 3, \";\") -> \"\""}));
}

TEST(BackOfficeRemark, AllFourGroupsComeInTheirFixedOrder) {
  RemarkBench bench;
  bench.AddTst(1);
  bench.mco.strTotalFare = L"SEK1000";
  bench.mco.strTaxList = L"SEK50XSGO;SEK250XT";
  bench.mco.dblMCOFee = 100;
  bench.settings.strCountryCode = L"SE";
  EXPECT_EQ(bench.remark.CreateRMStarElement(), L"*FARE:1000,TAX:250,PTA:100,VAT:50");
}

TEST(BackOfficeRemark, NoFeeLeavesOutItsGroup) {
  RemarkBench bench;
  bench.AddTst(1);
  EXPECT_EQ(bench.remark.CreateRMStarElement(), L"*FARE:1160,TAX:160");
}

TEST(BackOfficeRemark, NoTaxLeavesOutItsGroup) {
  RemarkBench bench;
  bench.AddTst(1);
  bench.mco.strTaxList = L"";
  bench.mco.dblMCOFee = 250;
  EXPECT_EQ(bench.remark.CreateRMStarElement(), L"*FARE:1160,PTA:250");
}

TEST(BackOfficeRemark, TaxesThatSumToNothingLeaveOutTheirGroup) {
  RemarkBench bench;
  bench.AddTst(1);
  bench.mco.strTaxList = L"SEK0YR";
  EXPECT_EQ(bench.remark.CreateRMStarElement(), L"*FARE:1160");
}

TEST(BackOfficeRemark, ATotalWithoutAnAmountCountsAsNothing) {
  RemarkBench bench;
  bench.AddTst(1);
  bench.mco = {};
  EXPECT_EQ(bench.remark.CreateRMStarElement(), L"*FARE:0");
}

TEST(BackOfficeRemark, TheFeeOfSeveralPassengersIsTruncatedNotRounded) {
  RemarkBench bench;
  bench.AddTst(3);
  bench.mco.strTotalFare = L"SEK300";
  bench.mco.strTaxList = L"";
  bench.mco.dblMCOFee = 251;  // 83.67 each
  EXPECT_EQ(bench.remark.CreateRMStarElement(), L"*FARE:100,PTA:83");
}

TEST(BackOfficeRemark, Fee250WithThreePassengersIs83) {
  RemarkBench bench;
  bench.AddTst(3);
  bench.mco.strTotalFare = L"SEK300";
  bench.mco.strTaxList = L"";
  bench.mco.dblMCOFee = 250;
  EXPECT_EQ(bench.remark.CreateRMStarElement(), L"*FARE:100,PTA:83");
}

TEST(BackOfficeRemark, ANegativeFeeIsTruncatedTowardsZero) {
  RemarkBench bench;
  bench.AddTst(3);
  bench.mco.strTotalFare = L"SEK300";
  bench.mco.strTaxList = L"";
  bench.mco.dblMCOFee = -251;
  EXPECT_EQ(bench.remark.CreateRMStarElement(), L"*FARE:100,PTA:-83");
}

TEST(BackOfficeRemark, TheFeeOfOnePassengerKeepsItsFraction) {
  RemarkBench bench;
  bench.AddTst(1);
  bench.mco.strTaxList = L"";
  bench.mco.dblMCOFee = 250.75;
  EXPECT_EQ(bench.remark.CreateRMStarElement(), L"*FARE:1160,PTA:250,75");
}

TEST(BackOfficeRemark, AFeeOfWhichNothingIsLeftIsStillTold) {
  RemarkBench bench;
  bench.AddTst(3);
  bench.mco.strTotalFare = L"SEK300";
  bench.mco.strTaxList = L"";
  bench.mco.dblMCOFee = 2;
  EXPECT_EQ(bench.remark.CreateRMStarElement(), L"*FARE:100,PTA:0");
}

TEST(BackOfficeRemark, FareAndTaxesOfSeveralPassengersAreNotTruncated) {
  RemarkBench bench;
  bench.AddTst(4);
  bench.mco.strTotalFare = L"SEK1161";
  bench.mco.strTaxList = L"SEK122XT;SEK40YQ";
  bench.settings.strSymbol = L".";
  EXPECT_EQ(bench.remark.CreateRMStarElement(), L"*FARE:290.25,TAX:40.5");
}

TEST(BackOfficeRemark, AFractionWithoutEndHas15SignificantDigits) {
  RemarkBench bench;
  bench.AddTst(3);
  bench.mco.strTotalFare = L"SEK1000";
  bench.mco.strTaxList = L"";
  EXPECT_EQ(bench.remark.CreateRMStarElement(), L"*FARE:333,333333333333");
}

TEST(BackOfficeRemark, NumbersUseTheUsersDecimalSeparatorWhateverTheHosts) {
  RemarkBench bench;
  bench.AddTst(1);
  bench.mco.strTotalFare = L"SEK1160.50";
  bench.mco.strTaxList = L"SEK120.25XT";
  EXPECT_EQ(bench.remark.CreateRMStarElement(), L"*FARE:1160,5,TAX:120,25");
}

TEST(BackOfficeRemark, VATIsPerPassengerAndNotTruncated) {
  RemarkBench bench;
  bench.AddTst(2);
  bench.mco.strTotalFare = L"SEK100";
  bench.mco.strTaxList = L"SEK51XSGO";
  bench.settings.strCountryCode = L"SE";
  EXPECT_EQ(bench.remark.CreateRMStarElement(), L"*FARE:50,VAT:25,5");
}

TEST(BackOfficeRemark, SeveralVATEntriesAreSummed) {
  RemarkBench bench;
  bench.AddTst(1);
  bench.mco.strTaxList = L"SEK51XSGO;SEK9XSGO;SEK1XT";
  bench.settings.strCountryCode = L"SE";
  EXPECT_EQ(bench.remark.CreateRMStarElement(), L"*FARE:1160,TAX:1,VAT:60");
}

TEST(BackOfficeRemark, AVATOfNothingWritesNoGroup) {
  RemarkBench bench;
  bench.AddTst(1);
  bench.mco.strTaxList = L"SEK0XSGO";
  bench.settings.strCountryCode = L"SE";
  EXPECT_EQ(bench.remark.CreateRMStarElement(), L"*FARE:1160");
}

TEST(BackOfficeRemark, InAnotherCountryXSGOIsAnOrdinaryTax) {
  RemarkBench bench;
  bench.AddTst(1);
  bench.mco.strTaxList = L"SEK50XSGO;SEK250XT";
  bench.settings.strCountryCode = L"NO";
  EXPECT_EQ(bench.remark.CreateRMStarElement(), L"*FARE:1160,TAX:300");
}

TEST(BackOfficeRemark, ACountryInLowerCaseIsAnotherCountry) {
  RemarkBench bench;
  bench.AddTst(1);
  bench.mco.strTaxList = L"SEK50XSGO";
  bench.settings.strCountryCode = L"se";
  EXPECT_EQ(bench.remark.CreateRMStarElement(), L"*FARE:1160,TAX:50");
}

TEST(BackOfficeRemark, OnlyTheLastFourCharactersMakeVAT) {
  RemarkBench bench;
  bench.AddTst(1);
  bench.mco.strTaxList = L"SEK50XSGOX;SEK10SGO;SEK5xsgo";
  bench.settings.strCountryCode = L"SE";
  EXPECT_EQ(bench.remark.CreateRMStarElement(), L"*FARE:1160,TAX:65");
}

TEST(BackOfficeRemark, AnEmptyEntryEndsTheTaxes) {
  RemarkBench bench;
  bench.AddTst(1);
  bench.mco.strTaxList = L"SEK120XT;;SEK40YQ";
  EXPECT_EQ(bench.remark.CreateRMStarElement(), L"*FARE:1160,TAX:120");
}

TEST(BackOfficeRemark, AnAmountEndsAtTheFirstOtherCharacter) {
  RemarkBench bench;
  bench.AddTst(1);
  bench.mco.strTotalFare = L"SEK1160A5";
  bench.mco.strTaxList = L"SEK1.5.5XT";
  EXPECT_EQ(bench.remark.CreateRMStarElement(), L"*FARE:1160,TAX:1,5");
}

TEST(BackOfficeRemark, WithSeveralTSTsTheirPassengersAreSummed) {
  RemarkBench bench;
  bench.AddTst(2);
  bench.AddTst(3);
  bench.mco.blnMultTST = true;
  bench.mco.strTotalFare = L"SEK500";
  bench.mco.strTaxList = L"SEK10XT";
  bench.mco.dblMCOFee = 50;
  EXPECT_EQ(bench.remark.CreateRMStarElement(), L"*FARE:100,TAX:2,PTA:10");
}

TEST(BackOfficeRemark, NobodyCountsAsOnePassenger) {
  RemarkBench bench;
  bench.AddTst(0);
  bench.mco.dblMCOFee = 250;
  EXPECT_EQ(bench.remark.CreateRMStarElement(), L"*FARE:1160,TAX:160,PTA:250");
}

TEST(BackOfficeRemark, WithoutATSTThereIsOnePassenger) {
  RemarkBench bench;
  bench.mco.blnMultTST = true;
  EXPECT_EQ(bench.remark.CreateRMStarElement(), L"*FARE:1160,TAX:160");
}

TEST(BackOfficeRemark, ManyPassengersDoNotOverflowTheCount) {
  RemarkBench bench;
  bench.AddTst(32767);
  bench.AddTst(32767);
  bench.mco.blnMultTST = true;
  bench.mco.strTotalFare = L"SEK65534";
  bench.mco.strTaxList = L"";
  EXPECT_EQ(bench.remark.CreateRMStarElement(), L"*FARE:1");
}

TEST(BackOfficeRemark, AFailureIsReportedAndLeavesNoRemark) {
  RemarkBench bench;
  bench.AddTst(1);
  bench.scripted.Fail(script_global::kGetField, 77, L"library broken");
  EXPECT_EQ(bench.remark.CreateRMStarElement(), L"");
  EXPECT_EQ(bench.TakeCalls().back(), Box(78, L"Error when creating the RM* Element!", 16));
  EXPECT_FALSE(bench.stop.isSet);
}

}  // namespace
}  // namespace updates
