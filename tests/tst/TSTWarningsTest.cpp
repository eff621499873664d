// The boxes of the detail reading: their exact words, when they come, and what the answers do.
#include "tests/tst/DetailBench.h"

namespace tst {
namespace {

using support::EndedByEndScript;

std::wstring Box(const std::wstring& text, int style, int answer) {
  return L"box " + std::to_wstring(style) + L" \"  PTA Script \" \"" + text + L"\" -> " +
         std::to_wstring(answer);
}

const std::wstring kNoFare = L"The script can not handle NOFARE TST's.\rThe script will terminate!";
const std::wstring kReissue =
    L"Some/all PTA changes already made for this TST. \rSelect 'OK' if you still want to use this "
    L"TST, or 'Cancel' to terminate!";
const std::wstring kMissingFP =
    L"Warning: Form of Payments missing for one or more TST(s). \rSelect 'OK' if you want to "
    L"continue using the same FP \rfor all TST's, or 'Cancel' to terminate!";
const std::wstring kThirdFP =
    L"Warning: More than two different Form of Payments exist. \rSelect 'OK' if you want to "
    L"continue using the FP in the \rfirst two TST's, or 'Cancel' to terminate!";
const std::wstring kSales =
    L"The displayed TST has an incorrect Sales Indicator SITO\r\nPress 'OK' to continue or "
    L"'Cancel' to terminate.";

TEST(TSTWarnings, ANoFareTSTEndsTheRunBeforeAnyTotalIsTouched) {
  DetailBench bench;
  EXPECT_THROW(bench.Read({.fare = L"NOFARE", .isReissue = true}), EndedByEndScript);
  EXPECT_EQ(bench.OwnBoxes(), Lines{Box(kNoFare, 0, 1)});
  EXPECT_EQ(bench.totals.strTotalFare, L"");
  EXPECT_EQ(bench.ReportedBoxes(), Lines{});
}

TEST(TSTWarnings, OnlyExactlyNOFAREIsRefused) {
  DetailBench bench;
  bench.Read({.fare = L"NOFARE0"});
  bench.Read({.fare = L"nofare"});
  EXPECT_EQ(bench.OwnBoxes(), Lines{});
}

TEST(TSTWarnings, AReissueIsAskedAboutForEachTST) {
  DetailBench bench;
  bench.Read({.isReissue = true});
  bench.Read({.isReissue = true});
  EXPECT_EQ(bench.OwnBoxes(), (Lines{Box(kReissue, 1, 1), Box(kReissue, 1, 1)}));
}

TEST(TSTWarnings, CancelAtAReissueEndsTheRunBeforeAnyTotalIsTouched) {
  DetailBench bench;
  bench.desktop.answers = {common::kCancel};
  EXPECT_THROW(bench.Read({.isReissue = true}), EndedByEndScript);
  EXPECT_EQ(bench.OwnBoxes(), Lines{Box(kReissue, 1, 2)});
  EXPECT_EQ(bench.totals.strTotalFare, L"");
}

TEST(TSTWarnings, AMissingFormOfPaymentIsWarnedOfOnceInTheRun) {
  DetailBench bench;
  bench.pnr.blnFPExists = true;
  bench.Read({.fp = L""});
  bench.Read({.fp = L""});
  EXPECT_EQ(bench.OwnBoxes(), Lines{Box(kMissingFP, 1, 1)});
  EXPECT_EQ(bench.mco.strFormOfPayment, L"");
}

TEST(TSTWarnings, WithoutFPElementsInThePNRAMissingOneIsNoMatter) {
  DetailBench bench;
  bench.Read({.fp = L""});
  EXPECT_EQ(bench.OwnBoxes(), Lines{});
}

TEST(TSTWarnings, CancelAtAMissingFormOfPaymentEndsTheRun) {
  DetailBench bench;
  bench.pnr.blnFPExists = true;
  bench.desktop.answers = {common::kCancel};
  EXPECT_THROW(bench.Read({.fp = L""}), EndedByEndScript);
  EXPECT_EQ(bench.OwnBoxes(), Lines{Box(kMissingFP, 1, 2)});
  EXPECT_EQ(bench.mco.strCurrency, L"");
}

TEST(TSTWarnings, AThirdFormOfPaymentIsWarnedOfOnceAndDropped) {
  DetailBench bench;
  for (const wchar_t* fp : {L"CASH", L"CC", L"INV", L"AGT"}) bench.Read({.fp = fp});
  EXPECT_EQ(bench.OwnBoxes(), Lines{Box(kThirdFP, 1, 1)});
  EXPECT_EQ(bench.mco.strFormOfPayment, L"CASH + CC");
  EXPECT_EQ(bench.pnr.strFP1, L"CASH");
  EXPECT_EQ(bench.pnr.strFP2, L"CC");
}

TEST(TSTWarnings, CancelAtAThirdFormOfPaymentEndsTheRun) {
  DetailBench bench;
  bench.Read({.fp = L"CASH"});
  bench.Read({.fp = L"CC"});
  bench.desktop.answers = {common::kCancel};
  EXPECT_THROW(bench.Read({.fp = L"INV"}), EndedByEndScript);
  EXPECT_EQ(bench.OwnBoxes(), Lines{Box(kThirdFP, 1, 2)});
}

TEST(TSTWarnings, AnotherSalesIndicatorIsWarnedOfOnceInTheRun) {
  DetailBench bench;
  bench.Read({.salesIndicator = L"SITO"});
  bench.Read({.salesIndicator = L"SOTO"});
  EXPECT_EQ(bench.OwnBoxes(), Lines{Box(kSales, 1, 1)});
}

TEST(TSTWarnings, CancelAtTheSalesIndicatorEndsTheRun) {
  DetailBench bench;
  bench.desktop.answers = {common::kCancel};
  EXPECT_THROW(bench.Read({.salesIndicator = L"SITO"}), EndedByEndScript);
  EXPECT_EQ(bench.OwnBoxes(), Lines{Box(kSales, 1, 2)});
}

TEST(TSTWarnings, OnlyAnOKSilencesAWarning) {
  DetailBench bench;
  bench.desktop.answers = {common::kCancel};
  EXPECT_THROW(bench.Read({.salesIndicator = L"SITO"}), EndedByEndScript);
  bench.Read({.salesIndicator = L"SITO"});
  EXPECT_EQ(bench.OwnBoxes(), (Lines{Box(kSales, 1, 2), Box(kSales, 1, 1)}));
}

TEST(TSTWarnings, TheUsualSalesIndicatorsAndNoneAreFine) {
  DetailBench bench;
  for (const wchar_t* indicator : {L"SOTI", L"SITI", L""}) {
    bench.Read({.salesIndicator = indicator});
  }
  EXPECT_EQ(bench.OwnBoxes(), Lines{});
}

TEST(TSTWarnings, TheSalesIndicatorIsComparedCaseSensitively) {
  DetailBench bench;
  bench.Read({.salesIndicator = L"siti"});
  EXPECT_EQ(bench.OwnBoxes().size(), 1U);
}

TEST(TSTWarnings, TheBoxesComeInOrderAndTheCurrencyBeforeTheSalesIndicator) {
  DetailBench bench;
  bench.pnr.blnFPExists = true;
  bench.desktop.answers = {common::kOk, common::kOk, common::kCancel};
  EXPECT_THROW(bench.Read({.isReissue = true, .salesIndicator = L"SITO", .fp = L""}),
               EndedByEndScript);
  EXPECT_EQ(bench.OwnBoxes(),
            (Lines{Box(kReissue, 1, 1), Box(kMissingFP, 1, 1), Box(kSales, 1, 2)}));
  EXPECT_EQ(bench.mco.strCurrency, L"SEK");
}

TEST(TSTWarnings, TheReissueBoxComesBeforeTheFareElementsAreRead) {
  DetailBench bench;
  bench.desktop.answers = {common::kCancel};
  EXPECT_THROW(bench.Read({.isReissue = true}), EndedByEndScript);
  EXPECT_EQ(bench.TakeWay().back(), L"<-strKeyTaxArray() [\"SEK120XT\", \"SEK40YQ\"]");
}

}  // namespace
}  // namespace tst
