#include "tests/updates/CreationBench.h"
#include "updates/ElementBuilders.h"

namespace updates {
namespace {

using namespace hostlib::operations;

struct BuildersBench : CreationBench {
  ElementBuilders builders{library, errors, dates, settings, general, pnr, mco};
};

TEST(ElementBuilders, AnFOElementHasSixKeysInTheirOrder) {
  BuildersBench bench;
  EXPECT_EQ(bench.builders.CreateFOElement(L""), L"FO p2 s1");
  EXPECT_EQ(bench.TakeCalls(),
            (Lines{Set(L"strKeyPasID", L""), Set(L"strKeyMPDNumber", L"117-4012345678"),
                   Set(L"strKeyIATANumber", L"80246878"), Set(L"strKeyCity", L"STO"),
                   Set(L"strKeyPasAsso", L"2"), Set(L"strKeySegAsso", L"1"),
                   L"PnrElementBuilderFO.1.7 Execute(<ParameterBag>) -> \"FO p2 s1\""}));
}

TEST(ElementBuilders, AnInfantsFOElementTakesTheInfantsAssociationAsItStands) {
  BuildersBench bench;
  EXPECT_EQ(bench.builders.CreateFOElement(kInfant), L"FO INF p3,4 s1");
}

TEST(ElementBuilders, AnAdultsFOElementTakesTheMCOsAssociation) {
  BuildersBench bench;
  EXPECT_EQ(bench.builders.CreateFOElement(kAdult), L"FO PAX p2 s1");
}

TEST(ElementBuilders, AnFVElementHasFourKeysAndTheMCOsAirline) {
  BuildersBench bench;
  bench.builders.CreateFVElement(L"", L"7");
  EXPECT_EQ(bench.TakeCalls(),
            (Lines{Set(L"strKeyPasID", L""), Set(L"strKeyText", L"SK"), Set(L"strKeyPasAsso", L"7"),
                   Set(L"strKeySegAsso", L"1"),
                   L"PnrElementBuilderFV.1.7 Execute(<ParameterBag>) -> \"FV SK p7 s1\""}));
}

TEST(ElementBuilders, AnFMElementHasFourKeysAndTheMCOsCommission) {
  BuildersBench bench;
  bench.builders.CreateFMElement(L"", L"7");
  EXPECT_EQ(bench.TakeCalls(),
            (Lines{Set(L"strKeyPasID", L""), Set(L"strKeyText", L"10"), Set(L"strKeyPasAsso", L"7"),
                   Set(L"strKeySegAsso", L"1"),
                   L"PnrElementBuilderFM.1.7 Execute(<ParameterBag>) -> \"FM 10 p7 s1\""}));
}

TEST(ElementBuilders, AnFPElementHasTwoMoreKeys) {
  BuildersBench bench;
  bench.builders.CreateFPElement(L"", L"7");
  EXPECT_EQ(
      bench.TakeCalls(),
      (Lines{Set(L"strKeyPasID", L""), Set(L"strKeyText", L"CASH"), Set(L"strKeyPasAsso", L"7"),
             Set(L"strKeySegAsso", L"1"), Set(L"blnKeyPTA", true), Set(L"blnKeyLH", false),
             L"PnrElementBuilderFP.1.7 Execute(<ParameterBag>) -> \"FP CASH p7 s1\""}));
}

TEST(ElementBuilders, AnFPElementTellsOfAnLHOffice) {
  BuildersBench bench;
  bench.pnr.blnLH = true;
  bench.builders.CreateFPElement(L"", L"7");
  EXPECT_THAT(bench.TakeCalls(), testing::Contains(Set(L"blnKeyLH", true)));
}

TEST(ElementBuilders, TheFirstFormOfPaymentIsTaken) {
  BuildersBench bench;
  bench.pnr.strFP2 = L"CHECK";
  bench.mco.strFormOfPayment = L"CCVI";
  EXPECT_EQ(bench.builders.CreateFPElement(L"", L"7"), L"FP CASH p7 s1");
}

TEST(ElementBuilders, TheSecondFormOfPaymentStandsInForTheFirst) {
  BuildersBench bench;
  bench.pnr.strFP1 = L"";
  bench.pnr.strFP2 = L"CHECK";
  bench.mco.strFormOfPayment = L"CCVI";
  EXPECT_EQ(bench.builders.CreateFPElement(L"", L"7"), L"FP CHECK p7 s1");
}

TEST(ElementBuilders, TheMCOsFormOfPaymentStandsInForBoth) {
  BuildersBench bench;
  bench.pnr.strFP1 = L"";
  bench.mco.strFormOfPayment = L"CCVI";
  EXPECT_EQ(bench.builders.CreateFPElement(L"", L"7"), L"FP CCVI p7 s1");
}

TEST(ElementBuilders, WithoutAFormOfPaymentNoFPElementIsMade) {
  BuildersBench bench;
  bench.pnr.strFP1 = L"";
  EXPECT_EQ(bench.builders.CreateFPElement(L"", L"7"), L"");
  EXPECT_EQ(bench.TakeCalls(), Lines{});
}

TEST(ElementBuilders, TheAdultOfAPairTakesTheAssociationGiven) {
  BuildersBench bench;
  EXPECT_EQ(bench.builders.CreateFPElement(kAdult, L"7"), L"FP PAX CASH p7 s1");
  EXPECT_EQ(bench.builders.CreateFVElement(kAdult, L"7"), L"FV PAX SK p7 s1");
  EXPECT_EQ(bench.builders.CreateFMElement(kAdult, L"7"), L"FM PAX 10 p7 s1");
}

TEST(ElementBuilders, TheInfantTakesTheMCOsInfantAssociationNotTheOneGiven) {
  BuildersBench bench;
  EXPECT_EQ(bench.builders.CreateFPElement(kInfant, L"7"), L"FP INF CASH p3,4 s1");
  EXPECT_EQ(bench.builders.CreateFVElement(kInfant, L"7"), L"FV INF SK p3,4 s1");
  EXPECT_EQ(bench.builders.CreateFMElement(kInfant, L"7"), L"FM INF 10 p3,4 s1");
}

TEST(ElementBuilders, ARemarkAlwaysHasThreeKeys) {
  BuildersBench bench;
  bench.mco = {};
  bench.builders.CreateRMElement(L"TEXT");
  EXPECT_EQ(
      bench.TakeCalls(),
      (Lines{Set(L"strKeyText", L"TEXT"), Set(L"strKeyPasAsso", L""), Set(L"strKeySegAsso", L""),
             L"PnrElementBuilderRM.1.7 Execute(<ParameterBag>) -> \"RM TEXT\""}));
}

TEST(ElementBuilders, ARemarkCarriesTheMCOsAssociations) {
  BuildersBench bench;
  bench.builders.CreateRMElement(L"TEXT");
  EXPECT_EQ(bench.CallsOf(L"ParameterBag"),
            (Lines{Set(L"strKeyText", L"TEXT"), Set(L"strKeyPasAsso", L"2"),
                   Set(L"strKeySegAsso", L"1")}));
}

TEST(ElementBuilders, AnOPElementIsDatedTheDayAfterDeparture) {
  BuildersBench bench;
  bench.builders.CreateOPElement();
  EXPECT_EQ(bench.TakeCalls(),
            (Lines{L"ScriptGlobal.1.10 HostDateToText(\"15MAR07\") -> \"15 03 07\"",
                   L"ScriptGlobal.1.11 TextToHostDate(\"2007-03-16\") -> \"16MAR07\"",
                   Set(L"strKeyText", L"CHECK IF TICKET OK"), Set(L"strKeyDate", L"16MAR07"),
                   L"PnrElementBuilderOP.1.7 Execute(<ParameterBag>) -> \"OP CHECK IF TICKET OK "
                   L"16MAR07\""}));
}

TEST(ElementBuilders, AnOPElementKeepsTheBlanksOfTheStoredText) {
  BuildersBench bench;
  bench.settings.strOPText = L" CHECK TICKET ";
  bench.builders.CreateOPElement();
  EXPECT_THAT(bench.TakeCalls(), testing::Contains(Set(L"strKeyText", L" CHECK TICKET ")));
}

TEST(ElementBuilders, AnOPElementWithoutADateIsLeftOutAndTheDateReportedOnce) {
  BuildersBench bench;
  bench.general.strFirstTravelDate = L"15mar07";
  EXPECT_EQ(bench.builders.CreateOPElement(), L"");
  EXPECT_EQ(bench.CallsOf(L"ScriptErrorReporter"), Lines{Box(27, L"Error adding day!", 16)});
  EXPECT_EQ(bench.CallsOf(L"PnrElementBuilder"), Lines{});
}

TEST(ElementBuilders, ADividedRemarkIsItsPiecesJoinedWithoutALastSemicolon) {
  BuildersBench bench;
  bench.scripted.Answer(remark_divider::kDivide, hostlib::TextArray{{L"RM A", L"RM B", L"RM C"}});
  EXPECT_EQ(bench.builders.DivideRMString(L"RM ABC"), L"RM A;RM B;RM C");
  EXPECT_EQ(bench.TakeCalls(),
            Lines{L"RemarkDivider.1.7 Divide(\"RM ABC\") -> [\"RM A\", \"RM B\", \"RM C\"]"});
}

TEST(ElementBuilders, PiecesCountFromAnyLowerBound) {
  BuildersBench bench;
  bench.scripted.Answer(remark_divider::kDivide, hostlib::TextArray{{L"RM A", L"RM B"}, 1});
  EXPECT_EQ(bench.builders.DivideRMString(L"RM AB"), L"RM A;RM B");
}

TEST(ElementBuilders, ADivisionIntoOnePieceIsThatPiece) {
  BuildersBench bench;
  bench.scripted.Answer(remark_divider::kDivide, hostlib::TextArray{{L"RM A"}});
  EXPECT_EQ(bench.builders.DivideRMString(L"RM A"), L"RM A");
}

TEST(ElementBuilders, ADivisionIntoNothingIsAFailure) {
  BuildersBench bench;
  bench.scripted.Answer(remark_divider::kDivide, hostlib::TextArray{});
  EXPECT_THROW(bench.builders.DivideRMString(L"RM A"), support::EndedByEndScript);
  EXPECT_EQ(bench.TakeCalls().back(), Box(77, L"Error when deviding an RM string!", 16));
}

struct Kind {
  const char* name;
  int number;
  const wchar_t* text;
  const hostlib::Operation* operation;
  void (*create)(ElementBuilders&);
};

class EveryElement : public testing::TestWithParam<Kind> {};

TEST_P(EveryElement, ReleasesWhatItMade) {
  BuildersBench bench;
  bench.scripted.Answer(remark_divider::kDivide, hostlib::TextArray{{L"RM A"}});
  bench.ShowObjects();
  GetParam().create(bench.builders);
  EXPECT_EQ(bench.recorder.LiveObjects(), 0);
  EXPECT_THAT(bench.recorder.lines(),
              testing::Contains(L"+ " + std::wstring(GetParam().operation->object)));
}

TEST_P(EveryElement, FailingShowsItsTextAloneAndEndsTheRun) {
  BuildersBench bench;
  bench.scripted.Fail(*GetParam().operation, 77, L"library broken");
  bench.ShowObjects();
  EXPECT_THROW(GetParam().create(bench.builders), support::EndedByEndScript);
  EXPECT_EQ(bench.CallsOf(L"ScriptErrorReporter"),
            Lines{Box(GetParam().number, GetParam().text, 16)});
  EXPECT_EQ(bench.recorder.LiveObjects(), 0);
}

TEST_P(EveryElement, WithoutItsObjectShowsItsTextAloneAndEndsTheRun) {
  BuildersBench bench;
  bench.scripted.FailToCreate(GetParam().operation->object);
  EXPECT_THROW(GetParam().create(bench.builders), support::EndedByEndScript);
  EXPECT_EQ(bench.CallsOf(L"ScriptErrorReporter"),
            Lines{Box(GetParam().number, GetParam().text, 16)});
}

INSTANTIATE_TEST_SUITE_P(
    ElementBuilders, EveryElement,
    testing::Values(
        Kind{"FO", 71, L"Error when creating the FO element!", &pnr_element_builder::kExecuteFO,
             [](ElementBuilders& builders) { builders.CreateFOElement(L""); }},
        Kind{"FV", 72, L"Error when creating the FV element!", &pnr_element_builder::kExecuteFV,
             [](ElementBuilders& builders) { builders.CreateFVElement(L"", L"2"); }},
        Kind{"FP", 73, L"Error when creating the FP element!", &pnr_element_builder::kExecuteFP,
             [](ElementBuilders& builders) { builders.CreateFPElement(L"", L"2"); }},
        Kind{"FM", 74, L"Error when creating the FM element!", &pnr_element_builder::kExecuteFM,
             [](ElementBuilders& builders) { builders.CreateFMElement(L"", L"2"); }},
        Kind{"RM", 75, L"Error when creating a RM element!", &pnr_element_builder::kExecuteRM,
             [](ElementBuilders& builders) { builders.CreateRMElement(L"A"); }},
        Kind{"OP", 76, L"Error when creating the OP element!", &pnr_element_builder::kExecuteOP,
             [](ElementBuilders& builders) { builders.CreateOPElement(); }},
        Kind{"Divided", 77, L"Error when deviding an RM string!", &remark_divider::kDivide,
             [](ElementBuilders& builders) { builders.DivideRMString(L"A"); }}),
    [](const auto& one) { return std::string(one.param.name); });

}  // namespace
}  // namespace updates
