#include <gtest/gtest.h>

#include "tests/pnr/ReadingBench.h"

namespace pnr {
namespace {

TEST(RetrievePNR, LoadsThePNRAndNothingElse) {
  ReadingBench bench;
  bench.scripted.Answer(hostlib::operations::terminal_session::kLoadPNR, L"some value");
  bench.room.RetrievePNR();
  EXPECT_EQ(bench.TakeCalls(), Call(L"TerminalSession.1.9 LoadPNR() -> \"some value\""));
  EXPECT_FALSE(bench.stop.isSet);
}

TEST(RetrievePNR, AFailureIsShownInTheExclamationStyleAndStopsTheRun) {
  ReadingBench bench;
  bench.scripted.On(hostlib::operations::terminal_session::kLoadPNR,
                    [](const hostlib::Arguments&) -> hostlib::Value {
                      throw hostlib::LibraryError(5, L"test", L"no PNR");
                    });
  bench.room.RetrievePNR();
  EXPECT_EQ(OnlyReports(bench.TakeCalls()),
            OwnFailure(36,
                       L"Unable to retrieve the PNR.\rMake sure there is an active PNR.\rThe "
                       L"program will terminate.",
                       48));
  EXPECT_TRUE(bench.stop.isSet);
}

TEST(RetrievePNR, AFailureThatTheLibraryRemembersIsReportedByTheLibrary) {
  ReadingBench bench;
  bench.scripted.Fail(hostlib::operations::terminal_session::kLoadPNR, 5, L"no PNR");
  bench.room.RetrievePNR();
  EXPECT_EQ(OnlyReports(bench.TakeCalls()), LibraryFailure(5));
  EXPECT_TRUE(bench.stop.isSet);
}

}  // namespace
}  // namespace pnr
