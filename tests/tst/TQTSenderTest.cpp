#include "tests/tst/TSTBench.h"
#include "tst/TQTSender.h"

namespace tst {
namespace {

namespace operations = hostlib::operations;

struct SenderBench : TSTBench {
  TQTSender sender{library, session, errors};
};

TEST(TQTSender, TheListCommandGoesOutAsAnEntry) {
  SenderBench bench;
  EXPECT_TRUE(bench.sender.SendTQT());
  EXPECT_EQ(bench.TakeWay(), (Lines{L"TstListRequest.1.7 BuildListCommand() -> \"TQT\"",
                                    L"TerminalSession.1.11 SendEntry(\"TQT\") -> \"DONE\""}));
}

TEST(TQTSender, TheRequestIsReleased) {
  SenderBench bench;
  const int before = bench.recorder.LiveObjects();
  bench.sender.SendTQT();
  EXPECT_EQ(bench.recorder.LiveObjects(), before);
}

TEST(TQTSender, AFailingEntryIsReportedAndTellsTheCaller) {
  SenderBench bench;
  bench.scripted.Fail(operations::terminal_session::kSendEntry, 77, L"gone");
  EXPECT_FALSE(bench.sender.SendTQT());
  EXPECT_EQ(bench.TakeCalls().back(),
            L"ScriptErrorReporter.1.18 ShowError(-2147221463, \"  PTA Script \", \"Error sending "
            L"TQT Transaction!\", 16)");
  EXPECT_FALSE(bench.stop.isSet);
}

TEST(TQTSender, ARequestThatCannotBeMadeIsReportedToo) {
  SenderBench bench;
  bench.scripted.FailToCreate(operations::tst_list_request::kClass);
  EXPECT_FALSE(bench.sender.SendTQT());
  EXPECT_EQ(bench.ReportedBoxes(), Lines{L"16 Error sending TQT Transaction!"});
}

}  // namespace
}  // namespace tst
