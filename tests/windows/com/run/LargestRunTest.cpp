#include <cstdlib>

#include "tests/faults/LargestBooking.h"
#include "tests/run/Scenes.h"
#include "tests/windows/com/run/RunningTerminal.h"

namespace com_run {
namespace {

class LargestRun : public RunningTerminal {};

TEST_F(LargestRun, GoesOverTheLinkAsItGoesWithoutIt) {
  if (std::getenv("PTA_EVERY_CALL") == nullptr) {
    GTEST_SKIP()
        << "thousands of calls take minutes on a busy machine: run by ctest -C Long -L long";
  }
  Telling([&] {
    Start();
    // The first and the last: one TST is read as the other.
    const auto scene = faults::LargestScene(faults::kElementsWithRoom, L"1,100");
    hostlib::Recorder recorder;
    const auto there = Run(scene, recorder);
    const auto here = practice::Rehearse(scene);
    EXPECT_EQ(there.disagreement, L"");
    EXPECT_EQ(there.exitCode, 0);
    EXPECT_EQ(there.seen, here.seen);
    EXPECT_EQ(terminal_->Entries(), here.EntryTexts());
    EXPECT_TRUE(there.pnrAfter == here.pnrAfter);
    EXPECT_EQ(recorder.lines().size(), here.calls.size());
    EXPECT_EQ(recorder.LiveObjects(), 0);
    EXPECT_EQ(client::LiveObjects(), 0);
    std::cout << "calls of the largest booking over the link: " << recorder.lines().size() << "\n";
  });
}

}  // namespace
}  // namespace com_run
