#include "tests/updates/ChangesBench.h"

namespace updates {
namespace {

using namespace hostlib::operations;

struct Family {
  const char* name;
  int number;
  const wchar_t* text;
  void (*change)(ElementChanges&);
};

class EveryChange : public testing::TestWithParam<Family> {};

TEST_P(EveryChange, RefusedIsShownBeforeTheObjectsGoAndEndsTheRunAfterwards) {
  ChangesBench bench;
  bench.AnswerFlag(pnr_element_change::kReadResponse, L"blnKeyPNRFound", false);
  bench.ShowObjects();
  EXPECT_THROW(GetParam().change(bench.changes), support::EndedByEndScript);
  EXPECT_EQ(bench.end.heldAtEnd, 0);
  const Lines& lines = bench.recorder.lines();
  ASSERT_GE(lines.size(), 6u);
  EXPECT_EQ(Lines(lines.end() - 6, lines.end()),
            Joined({ReadFlag(L"blnKeyPNRFound", false),
                    {RefusalBox(GetParam().number, GetParam().text), L"- ParameterBag",
                     L"- ParameterBag", L"- PnrElementChange"}}));
}

TEST_P(EveryChange, WithoutAnOutcomeIsRefused) {
  ChangesBench bench;
  bench.scripted.Answer(pnr_element_change::kReadResponse,
                        hostlib::ObjectPtr(bench.scripted.Bag()));
  EXPECT_THROW(GetParam().change(bench.changes), support::EndedByEndScript);
  EXPECT_EQ(bench.TakeCalls().back(), RefusalBox(GetParam().number, GetParam().text));
}

TEST_P(EveryChange, FailingInTheLibraryShowsItsTextAloneAndEndsTheRun) {
  ChangesBench bench;
  bench.scripted.Fail(pnr_element_change::kExecute, 77, L"library broken");
  bench.ShowObjects();
  EXPECT_THROW(GetParam().change(bench.changes), support::EndedByEndScript);
  EXPECT_EQ(bench.end.heldAtEnd, -1) << "the handler ends the run, not the change";
  EXPECT_EQ(bench.recorder.LiveObjects(), 0);
  EXPECT_EQ(bench.CallsOf(L"ScriptErrorReporter"),
            Lines{Box(GetParam().number, GetParam().text, 16)});
  EXPECT_EQ(bench.CallsOf(L"TerminalSession"), Lines{});
}

TEST_P(EveryChange, FailingWhileSendingShowsItsTextAloneAndEndsTheRun) {
  ChangesBench bench;
  bench.scripted.Fail(terminal_session::kSendEntry, 77, L"session broken");
  EXPECT_THROW(GetParam().change(bench.changes), support::EndedByEndScript);
  EXPECT_EQ(bench.TakeCalls().back(), Box(GetParam().number, GetParam().text, 16));
}

TEST_P(EveryChange, WithoutARequestObjectShowsItsTextAloneAndEndsTheRun) {
  ChangesBench bench;
  bench.scripted.FailToCreate(pnr_element_change::kClass);
  EXPECT_THROW(GetParam().change(bench.changes), support::EndedByEndScript);
  EXPECT_EQ(bench.TakeCalls(), Lines{Box(GetParam().number, GetParam().text, 16)});
}

INSTANTIATE_TEST_SUITE_P(
    ElementChanges, EveryChange,
    testing::Values(Family{"TK", 61, L"Error when updating the Ticketing Element!",
                           [](ElementChanges& changes) { changes.UpdateTKElement(L"A"); }},
                    Family{"FP", 62, L"Error when updating the FP Element!",
                           [](ElementChanges& changes) { changes.UpdateFPElement(L"5", L"A"); }},
                    Family{"FV", 63, L"Error when updating the FV Element!",
                           [](ElementChanges& changes) { changes.UpdateFVElement(L"5", L"A"); }},
                    Family{"PWCT", 64, L"Error when updating the RM PWCT Element!",
                           [](ElementChanges& changes) { changes.UpdateRMPWCTElement(); }},
                    Family{"FM", 65, L"Error when updating the FM Element!",
                           [](ElementChanges& changes) { changes.UpdateFMElement(L"5", L"A"); }}),
    [](const auto& one) { return std::string(one.param.name); });

TEST(UpdatePNR, AfterARefusedChangeNoLaterElementIsTouched) {
  ChangesBench bench;
  bench.pnr.strTicketingAction = L"TL";
  bench.pnr.strTKElementNumber = L"5";
  bench.pnr.strRMPWCTNumber = L"9";
  bench.scripted.Answers(pnr_element_change::kReadResponse,
                         {hostlib::ObjectPtr(bench.scripted.Bag({{L"blnKeyPNRFound", true}})),
                          hostlib::ObjectPtr(bench.scripted.Bag({{L"blnKeyPNRFound", false}}))});
  bench.AddTsts(&tst::TSTInfo::strFPElementNumber, &tst::TSTInfo::strFPElementValue, L"CASH",
                {L"7"});
  EXPECT_THROW(bench.changes.UpdatePNR(L""), support::EndedByEndScript);
  EXPECT_EQ(bench.Sent(), (Lines{L"5/OK", L"9/PWCT "}));
  EXPECT_EQ(bench.CallsOf(L"ScriptErrorReporter"),
            Lines{RefusalBox(64, L"Error when updating the RM PWCT Element!")});
}

TEST(UpdatePNR, ARefusalAmongSeveralTSTsLeavesTheLaterOnesAlone) {
  ChangesBench bench;
  bench.AnswerFlag(pnr_element_change::kReadResponse, L"blnKeyPNRFound", false);
  bench.AddTsts(&tst::TSTInfo::strFVElementNumber, &tst::TSTInfo::strFVElementValue, L"LH",
                {L"5", L"6"});
  EXPECT_THROW(bench.changes.UpdatePNR(L""), support::EndedByEndScript);
  EXPECT_EQ(bench.Sent(), Lines{L"5/SK"});
}

}  // namespace
}  // namespace updates
