#include <windows.h>
// After it: it is not complete by itself.
#include <psapi.h>

#include <cstdlib>

#include "app/Program.h"
#include "tests/faults/PatientAgent.h"
#include "tests/run/Scenes.h"
#include "tests/windows/com/run/RunningTerminal.h"
#include "tests/windows/driver/Driver.h"

// One run after the other against the same terminal. ./test does a few; PTA_MANY_RUNS in the
// environment says how many, instead.
namespace com_run {
namespace {

constexpr int kFewRuns = 15;
/// Until then the heaps find their size. The terminal's transcript grows up to a length of its own,
/// which a hundred runs fill; as much as that is no growth.
constexpr double kWarmUp = 0.4;
constexpr long long kMostGrowth = 8 << 20;

/// What a process holds of the machine.
struct Footprint {
  long long bytes;
  DWORD handles;
};

Footprint Of(HANDLE process) {
  PROCESS_MEMORY_COUNTERS memory = {};
  memory.cb = sizeof memory;
  EXPECT_TRUE(K32GetProcessMemoryInfo(process, &memory, sizeof memory));
  Footprint footprint{static_cast<long long>(memory.WorkingSetSize), 0};
  EXPECT_TRUE(GetProcessHandleCount(process, &footprint.handles));
  EXPECT_GT(footprint.bytes, 0);
  return footprint;
}

void ExpectNoGrowth(const char* name, const Footprint& before, const Footprint& after) {
  std::cout << name << ": " << before.bytes / 1024 << " KB and " << before.handles
            << " handles, afterwards " << after.bytes / 1024 << " KB and " << after.handles << "\n";
  EXPECT_LE(after.bytes - before.bytes, kMostGrowth) << name;
  EXPECT_LE(after.handles, before.handles + 5) << name;
}

class ManyRuns : public RunningTerminal {
 protected:
  ManyRuns() { Start(); }

  void RunOnce() {
    Set(scene_);
    faults::Timeline timeline;
    faults::PatientAgent agent(scene_.agent, {}, timeline);
    ASSERT_EQ(app::RunProgram(library_, agent, platform_), 0);
    ASSERT_EQ(terminal_->Entries(), entries_);
    for (const faults::Event& event : timeline) {
      ASSERT_NE(event.kind, faults::Event::Kind::kBox) << common::ToUtf8(event.text);
    }
  }

  Footprint OfTheTerminal() const {
    DWORD id = 0;
    GetWindowThreadProcessId(terminal_->window(), &id);
    const HANDLE process = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, id);
    const Footprint footprint = Of(process);
    CloseHandle(process);
    return footprint;
  }

 private:
  practice::RehearsalScene scene_ = run::OrdinaryScene();
  std::vector<std::wstring> entries_ = practice::Rehearse(scene_).EntryTexts();
};

TEST_F(ManyRuns, AgainstOneTerminalAllSucceedAndNeitherProcessGrows) {
  const char* const wanted = std::getenv("PTA_MANY_RUNS");
  const int runs = wanted == nullptr ? kFewRuns : std::atoi(wanted);
  const int warmUp = static_cast<int>(runs * kWarmUp);
  ASSERT_GT(warmUp, 0);
  Telling([&] {
    Footprint program{};
    Footprint terminal{};
    for (int i = 0; i < runs; ++i) {
      SCOPED_TRACE("run " + std::to_string(i + 1));
      ASSERT_NO_FATAL_FAILURE(RunOnce());
      if (i != warmUp) continue;
      program = Of(GetCurrentProcess());
      terminal = OfTheTerminal();
    }
    EXPECT_EQ(client::LiveObjects(), 0);
    std::cout << "runs against one terminal: " << runs << "\n";
    ExpectNoGrowth("the program", program, Of(GetCurrentProcess()));
    ExpectNoGrowth("the terminal", terminal, OfTheTerminal());
  });
}

}  // namespace
}  // namespace com_run
