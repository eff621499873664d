#include <cstdlib>

#include "app/Program.h"
#include "tests/faults/PatientAgent.h"
#include "tests/faults/RuledBoxes.h"
#include "tests/run/Scenes.h"
#include "tests/windows/com/run/RunningTerminal.h"
#include "tests/windows/driver/Driver.h"

// A terminal that is killed in the middle of a run, at one call after the other. ./test takes a
// sample; with PTA_EVERY_CALL in the environment every call of the run has its turn.
namespace com_run {
namespace {

constexpr int kBetweenSamples = 29;

/// Counts the calls, and does something before one of them.
class BeforeCall : public hostlib::CallHook {
 public:
  BeforeCall(int call, std::function<void()> action) : call_(call), action_(std::move(action)) {}

  void ObjectCreated(std::wstring_view) override { ++live_; }
  void ObjectReleased(std::wstring_view) override { --live_; }
  hostlib::Value OnCall(const hostlib::CallInfo&,
                        const std::function<hostlib::Value()>& proceed) override {
    if (++count_ == call_) action_();
    try {
      return proceed();
    } catch (const hostlib::LibraryError&) {
      if (!failed_) failed_ = std::chrono::steady_clock::now();
      throw;
    }
  }

  int count() const { return count_; }
  int live() const { return live_; }
  /// When the first call failed.
  const std::optional<std::chrono::steady_clock::time_point>& failed() const { return failed_; }

 private:
  int call_;
  std::function<void()> action_;
  int count_ = 0;
  int live_ = 0;
  std::optional<std::chrono::steady_clock::time_point> failed_;
};

class KilledTerminal : public RunningTerminal {
 protected:
  /// Runs the ordinary booking to its end, however it ends, and holds what was seen against what
  /// the rules name. Gives the number of library calls.
  int RunToTheEnd(int call, const std::function<void()>& before) {
    std::optional<std::chrono::steady_clock::time_point> killed;
    BeforeCall hook(call, [&] {
      before();
      killed = std::chrono::steady_clock::now();
    });
    hostlib::InterposedLibrary hooked(library_, hook);
    faults::Timeline timeline;
    faults::PatientAgent agent(scene_.agent, {}, timeline);
    try {
      EXPECT_EQ(app::RunProgram(hooked, agent, platform_), 0);
    } catch (const faults::AgentStuck& stuck) {
      ADD_FAILURE() << "the agent is stuck: " << common::ToUtf8(stuck.where);
    }
    const auto end = std::chrono::steady_clock::now();
    // A terminal that dies in a call is noticed when the call fails.
    if (!killed) killed = hook.failed();
    EXPECT_LT(end - killed.value_or(end), std::chrono::seconds(5));
    dies_ = killed.has_value();
    EXPECT_EQ(hook.live(), 0);
    for (const faults::Event& event : timeline) {
      if (event.kind != faults::Event::Kind::kBox) continue;
      ++boxes_;
      EXPECT_TRUE(faults::RuleOf(event)) << common::ToUtf8(event.text);
    }
    return hook.count();
  }

  /// A terminal as at the beginning of a run.
  void Open() {
    Start();
    Set(scene_);
  }

  practice::RehearsalScene scene_ = run::OrdinaryScene();
  int boxes_ = 0;
  bool dies_ = false;
};

TEST_F(KilledTerminal, BeforeAnyCallEndsTheRunWithABoxThatTheRulesName) {
  Telling([&] {
    Open();
    const int calls = RunToTheEnd(0, [] {});
    ASSERT_GT(calls, 200);
    ASSERT_EQ(boxes_, 0);
    const int step = std::getenv("PTA_EVERY_CALL") != nullptr ? 1 : kBetweenSamples;
    int kills = 0;
    // The first call comes before there is anything that could be told to the agent's reporter.
    for (int call = 2; call <= calls; call += step, ++kills) {
      SCOPED_TRACE("killed before call " + std::to_string(call));
      Open();
      boxes_ = 0;
      RunToTheEnd(call, [this] { terminal_->Kill(); });
      const bool isTheLastGoodbye = call > calls - step;
      EXPECT_TRUE(boxes_ > 0 || isTheLastGoodbye);
    }
    std::cout << "terminals killed: " << kills << " before one of " << calls << " calls\n";
  });
}

TEST_F(KilledTerminal, InTheMiddleOfAnyEntryEndsTheRunWithABoxThatTheRulesName) {
  Telling([&] {
    Open();
    RunToTheEnd(0, [] {});
    const int entries = static_cast<int>(terminal_->Entries().size());
    ASSERT_GT(entries, 10);
    for (int entry = 1; entry <= entries; ++entry) {
      SCOPED_TRACE("dies in entry " + std::to_string(entry));
      Open();
      boxes_ = 0;
      terminal_->DieInEntry(entry);
      RunToTheEnd(0, [] {});
      EXPECT_GT(boxes_, 0);
      EXPECT_TRUE(dies_);
      EXPECT_FALSE(terminal_->IsRunning());
      terminal_->Kill();
    }
    std::cout << "terminals that died in an entry: " << entries << "\n";
  });
}

}  // namespace
}  // namespace com_run
