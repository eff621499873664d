#include <gtest/gtest.h>

#include <iostream>

#include "common/Text.h"
#include "tests/faults/Oracle.h"

// The agent cancels: at every form and every OK/Cancel box of a run, by the button and by the
// close box, before anything was done in the form and after all of it.
namespace faults {
namespace {

class Cancels : public testing::TestWithParam<RecordedRun> {};

TEST_P(Cancels, EndTheRunWhereverTheyAreSaid) {
  const practice::RehearsalScene scene = GetParam().scene();
  Replays replays(scene);
  const Shown undisturbed = Perform(scene);
  ASSERT_GT(undisturbed.questions, 0);
  int cases = 0;
  for (int question = 1; question <= undisturbed.questions; ++question) {
    for (const auto by : {Cancelling::By::kButton, Cancelling::By::kCloseBox}) {
      for (const bool late : {false, true}) {
        const Cancelling cancelling{.question = question, .by = by, .late = late};
        const Shown shown = Perform(scene, {}, cancelling);
        Complaints found = Judge(replays, undisturbed, shown, {});
        for (const std::wstring& complaint : OnTheLostSession(undisturbed, shown)) {
          found.push_back(complaint);
        }
        EXPECT_LT(shown.outcome.entries.size(), undisturbed.outcome.entries.size());
        EXPECT_TRUE(found.empty())
            << "question " << question << ": " << common::ToUtf8(found.front());
        ++cases;
      }
    }
  }
  std::cout << "cancels in " << GetParam().name << ": " << cases << "\n";
}

INSTANTIATE_TEST_SUITE_P(Runs, Cancels, testing::ValuesIn(RecordedRuns()),
                         [](const auto& tested) { return std::string(tested.param.name); });

}  // namespace
}  // namespace faults
