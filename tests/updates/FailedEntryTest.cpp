#include "tests/updates/EnteringBench.h"

namespace updates {
namespace {

using namespace hostlib::operations;

TEST(FailedEntry, ACreatorThatFailsEndsTheRunBeforeAnythingIsSent) {
  EnteringBench bench;
  bench.scripted.Fail(pnr_element_builder::kExecuteRM, 77, L"library broken");
  EXPECT_THROW(bench.creation.EnterPNRElements(false, L""), support::EndedByEndScript);
  EXPECT_EQ(bench.CallsOf(L"ScriptErrorReporter"),
            Lines{Box(75, L"Error when creating a RM element!", 16)});
  EXPECT_EQ(bench.CallsOf(L"TerminalSession"), Lines{});
}

TEST(FailedEntry, ASendingThatFailsShowsTheTextAloneAndEndsTheRun) {
  EnteringBench bench;
  bench.scripted.Fail(terminal_session::kSendCommand, 77, L"session broken");
  bench.ShowObjects();
  EXPECT_THROW(bench.creation.EnterPNRElements(false, L""), support::EndedByEndScript);
  EXPECT_EQ(bench.CallsOf(L"ScriptErrorReporter"),
            Lines{Box(70, L"Error when entering the PNR elements!", 16)});
  EXPECT_EQ(bench.recorder.LiveObjects(), 0);
}

TEST(FailedEntry, AnUnreadableAnswerShowsTheTextAloneAndEndsTheRun) {
  EnteringBench bench;
  bench.scripted.Fail(pnr_element_entry::kReadResponse, 77, L"library broken");
  EXPECT_THROW(bench.creation.EnterPNRElements(false, L""), support::EndedByEndScript);
  EXPECT_EQ(bench.TakeCalls().back(), Box(70, L"Error when entering the PNR elements!", 16));
}

TEST(FailedEntry, ARefusedEntryEndsTheRun) {
  EnteringBench bench;
  bench.AnswerFlag(pnr_element_entry::kReadResponse, L"blnKeyPNRFound", false);
  EXPECT_THROW(bench.creation.EnterPNRElements(false, L""), support::EndedByEndScript);
  EXPECT_EQ(bench.TakeCalls().back(), RefusalBox(70, L"Error when entering the PNR elements!"));
}

}  // namespace
}  // namespace updates
