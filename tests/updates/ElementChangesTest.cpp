#include "tests/updates/ChangesBench.h"

namespace updates {
namespace {

using namespace hostlib::operations;

TEST(ElementChanges, ATKChangeIsOneKeyedRequestWithTheSuffixBehindTheCommandOnly) {
  ChangesBench bench;
  bench.pnr.strTKElementNumber = L"5";
  bench.changes.UpdateTKElement(L"STOSK08AA");
  EXPECT_EQ(bench.TakeCalls(),
            Joined({{Set(L"strKeyElementNr", L"5"), Set(L"strKeyNewValue", L"OK"),
                     L"PnrElementChange.1.7 Execute(<ParameterBag>) -> \"5/OK\"",
                     L"TerminalSession.1.11 SendEntry(\"5/OK/STOSK08AA\") -> \"ANSWER\"",
                     L"PnrElementChange.2.8 ReadResponse(\"ANSWER\") -> <ParameterBag>"},
                    ReadFlag(L"blnKeyPNRFound", true)}));
}

TEST(ElementChanges, ATicketingTextWithAQueueEndsTheCommandInItBehindTheText) {
  ChangesBench bench;
  bench.pnr.strTKElementNumber = L"5";
  bench.pnr.strTicketingText = L"TL15MAR/STOSK08AA/Q80";
  bench.changes.UpdateTKElement(L"XYZ");
  EXPECT_EQ(bench.Sent(), Lines{L"5/OK/XYZ/Q"});
}

TEST(ElementChanges, AnEmptyTKTextLeavesOnlyTheQueueBehindTheCommand) {
  ChangesBench bench;
  bench.pnr.strTKElementNumber = L"5";
  bench.pnr.strTicketingText = L"TL15MAR/Q80";
  bench.changes.UpdateTKElement(L"");
  EXPECT_EQ(bench.Sent(), Lines{L"5/OK/Q"});
}

TEST(ElementChanges, ALowerCaseQueueInTheTicketingTextIsNone) {
  ChangesBench bench;
  bench.pnr.strTKElementNumber = L"5";
  bench.pnr.strTicketingText = L"TL15MAR/q80";
  bench.changes.UpdateTKElement(L"");
  EXPECT_EQ(bench.Sent(), Lines{L"5/OK"});
}

TEST(ElementChanges, AQueueInTheTKTextAloneIsNotDoubled) {
  ChangesBench bench;
  bench.pnr.strTKElementNumber = L"5";
  bench.pnr.strTicketingText = L"TL15MAR";
  bench.changes.UpdateTKElement(L"A/Q");
  EXPECT_EQ(bench.Sent(), Lines{L"5/OK/A/Q"});
}

TEST(ElementChanges, TheQueueDependsOnTheTicketingTextNotOnTheAction) {
  ChangesBench bench;
  bench.pnr.strTKElementNumber = L"5";
  bench.pnr.strTicketingAction = L"/Q";
  bench.changes.UpdateTKElement(L"");
  EXPECT_EQ(bench.Sent(), Lines{L"5/OK"});
}

TEST(ElementChanges, TheNewPWCTTextFollowsItsCode) {
  ChangesBench bench;
  bench.pnr.strRMPWCTNumber = L"9";
  bench.pnr.strRMPWCTAction = L"SK AT ARN A/P BEFORE DEPARTURE";
  bench.changes.UpdateRMPWCTElement();
  EXPECT_EQ(bench.CallsOf(L"ParameterBag.1.7"),
            (Lines{Set(L"strKeyElementNr", L"9"),
                   Set(L"strKeyNewValue", L"PWCT SK AT ARN A/P BEFORE DEPARTURE")}));
}

TEST(ElementChanges, AFormOfPaymentIsMarkedAsAnOldOnePrepaid) {
  ChangesBench bench;
  bench.changes.UpdateFPElement(L"7", L"CASH");
  EXPECT_EQ(bench.CallsOf(L"ParameterBag.1.7"),
            (Lines{Set(L"strKeyElementNr", L"7"), Set(L"strKeyNewValue", L"O/PT/CASH")}));
}

TEST(ElementChanges, ForAnLHOfficeAGTFollowsTheFormOfPaymentWithoutABlank) {
  ChangesBench bench;
  bench.pnr.blnLH = true;
  bench.changes.UpdateFPElement(L"7", L"CASH");
  EXPECT_EQ(bench.CallsOf(L"ParameterBag.1.7").back(), Set(L"strKeyNewValue", L"O/PT/CASHAGT"));
}

TEST(ElementChanges, ACommandOf75CharactersGoesAsAnEntry) {
  ChangesBench bench;
  bench.changes.UpdateFVElement(L"3", std::wstring(73, L'A'));
  EXPECT_EQ(bench.CallsOf(L"TerminalSession"),
            Lines{L"TerminalSession.1.11 SendEntry(\"3/" + std::wstring(73, L'A') +
                  L"\") -> \"ANSWER\""});
}

TEST(ElementChanges, ACommandOf76CharactersGoesAsALongCommand) {
  ChangesBench bench;
  bench.changes.UpdateFVElement(L"3", std::wstring(74, L'A'));
  EXPECT_EQ(bench.CallsOf(L"TerminalSession"),
            Lines{L"TerminalSession.1.10 SendCommand(\"3/" + std::wstring(74, L'A') +
                  L"\") -> \"LONG ANSWER\""});
}

TEST(ElementChanges, TheSuffixOfTheTKCountsInTheLengthOfTheCommand) {
  ChangesBench bench;
  bench.pnr.strTKElementNumber = L"5";
  bench.changes.UpdateTKElement(std::wstring(71, L'A'));
  EXPECT_EQ(bench.CallsOf(L"TerminalSession"),
            Lines{L"TerminalSession.1.10 SendCommand(\"5/OK/" + std::wstring(71, L'A') +
                  L"\") -> \"LONG ANSWER\""});
}

TEST(ElementChanges, TheLastChangeIsKeptAndClearedByTheNext) {
  ChangesBench bench;
  bench.changes.UpdateFPElement(L"7", L"CASH");
  EXPECT_EQ(bench.changes.last().elementNumber, L"7");
  EXPECT_EQ(bench.changes.last().newValue, L"O/PT/CASH");
  EXPECT_EQ(bench.changes.last().command, L"7/O/PT/CASH");
  EXPECT_EQ(bench.changes.last().response, L"ANSWER");
  EXPECT_TRUE(bench.changes.last().pnrFound);

  bench.scripted.FailToCreate(pnr_element_change::kClass);
  EXPECT_THROW(bench.changes.UpdateFMElement(L"8", L"9"), support::EndedByEndScript);
  EXPECT_EQ(bench.changes.last().elementNumber, L"8");
  EXPECT_EQ(bench.changes.last().command, L"");
  EXPECT_EQ(bench.changes.last().response, L"");
  EXPECT_FALSE(bench.changes.last().pnrFound);
}

}  // namespace
}  // namespace updates
