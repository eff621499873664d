#include "tests/support/RoomBench.h"
#include "tst/FormsOfPayment.h"

namespace tst {
namespace {

struct PaymentBench : support::RoomBench {
  pnr::PNRInfo pnr;
  pnr::MCOInfo mco;
  TSTGeneral general;
  TSTWarnings warnings{desktop, runEnd};
  FormsOfPayment forms{pnr, mco, general, warnings};
};

TEST(FormsOfPayment, TheFirstBecomesTheMCOs) {
  PaymentBench bench;
  bench.forms.Add(L"CASH");
  EXPECT_EQ(bench.mco.strFormOfPayment, L"CASH");
  EXPECT_EQ(bench.pnr.strFP1, L"CASH");
  EXPECT_FALSE(bench.general.blnMultipleFP);
}

TEST(FormsOfPayment, TheMCOsOwnIsKeptAndFP1NotSet) {
  PaymentBench bench;
  bench.mco.strFormOfPayment = L"CASH";
  bench.forms.Add(L"CASH");
  EXPECT_EQ(bench.mco.strFormOfPayment, L"CASH");
  EXPECT_EQ(bench.pnr.strFP1, L"");
}

TEST(FormsOfPayment, APrefixIsDropped) {
  for (const wchar_t* fp : {L"O/PT/CASH", L"O/CASH", L"CASH"}) {
    PaymentBench bench;
    bench.forms.Add(fp);
    EXPECT_EQ(bench.mco.strFormOfPayment, L"CASH") << fp;
  }
}

TEST(FormsOfPayment, OnlyOnePrefixIsDroppedAndOnlyAtTheBeginning) {
  const std::vector<std::pair<std::wstring, std::wstring>> cases = {{L"O/PT/O/CASH", L"O/CASH"},
                                                                    {L"O/O/CASH", L"O/CASH"},
                                                                    {L"CASH+O/CC", L"CASH+O/CC"},
                                                                    {L"PT/CASH", L"PT/CASH"},
                                                                    {L"o/CASH", L"o/CASH"}};
  for (const auto& [element, kept] : cases) {
    PaymentBench bench;
    bench.forms.Add(element);
    EXPECT_EQ(bench.mco.strFormOfPayment, kept);
  }
}

TEST(FormsOfPayment, TheSameOneBehindAPrefixIsNoSecond) {
  PaymentBench bench;
  bench.forms.Add(L"CASH");
  bench.forms.Add(L"O/PT/CASH");
  EXPECT_EQ(bench.mco.strFormOfPayment, L"CASH");
  EXPECT_FALSE(bench.general.blnMultipleFP);
}

TEST(FormsOfPayment, ASecondOneIsJoinedOn) {
  PaymentBench bench;
  bench.forms.Add(L"CASH ");
  bench.forms.Add(L"O/CC");
  EXPECT_EQ(bench.mco.strFormOfPayment, L"CASH + CC");
  EXPECT_TRUE(bench.general.blnMultipleFP);
  EXPECT_EQ(bench.pnr.strFP2, L"CC");
}

TEST(FormsOfPayment, WhatOccursInTheMCOsTextCountsAsThere) {
  PaymentBench bench;
  bench.forms.Add(L"CASH");
  bench.forms.Add(L"CA");
  EXPECT_EQ(bench.mco.strFormOfPayment, L"CASH");
}

TEST(FormsOfPayment, TheComparisonIsCaseSensitive) {
  PaymentBench bench;
  bench.forms.Add(L"CASH");
  bench.forms.Add(L"cash");
  EXPECT_EQ(bench.mco.strFormOfPayment, L"CASH + cash");
}

TEST(FormsOfPayment, OneOfTheTwoAgainIsNoThird) {
  PaymentBench bench;
  for (const wchar_t* fp : {L"CASH", L"CC", L"CASH", L"CC"}) bench.forms.Add(fp);
  EXPECT_EQ(bench.mco.strFormOfPayment, L"CASH + CC");
  EXPECT_TRUE(bench.desktop.log.empty());
}

}  // namespace
}  // namespace tst
