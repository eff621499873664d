#include "tests/updates/EnteringBench.h"

namespace updates {
namespace {

using namespace hostlib::operations;

TEST(ElementCreation, TheOrdinaryBookingIsEnteredCallByCall) {
  EnteringBench bench;
  bench.mco.strPasAsso = L"1";
  bench.mco.strSegAsso = L"";
  bench.mco.strTotalFare = L"SEK1160";
  bench.mco.strTaxList = L"SEK120XT;SEK40YQ";
  bench.mco.dblMCOFee = 250;
  bench.settings.blnAddOP = true;
  bench.settings.strCountryCode = L"SE";
  bench.pnr.strRMPWCTAction = L"SK AT ARN A/P BEFORE DEPARTURE";
  bench.pnr.strRMPTATotal = L"SEK1000/TAX SEK120XT, SEK40YQ";
  bench.AddTst(L"1", L"SEK1000", false, L"1");
  bench.tsts.begin()->strFPElementValue = L"CASH";
  bench.tsts.begin()->strFVElementValue = L"SK";
  bench.tsts.begin()->strFMElementValue = L"10";
  bench.creation.EnterPNRElements(true, L"STOSK08AA");

  const auto remark = [](const std::wstring& text) {
    return Lines{Set(L"strKeyText", text), Set(L"strKeyPasAsso", L"1"), Set(L"strKeySegAsso", L""),
                 L"PnrElementBuilderRM.1.7 Execute(<ParameterBag>) -> \"RM " + text + L"\""};
  };
  EXPECT_EQ(
      bench.TakeCalls(),
      Joined({{Set(L"strKeyPasID", L""), Set(L"strKeyMPDNumber", L"117-4012345678"),
               Set(L"strKeyIATANumber", L"80246878"), Set(L"strKeyCity", L"STO"),
               Set(L"strKeyPasAsso", L"1"), Set(L"strKeySegAsso", L""),
               L"PnrElementBuilderFO.1.7 Execute(<ParameterBag>) -> \"FO p1\""},
              remark(L"PWCT SK AT ARN A/P BEFORE DEPARTURE"),
              {L"ScriptGlobal.1.10 HostDateToText(\"15MAR07\") -> \"15 03 07\"",
               L"ScriptGlobal.1.11 TextToHostDate(\"2007-03-16\") -> \"16MAR07\"",
               Set(L"strKeyText", L"CHECK IF TICKET OK"), Set(L"strKeyDate", L"16MAR07"),
               L"PnrElementBuilderOP.1.7 Execute(<ParameterBag>) -> \"OP CHECK IF TICKET OK "
               L"16MAR07\""},
              remark(L"PTA TTL SEK1000/TAX SEK120XT, SEK40YQ + SEK250XP"),
              {L"ScriptGlobal.1.7 GetField(\"SEK120XT;SEK40YQ\", 1, \";\") -> \"SEK120XT\"",
               L"ScriptGlobal.1.7 GetField(\"SEK120XT;SEK40YQ\", 2, \";\") -> \"SEK40YQ\"",
               L"ScriptGlobal.1.7 GetField(\"SEK120XT;SEK40YQ\", 3, \";\") -> \"\""},
              remark(L"*FARE:1160,TAX:160,PTA:250"),
              {L"TerminalSession.1.10 SendCommand(\"FO p1;RM PWCT SK AT ARN A/P BEFORE DEPARTURE;"
               L"OP CHECK IF TICKET OK 16MAR07;RM PTA TTL SEK1000/TAX SEK120XT, SEK40YQ + SEK250XP;"
               L"RM *FARE:1160,TAX:160,PTA:250;\") -> \"LONG ANSWER\"",
               L"PnrElementEntry.1.8 ReadResponse(\"LONG ANSWER\") -> <ParameterBag>"},
              ReadFlag(L"blnKeyPNRFound", true)}));
}

TEST(ElementCreation, AllKindsComeInTheirOrder) {
  EnteringBench bench;
  bench.pnr.blnFPExists = bench.pnr.blnFVExists = bench.pnr.blnFMExists = false;
  bench.pnr.blnLH = true;
  bench.pnr.strResponsibleOffice = L"ARNAG2100";
  bench.pnr.strRMPWCTAction = L"TEXT";
  bench.pnr.strRMBODInfo = L"INFO";
  bench.settings.blnAddOP = true;
  EXPECT_EQ(bench.Entered(true, L"FRALH0123"),
            (Lines{L"FO p2 s1", L"FP CASH p2 s1", L"FV SK p2 s1", L"FM 10 p2 s1", L"RM PWCT TEXT",
                   L"RM *INFO", L"OP CHECK IF TICKET OK 16MAR07", L"RM PTA TTL SEK1000",
                   L"RM PLS ACK PTA FROM ARNAG2100 TO FRALH0123", L"RM *FARE:1000"}));
}

TEST(ElementCreation, TheLeastIsAnFOElementTheTotalAndTheMoney) {
  EnteringBench bench;
  EXPECT_EQ(bench.Entered(), (Lines{L"FO p2 s1", L"RM PTA TTL SEK1000", L"RM *FARE:1000"}));
}

TEST(ElementCreation, AnInfantGetsAnElementOfEachKindBehindTheAdults) {
  EnteringBench bench;
  bench.pnr.blnFPExists = bench.pnr.blnFVExists = bench.pnr.blnFMExists = false;
  bench.mco.blnInf = true;
  EXPECT_EQ(bench.Entered(),
            (Lines{L"FO PAX p2 s1", L"FO INF p3,4 s1", L"FP PAX CASH p2 s1", L"FP INF CASH p3,4 s1",
                   L"FV PAX SK p2 s1", L"FV INF SK p3,4 s1", L"FM PAX 10 p2 s1",
                   L"FM INF 10 p3,4 s1", L"RM PTA TTL SEK1000", L"RM *FARE:1000"}));
}

TEST(ElementCreation, WhereElementsExistEachTSTWithAFareAndNoValueGetsItsOwn) {
  EnteringBench bench;
  bench.AddTst(L"1", L"SEK1000", false, L"7");
  bench.AddTst(L"2", L"SEK500", false, L"8,9");
  EXPECT_EQ(bench.Entered(), (Lines{L"FO p2 s1", L"FP CASH p7 s1", L"FP CASH p8,9 s1",
                                    L"FV SK p7 s1", L"FV SK p8,9 s1", L"FM 10 p7 s1",
                                    L"FM 10 p8,9 s1", L"RM PTA TTL SEK1000", L"RM *FARE:1000"}));
}

TEST(ElementCreation, AnInfantsTSTGetsAnInfantsElement) {
  EnteringBench bench;
  bench.mco.blnInf = true;
  bench.pnr.blnFVExists = bench.pnr.blnFMExists = true;
  bench.AddTst(L"1", L"SEK1000", false, L"7");
  bench.AddTst(L"2", L"SEK100", true, L"");
  EXPECT_EQ(bench.Entered(),
            (Lines{L"FO PAX p2 s1", L"FO INF p3,4 s1", L"FP PAX CASH p7 s1", L"FP INF CASH p3,4 s1",
                   L"FV PAX SK p7 s1", L"FV INF SK p3,4 s1", L"FM PAX 10 p7 s1",
                   L"FM INF 10 p3,4 s1", L"RM PTA TTL SEK1000", L"RM *FARE:1000"}));
}

TEST(ElementCreation, AValueThatIsThereNeedsNoNumberToCount) {
  EnteringBench bench;
  bench.AddTst(L"1", L"SEK1000");
  bench.tsts.begin()->strFPElementValue = L"CASH";
  bench.tsts.begin()->strFVElementValue = L"SK";
  EXPECT_EQ(bench.Entered(),
            (Lines{L"FO p2 s1", L"FM 10 p7 s1", L"RM PTA TTL SEK1000", L"RM *FARE:1000"}));
}

TEST(ElementCreation, ANumberWithoutAValueStillMissesTheElement) {
  EnteringBench bench;
  bench.AddTst(L"1", L"SEK1000");
  bench.tsts.begin()->strFPElementNumber = L"20";
  bench.tsts.begin()->strFVElementValue = L"SK";
  bench.tsts.begin()->strFMElementValue = L"10";
  EXPECT_EQ(bench.Entered(),
            (Lines{L"FO p2 s1", L"FP CASH p7 s1", L"RM PTA TTL SEK1000", L"RM *FARE:1000"}));
}

TEST(ElementCreation, ATSTWithoutAFareGetsNoElements) {
  EnteringBench bench;
  bench.AddTst(L"1", L"");
  EXPECT_EQ(bench.Entered(), (Lines{L"FO p2 s1", L"RM PTA TTL SEK1000", L"RM *FARE:1000"}));
}

TEST(ElementCreation, WithoutAFormOfPaymentTheFPElementIsLeftOut) {
  EnteringBench bench;
  bench.pnr.blnFPExists = false;
  bench.pnr.strFP1 = L"";
  EXPECT_EQ(bench.Entered(), (Lines{L"FO p2 s1", L"RM PTA TTL SEK1000", L"RM *FARE:1000"}));
}

TEST(ElementCreation, AnElementThatTheBuilderLeavesEmptyIsLeftOut) {
  EnteringBench bench;
  bench.scripted.Answer(pnr_element_builder::kExecuteFO, L"");
  EXPECT_EQ(bench.Entered(), (Lines{L"RM PTA TTL SEK1000", L"RM *FARE:1000"}));
}

TEST(ElementCreation, WhenEveryBuilderLeavesItsElementEmptyNothingIsSent) {
  EnteringBench bench;
  bench.scripted.Answer(pnr_element_builder::kExecuteFO, L"");
  bench.scripted.Answer(pnr_element_builder::kExecuteRM, L"");
  bench.creation.EnterPNRElements(false, L"");
  EXPECT_EQ(bench.CallsOf(L"TerminalSession"), Lines{});
  EXPECT_EQ(bench.CallsOf(L"PnrElementEntry"), Lines{});
}

TEST(ElementCreation, ABlankPWCTTextIsTakenAsItComes) {
  EnteringBench bench;
  EXPECT_THAT(bench.Entered(true), testing::Contains(L"RM PWCT "));
}

TEST(ElementCreation, APWCTRemarkThatIsThereIsNotCreated) {
  EnteringBench bench;
  bench.pnr.strRMPWCTAction = L"TEXT";
  EXPECT_THAT(bench.Entered(false), testing::Not(testing::Contains(L"RM PWCT TEXT")));
}

TEST(ElementCreation, AnOPElementWithoutADateIsLeftOutAndTheRestEntered) {
  EnteringBench bench;
  bench.settings.blnAddOP = true;
  bench.general.strFirstTravelDate = L"";
  EXPECT_EQ(bench.Entered(), (Lines{L"FO p2 s1", L"RM PTA TTL SEK1000", L"RM *FARE:1000"}));
  EXPECT_EQ(bench.CallsOf(L"ScriptErrorReporter"), Lines{Box(27, L"Error adding day!", 16)});
}

TEST(ElementCreation, TheFeeFollowsTheTotalInTheHostsForm) {
  EnteringBench bench;
  bench.mco.dblMCOFee = 250.5;
  EXPECT_THAT(bench.Entered(), testing::Contains(L"RM PTA TTL SEK1000 + SEK250.5XP"));
}

TEST(ElementCreation, ATotalForTheBackOfficeHasAStarDirectlyBeforeIt) {
  EnteringBench bench;
  bench.settings.blnAddRMTotalinBOD = true;
  bench.mco.dblMCOFee = 250;
  EXPECT_THAT(bench.Entered(), testing::Contains(L"RM *PTA TTL SEK1000 + SEK250XP"));
}

TEST(ElementCreation, TheAcknowledgementIsOnlyForAnLHOffice) {
  EnteringBench bench;
  bench.pnr.strResponsibleOffice = L"ARNAG2100";
  EXPECT_EQ(bench.Entered(false, L"FRALH0123"),
            (Lines{L"FO p2 s1", L"RM PTA TTL SEK1000", L"RM *FARE:1000"}));
}

TEST(ElementCreation, AMoneyRemarkThatCouldNotBeMadeIsLeftOut) {
  EnteringBench bench;
  bench.scripted.Fail(script_global::kGetField, 77, L"library broken");
  bench.scripted.Answer(script_global::kToBoolean, true);
  EXPECT_EQ(bench.Entered(), (Lines{L"FO p2 s1", L"RM PTA TTL SEK1000"}));
  EXPECT_EQ(bench.CallsOf(L"ScriptErrorReporter"),
            Lines{Box(78, L"Error when creating the RM* Element!", 16)});
}

TEST(ElementCreation, ASecondCallDoesNotRepeatTheFirst) {
  EnteringBench bench;
  bench.Entered();
  bench.TakeCalls();
  EXPECT_EQ(bench.Entered(), (Lines{L"FO p2 s1", L"RM PTA TTL SEK1000", L"RM *FARE:1000"}));
}

TEST(ElementCreation, EverythingMadeIsReleased) {
  EnteringBench bench;
  bench.settings.blnAddOP = true;
  bench.ShowObjects();
  bench.creation.EnterPNRElements(true, L"STOSK08AA");
  EXPECT_EQ(bench.recorder.LiveObjects(), 0);
}

}  // namespace
}  // namespace updates
