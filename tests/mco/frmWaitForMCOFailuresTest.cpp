#include <gtest/gtest.h>

#include "tests/mco/WaitBench.h"

namespace mco {
namespace {

using namespace hostlib::operations;

const std::wstring kIR = L"TerminalSession.1.33 SendEntryChecked(\"IR\") -> True";

TEST(FrmWaitForMCOFailures, AFailedRetrievalEndsTheWaitWithOneReportAndNoFurtherCall) {
  WaitBench bench;
  bench.LoadAndShow();
  bench.TakeCalls();
  bench.scripted.Fail(terminal_session::kLoadPNR, 0, L"the line is down");
  bench.Tick();
  EXPECT_FALSE(bench.form.IsLoaded());
  EXPECT_TRUE(bench.stop.isSet);
  EXPECT_FALSE(bench.waitCancelled);
  EXPECT_FALSE(bench.form.WaitOK());
  EXPECT_EQ(bench.form.tmrWait.Interval(), 0);
  EXPECT_EQ(bench.TakeCalls(),
            (Lines{kIR, L"TerminalSession.1.9 LoadPNR() !> the line is down",
                   L"ScriptErrorReporter.1.10 LastErrorNumber() -> 0",
                   L"ScriptErrorReporter.1.18 ShowError(-2147221468, \"  PTA Script \", \"Unable "
                   L"to retrieve the PNR.\rMake sure there is an active PNR.\rThe program will "
                   L"terminate.\", 48)"}));
}

TEST(FrmWaitForMCOFailures, AFailedIREndsTheWaitBeforeThePNRIsAskedForAgain) {
  WaitBench bench;
  bench.LoadAndShow();
  bench.TakeCalls();
  bench.scripted.Fail(terminal_session::kSendEntryChecked, 77, L"the line is down");
  bench.Tick();
  EXPECT_FALSE(bench.form.IsLoaded());
  EXPECT_EQ(bench.TakeCalls(),
            (Lines{L"TerminalSession.1.33 SendEntryChecked(\"IR\") !> the line is down",
                   L"ScriptErrorReporter.1.10 LastErrorNumber() -> 77",
                   L"ScriptErrorReporter.1.11 ReportLastError()"}));
}

TEST(FrmWaitForMCOFailures, AFailedCountIsReportedAndEndsTheWait) {
  WaitBench bench;
  bench.LoadAndShow();
  bench.scripted.Fail(pnr_reader::kCountMCOElements, 0, L"broken");
  bench.TakeCalls();
  bench.Tick();
  EXPECT_FALSE(bench.form.IsLoaded());
  EXPECT_TRUE(bench.stop.isSet);
  EXPECT_EQ(Last(bench.TakeCalls(), 2),
            (Lines{L"ScriptErrorReporter.1.10 LastErrorNumber() -> 0",
                   L"ScriptErrorReporter.1.18 ShowError(-2147221468, \"  PTA Script \", \"Error "
                   L"when getting the number of MCO elements!\", 16)"}));
}

TEST(FrmWaitForMCOFailures, AFailedCountWhileLoadingIsNotTakenForNoMCO) {
  WaitBench bench;
  bench.scripted.Fail(pnr_reader::kCountMCOElements, 77, L"broken");
  EXPECT_FALSE(bench.form.Load());
  EXPECT_TRUE(bench.desktop.log.empty());
  EXPECT_TRUE(bench.stop.isSet);
}

TEST(FrmWaitForMCOFailures, AFailureToReadASegmentGoesToWhoeverShowsTheForm) {
  WaitBench bench;
  bench.LoadAndShow();
  bench.scripted.Fail(pnr_reader::kFindElements, 77, L"broken");
  EXPECT_THROW(bench.Tick(), hostlib::LibraryError);
  EXPECT_EQ(bench.form.tmrWait.Interval(), 0);
  EXPECT_TRUE(bench.desktop.input().IsOpen());
}

TEST(FrmWaitForMCOFailures, EveryObjectIsReleasedAfterEachReading) {
  WaitBench bench;
  bench.LoadAndShow();
  const int before = bench.recorder.LiveObjects();
  bench.Tick(3);
  EXPECT_EQ(bench.recorder.LiveObjects(), before);
}

}  // namespace
}  // namespace mco
