#include <windows.h>
// After it: it is not complete by itself.
#include <psapi.h>

#include <algorithm>
#include <cstdlib>

#include "app/Program.h"
#include "practice/terminal/UsedHeap.h"
#include "tests/faults/PatientAgent.h"
#include "tests/run/Scenes.h"
#include "tests/windows/com/run/RunningTerminal.h"

// One run after the other against the same terminal. ./test does a few; PTA_MANY_RUNS in the
// environment says how many, instead.
namespace com_run {
namespace {

using Series = std::vector<long long>;

constexpr int kFewRuns = 15;
/// After so many a long series tells how it stands.
constexpr int kBetweenReports = 50;
/// Until then the heaps find their size.
constexpr std::size_t kWarmUp = 3;
/// With less the growth of most runs would be that of a few, or of none.
constexpr int kFewestRuns = 9;
/// A run calls on so many interfaces of objects that are not the objects' first.
constexpr int kFurtherInterfaces = 7;
/// What a system may keep now and then, whatever the program does.
constexpr long long kOnce = 16 * 1024;
constexpr long long kMostARun = 16;

long long PagesOf(HANDLE process) {
  PROCESS_MEMORY_COUNTERS memory = {};
  memory.cb = sizeof memory;
  EXPECT_TRUE(K32GetProcessMemoryInfo(process, &memory, sizeof memory));
  EXPECT_GT(memory.WorkingSetSize, 0u);
  return static_cast<long long>(memory.WorkingSetSize);
}

/// How much more is in use after a run than after the one before it, for most runs.
long long UsualGrowth(const Series& heap) {
  Series growth;
  for (std::size_t i = kWarmUp; i + 1 < heap.size(); ++i) growth.push_back(heap[i + 1] - heap[i]);
  const auto middle = growth.begin() + static_cast<std::ptrdiff_t>(growth.size() / 2);
  std::nth_element(growth.begin(), middle, growth.end());
  return *middle;
}

/// What the heap after each run says; `known` is what the system itself keeps of every run.
struct Growth {
  Growth(const Series& heap, long long known)
      : usual(UsualGrowth(heap)),
        all(heap.back() - heap[kWarmUp]),
        runs(static_cast<long long>(heap.size() - kWarmUp) - 1),
        most(known + kMostARun) {}

  /// A leak of every run, or of every other one, shows in a few runs; it need not fill what the
  /// system may keep once.
  bool IsUsual() const { return usual > most; }
  /// A rarer one shows only in a long series, which fills that.
  bool IsInTheLongRun() const { return all > most * runs + kOnce; }

  long long usual;
  long long all;
  long long runs;
  long long most;
};

void ExpectNoGrowth(const char* name, const Series& heap, long long known) {
  const Growth growth(heap, known);
  std::cout << name << ": " << heap[kWarmUp] << " bytes of heap, " << growth.all << " more after "
            << growth.runs << " runs, " << growth.usual << " of most runs, " << known
            << " of them the system's" << std::endl;
  EXPECT_FALSE(growth.IsUsual()) << name;
  EXPECT_FALSE(growth.IsInTheLongRun()) << name;
}

/// The heap after so many runs, of which each n-th leaks so much.
Series Leaking(int runs, int eachOf, long long bytes) {
  Series heap{1'000'000};
  while (std::ssize(heap) < runs) {
    heap.push_back(heap.back() + (std::ssize(heap) % eachOf == 0 ? bytes : 0));
  }
  return heap;
}

TEST(GrowthOfARun, IsFoundInAFewRunsWhenItIsUsual) {
  EXPECT_TRUE(Growth(Leaking(kFewRuns, 1, kMostARun + 1), 0).IsUsual());
  EXPECT_FALSE(Growth(Leaking(kFewRuns, 1, 1'300), 0).IsInTheLongRun());
  EXPECT_TRUE(Growth(Leaking(kFewestRuns, 1, kMostARun + 1), 0).IsUsual());
  EXPECT_FALSE(Growth(Leaking(kFewRuns, 1, kMostARun), 0).IsUsual());
}

TEST(GrowthOfARun, IsFoundInALongSeriesWhenItIsRare) {
  EXPECT_FALSE(Growth(Leaking(1'000, 20, 1'300), 0).IsUsual());
  EXPECT_TRUE(Growth(Leaking(1'000, 20, 1'300), 0).IsInTheLongRun());
  EXPECT_FALSE(Growth(Leaking(1'000, 1, kMostARun), 0).IsInTheLongRun());
}

TEST(GrowthOfARun, IsNoneWhenTheSystemKeepsSomethingOnce) {
  const Growth once(Leaking(kFewRuns, 10, kOnce), 0);
  EXPECT_FALSE(once.IsUsual() || once.IsInTheLongRun());
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
    ASSERT_EQ(client::LiveObjects(), 0);
  }

  /// Without the transcript, which is to grow.
  long long HeapOfTheTerminal() const {
    terminal_->ForgetTranscript();
    return terminal_->UsedHeap();
  }

  void Judge(const Series& program, const Series& terminal, long long kept) const {
    std::cout << "runs against one terminal: " << program.size() << "\n";
    ExpectNoGrowth("the program", program, 0);
    ExpectNoGrowth("the terminal", terminal, kept * kFurtherInterfaces);
    std::cout << "pages: the program " << PagesOf(GetCurrentProcess()) / 1024
              << " KB, the terminal " << PagesOfTheTerminal() / 1024 << " KB" << std::endl;
  }

  long long PagesOfTheTerminal() const {
    DWORD id = 0;
    GetWindowThreadProcessId(terminal_->window(), &id);
    const HANDLE process = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, id);
    const long long pages = PagesOf(process);
    CloseHandle(process);
    return pages;
  }

  /// What the system keeps in the terminal's process of a further interface that was called: Wine
  /// does not free the stub that it makes from a type library. Not the terminal's doing: there is
  /// nothing when both ends are in one process.
  long long KeptOfAFurtherInterface() {
    Series heap;
    for (int i = 0; i < 10; ++i) {
      library_.Create(L"PrintRequest")->Interface(2)->Call(8, {hostlib::Value(L"")});
      heap.push_back(HeapOfTheTerminal());
    }
    return UsualGrowth(heap);
  }

 private:
  practice::RehearsalScene scene_ = run::OrdinaryScene();
  std::vector<std::wstring> entries_ = practice::Rehearse(scene_).EntryTexts();
};

TEST_F(ManyRuns, AgainstOneTerminalAllSucceedAndNeitherProcessGrows) {
  const char* const wanted = std::getenv("PTA_MANY_RUNS");
  const int runs = wanted == nullptr ? kFewRuns : std::atoi(wanted);
  ASSERT_GE(runs, kFewestRuns) << "PTA_MANY_RUNS=" << wanted << " is no number of runs that tells "
                               << "about growth";
  Telling([&] {
    const long long kept = KeptOfAFurtherInterface();
    Series program;
    Series terminal;
    program.reserve(static_cast<std::size_t>(runs));
    terminal.reserve(static_cast<std::size_t>(runs));
    for (int i = 0; i < runs; ++i) {
      SCOPED_TRACE("run " + std::to_string(i + 1));
      ASSERT_NO_FATAL_FAILURE(RunOnce());
      terminal.push_back(HeapOfTheTerminal());
      program.push_back(static_cast<long long>(practice::terminal::UsedHeap()));
      if ((i + 1) % kBetweenReports == 0 && i + 1 < runs) Judge(program, terminal, kept);
    }
    Judge(program, terminal, kept);
  });
}

}  // namespace
}  // namespace com_run
