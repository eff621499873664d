#include "tests/tst/SelectionBench.h"

namespace tst {
namespace {

namespace operations = hostlib::operations;

TEST(SendTQTP, ThePricingCommandGoesOutAsAnEntryAndIsKept) {
  SelectionBench bench;
  bench.room.SendTQTP();
  EXPECT_EQ(bench.TakeWay(), (Lines{L"TstListRequest.1.8 BuildPricingCommand() -> \"TQTP\"",
                                    L"TerminalSession.1.11 SendEntry(\"TQTP\") -> \"DONE\""}));
  EXPECT_EQ(bench.room.LastTransaction(), L"TQTP");
}

TEST(SendTQTP, AFailureIsReportedAndTheRunGoesOn) {
  SelectionBench bench;
  bench.scripted.Fail(operations::tst_list_request::kBuildPricingCommand, 77, L"gone");
  bench.room.SendTQTP();
  EXPECT_EQ(bench.TakeCalls().back(),
            L"ScriptErrorReporter.1.18 ShowError(-2147221463, \"  PTA Script \", \"Error when "
            L"sending the TST from the TQTP transaction!\", 16)");
  EXPECT_FALSE(bench.stop.isSet);
}

}  // namespace
}  // namespace tst
