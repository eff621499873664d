#include "tests/updates/ChangesBench.h"

namespace updates {
namespace {

TEST(UpdatePNR, TheDialogShowsTheHourglass) {
  ChangesBench bench;
  bench.changes.UpdatePNR(L"");
  EXPECT_EQ(bench.dialog.Pointer(), ui::MousePointer::kHourglass);
}

TEST(UpdatePNR, NothingToChangeAsksNothingOfTheHost) {
  ChangesBench bench;
  bench.tsts.Add(bench.Tst(L"1"));
  bench.changes.UpdatePNR(L"STOSK08AA");
  EXPECT_EQ(bench.TakeCalls(), Lines{});
}

TEST(UpdatePNR, ChangesComeInTheOrderTKPWCTFVFMFP) {
  ChangesBench bench;
  bench.pnr.strTicketingAction = L"TL";
  bench.pnr.strTKElementNumber = L"5";
  bench.pnr.strRMPWCTNumber = L"9";
  bench.pnr.strRMPWCTAction = L"NEW";
  tst::TSTInfo tst = bench.Tst(L"1");
  tst.strFVElementValue = L"LH";
  tst.strFMElementValue = L"9";
  tst.strFPElementValue = L"CASH";
  bench.tsts.Add(tst);
  bench.changes.UpdatePNR(L"STOSK08AA");
  EXPECT_EQ(bench.Sent(),
            (Lines{L"5/OK/STOSK08AA", L"9/PWCT NEW", L"20/SK", L"21/10", L"22/O/PT/CASH"}));
}

TEST(UpdatePNR, TheOrdinaryBookingChangesTKAndFP) {
  ChangesBench bench;
  bench.pnr.strTicketingAction = L"TL";
  bench.pnr.strTKElementNumber = L"5";
  tst::TSTInfo tst = bench.Tst(L"1");
  tst.strFPElementNumber = L"7";
  tst.strFPElementValue = L"CASH";
  bench.tsts.Add(tst);
  bench.changes.UpdatePNR(L"STOSK08AA");
  EXPECT_EQ(bench.TakeCalls(),
            Joined({{Set(L"strKeyElementNr", L"5"), Set(L"strKeyNewValue", L"OK"),
                     L"PnrElementChange.1.7 Execute(<ParameterBag>) -> \"5/OK\"",
                     L"TerminalSession.1.11 SendEntry(\"5/OK/STOSK08AA\") -> \"ANSWER\"",
                     L"PnrElementChange.2.8 ReadResponse(\"ANSWER\") -> <ParameterBag>"},
                    ReadFlag(L"blnKeyPNRFound", true),
                    {Set(L"strKeyElementNr", L"7"), Set(L"strKeyNewValue", L"O/PT/CASH"),
                     L"PnrElementChange.1.7 Execute(<ParameterBag>) -> \"7/O/PT/CASH\"",
                     L"TerminalSession.1.11 SendEntry(\"7/O/PT/CASH\") -> \"ANSWER\"",
                     L"PnrElementChange.2.8 ReadResponse(\"ANSWER\") -> <ParameterBag>"},
                    ReadFlag(L"blnKeyPNRFound", true)}));
}

TEST(UpdatePNR, ATicketingActionInLowerCaseIsNotOK) {
  ChangesBench bench;
  bench.pnr.strTicketingAction = L"ok";
  bench.pnr.strTKElementNumber = L"5";
  bench.changes.UpdatePNR(L"");
  EXPECT_EQ(bench.Sent(), Lines{L"5/OK"});
}

TEST(UpdatePNR, ATicketingActionWithABlankIsNotOK) {
  ChangesBench bench;
  bench.pnr.strTicketingAction = L"OK ";
  bench.pnr.strTKElementNumber = L"5";
  bench.changes.UpdatePNR(L"");
  EXPECT_EQ(bench.Sent(), Lines{L"5/OK"});
}

TEST(UpdatePNR, WithNoTKUpdateTheTKIsLeftAlone) {
  ChangesBench bench;
  bench.pnr.strTicketingAction = L"TL";
  bench.pnr.strTKElementNumber = L"5";
  bench.settings.blnTKNoUpdate = true;
  bench.changes.UpdatePNR(L"STOSK08AA");
  EXPECT_EQ(bench.Sent(), Lines{});
}

TEST(UpdatePNR, WithoutANumberThePWCTRemarkIsLeftAlone) {
  ChangesBench bench;
  bench.pnr.strRMPWCTAction = L"NEW";
  bench.changes.UpdatePNR(L"");
  EXPECT_EQ(bench.Sent(), Lines{});
}

TEST(UpdatePNR, AnAirlineThatDiffersOnlyInCaseIsChanged) {
  ChangesBench bench;
  bench.AddTsts(&tst::TSTInfo::strFVElementNumber, &tst::TSTInfo::strFVElementValue, L"sk", {L"5"});
  bench.changes.UpdatePNR(L"");
  EXPECT_EQ(bench.Sent(), Lines{L"5/SK"});
}

TEST(UpdatePNR, ACommissionThatDiffersOnlyInCaseIsChanged) {
  ChangesBench bench;
  bench.mco.strCommission = L"10A";
  bench.AddTsts(&tst::TSTInfo::strFMElementNumber, &tst::TSTInfo::strFMElementValue, L"10a",
                {L"6"});
  bench.changes.UpdatePNR(L"");
  EXPECT_EQ(bench.Sent(), Lines{L"6/10A"});
}

TEST(UpdatePNR, AnEmptyAirlineOfTheTSTIsChangedWhenItHasANumber) {
  ChangesBench bench;
  bench.AddTsts(&tst::TSTInfo::strFVElementNumber, &tst::TSTInfo::strFVElementValue, L"", {L"5"});
  bench.changes.UpdatePNR(L"");
  EXPECT_EQ(bench.Sent(), Lines{L"5/SK"});
}

TEST(UpdatePNR, ElementsWithoutANumberAreLeftAlone) {
  ChangesBench bench;
  tst::TSTInfo tst;
  tst.strTSTNum = L"1";
  tst.strFPElementValue = L"CASH";
  bench.tsts.Add(tst);
  bench.changes.UpdatePNR(L"");
  EXPECT_EQ(bench.Sent(), Lines{});
}

TEST(UpdatePNR, TSTsThatShareAnFVElementChangeItOnce) {
  ChangesBench bench;
  bench.AddTsts(&tst::TSTInfo::strFVElementNumber, &tst::TSTInfo::strFVElementValue, L"LH",
                {L"5", L"5"});
  bench.changes.UpdatePNR(L"");
  EXPECT_EQ(bench.Sent(), Lines{L"5/SK"});
}

TEST(UpdatePNR, TSTsThatShareAnFMElementChangeItOnce) {
  ChangesBench bench;
  bench.AddTsts(&tst::TSTInfo::strFMElementNumber, &tst::TSTInfo::strFMElementValue, L"9",
                {L"5", L"5"});
  bench.changes.UpdatePNR(L"");
  EXPECT_EQ(bench.Sent(), Lines{L"5/10"});
}

TEST(UpdatePNR, TSTsThatShareAnFPElementChangeItOnce) {
  ChangesBench bench;
  bench.AddTsts(&tst::TSTInfo::strFPElementNumber, &tst::TSTInfo::strFPElementValue, L"CASH",
                {L"5", L"5"});
  bench.changes.UpdatePNR(L"");
  EXPECT_EQ(bench.Sent(), Lines{L"5/O/PT/CASH"});
}

TEST(UpdatePNR, OnlyTheElementChangedLastIsRemembered) {
  ChangesBench bench;
  bench.AddTsts(&tst::TSTInfo::strFVElementNumber, &tst::TSTInfo::strFVElementValue, L"LH",
                {L"5", L"6", L"5"});
  bench.changes.UpdatePNR(L"");
  EXPECT_EQ(bench.Sent(), (Lines{L"5/SK", L"6/SK", L"5/SK"}));
}

TEST(UpdatePNR, ATSTThatNeedsNoChangeInBetweenForgetsNothing) {
  ChangesBench bench;
  bench.AddTsts(&tst::TSTInfo::strFMElementNumber, &tst::TSTInfo::strFMElementValue, L"9", {L"5"});
  bench.tsts.Add(bench.Tst(L"2"));
  tst::TSTInfo third = bench.Tst(L"3");
  third.strFMElementNumber = L"5";
  third.strFMElementValue = L"9";
  bench.tsts.Add(third);
  bench.changes.UpdatePNR(L"");
  EXPECT_EQ(bench.Sent(), Lines{L"5/10"});
}

TEST(UpdatePNR, EachWalkStartsAfresh) {
  ChangesBench bench;
  tst::TSTInfo tst = bench.Tst(L"1");
  tst.strFVElementNumber = tst.strFMElementNumber = tst.strFPElementNumber = L"5";
  tst.strFVElementValue = tst.strFMElementValue = L"XX";
  tst.strFPElementValue = L"CASH";
  bench.tsts.Add(tst);
  bench.changes.UpdatePNR(L"");
  EXPECT_EQ(bench.Sent(), (Lines{L"5/SK", L"5/10", L"5/O/PT/CASH"}));
}

TEST(UpdatePNR, AFormOfPaymentThatHoldsAnOldOneAnywhereIsLeftAlone) {
  ChangesBench bench;
  bench.AddTsts(&tst::TSTInfo::strFPElementNumber, &tst::TSTInfo::strFPElementValue,
                L"CASH+O/CHECK", {L"5"});
  bench.changes.UpdatePNR(L"");
  EXPECT_EQ(bench.Sent(), Lines{});
}

TEST(UpdatePNR, AFormOfPaymentWithALowerCaseOIsChanged) {
  ChangesBench bench;
  bench.AddTsts(&tst::TSTInfo::strFPElementNumber, &tst::TSTInfo::strFPElementValue, L"o/CASH",
                {L"5"});
  bench.changes.UpdatePNR(L"");
  EXPECT_EQ(bench.Sent(), Lines{L"5/O/PT/o/CASH"});
}

TEST(UpdatePNR, EachTSTsOwnFormOfPaymentIsKept) {
  ChangesBench bench;
  tst::TSTInfo first = bench.Tst(L"1");
  first.strFPElementValue = L"CASH";
  first.strFPElementNumber = L"5";
  tst::TSTInfo second = bench.Tst(L"2");
  second.strFPElementValue = L"CHECK";
  second.strFPElementNumber = L"6";
  bench.tsts.Add(first);
  bench.tsts.Add(second);
  bench.changes.UpdatePNR(L"");
  EXPECT_EQ(bench.Sent(), (Lines{L"5/O/PT/CASH", L"6/O/PT/CHECK"}));
}

TEST(UpdatePNR, AFailureOutsideTheFamilyIsReportedInTheWordsOfTheWhole) {
  struct BrokenView : ui::WindowlessView {
    void FormSet(ui::Form&) override { throw common::RunTimeError(L"no window"); }
  } view;
  ChangesBench bench;
  bench.dialog.Load();
  bench.dialog.Shown(view);
  bench.pnr.strRMPWCTNumber = L"9";
  EXPECT_THROW(bench.changes.UpdatePNR(L""), support::EndedByEndScript);
  EXPECT_EQ(bench.TakeCalls(), Lines{Box(60, L"Error when updating the PNR!", 16)});
}

}  // namespace
}  // namespace updates
