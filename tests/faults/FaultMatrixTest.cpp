#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <iostream>
#include <set>

#include "common/Text.h"
#include "tests/faults/JournalOracle.h"
#include "tests/journal/JournalBench.h"

// Every call of a run fails in every way that it can, and whatever happens: the boxes are those
// that the rules name, nothing is sent after an end, the entries explain the PNR, nothing is left.
// One of the runs is written down, and its journal says what happened.
namespace faults {
namespace {

constexpr std::size_t kShownComplaints = 20;
constexpr std::string_view kWrittenDown = "OfficeAskedOfTheHost";

std::wstring NameOf(Fault fault, const CallSite& site) {
  return L"call " + std::to_wstring(fault.place) + L", " + site.name + L", " +
         std::wstring(NameOf(fault.way)) + L": ";
}

/// One run with all its faults.
class Matrix {
 public:
  explicit Matrix(const RecordedRun& recorded)
      : isWrittenDown_(recorded.name == kWrittenDown), scene_(recorded.scene()), replays_(scene_) {
    if (isWrittenDown_) journal_.Attend(scene_);
    undisturbed_ = PerformOnce({}, {});
    undisturbedComplaints_ = ComplaintsOn(undisturbed_, {});
  }

  bool isWrittenDown() const { return isWrittenDown_; }
  const Shown& undisturbed() const { return undisturbed_; }
  const Complaints& undisturbedComplaints() const { return undisturbedComplaints_; }

  void TryAll() {
    for (std::size_t i = 0; i < undisturbed_.sites.size(); ++i) {
      for (const Way way : WaysOf(undisturbed_.sites[i])) Try({static_cast<int>(i) + 1, way});
    }
  }

  int cases() const { return cases_; }
  int cancels() const { return cancels_; }
  std::size_t ways() const { return ways_.size(); }
  const Complaints& complaints() const { return complaints_; }

 private:
  void Try(Fault fault) {
    const Shown shown = Judged(fault, {});
    // Every question that comes with the fault is answered both ways.
    for (const Event& event : shown.timeline) {
      if (!event.afterFault || event.question == 0) continue;
      ++cancels_;
      Judged(fault, {.question = event.question});
    }
  }

  Shown PerformOnce(Fault fault, Cancelling cancelling) {
    journal_.folder.files.clear();
    return Perform(scene_, fault, cancelling);
  }

  Complaints ComplaintsOn(const Shown& shown, Fault fault) {
    Complaints found = Judge(replays_, undisturbed_, shown, fault);
    if (isWrittenDown_ && shown.stuck.empty()) {
      // As a form of payment a huge text is thousands of values.
      const auto withholding =
          fault.way == Way::kHugeText ? Withholding::kPossible : Withholding::kNever;
      for (std::wstring& more : OnTheJournal(shown, journal_.folder.Text(), withholding)) {
        found.push_back(std::move(more));
      }
    }
    return found;
  }

  Shown Judged(Fault fault, Cancelling cancelling) {
    ++cases_;
    ways_.insert(fault.way);
    Shown shown = PerformOnce(fault, cancelling);
    const CallSite& site = undisturbed_.sites[static_cast<std::size_t>(fault.place) - 1];
    for (const std::wstring& complaint : ComplaintsOn(shown, fault)) {
      complaints_.push_back(NameOf(fault, site) + complaint);
    }
    return shown;
  }

  bool isWrittenDown_;
  journal::JournalBench journal_;
  practice::RehearsalScene scene_;
  Replays replays_;
  Shown undisturbed_;
  Complaints undisturbedComplaints_;
  int cases_ = 0;
  int cancels_ = 0;
  std::set<Way> ways_;
  Complaints complaints_;
};

class FaultMatrix : public testing::TestWithParam<RecordedRun> {};

TEST_P(FaultMatrix, KeepsEveryPromiseWhicheverCallFails) {
  const auto started = std::chrono::steady_clock::now();
  Matrix matrix(GetParam());
  ASSERT_EQ(matrix.undisturbedComplaints(), Complaints{});
  matrix.TryAll();
  const auto took = std::chrono::steady_clock::now() - started;
  std::cout << "faults injected into " << GetParam().name << ": " << matrix.cases() << " ("
            << matrix.cancels() << " with a Cancel) in " << matrix.ways() << " ways at "
            << matrix.undisturbed().sites.size() << " calls"
            << (matrix.isWrittenDown() ? ", each with its journal, " : ", ")
            << std::chrono::duration_cast<std::chrono::milliseconds>(took).count() << " ms\n";
  std::wstring shown;
  for (std::size_t i = 0; i < std::min(kShownComplaints, matrix.complaints().size()); ++i) {
    shown += L"\n" + matrix.complaints()[i];
  }
  EXPECT_TRUE(matrix.complaints().empty())
      << matrix.complaints().size() << " complaints:" << common::ToUtf8(shown);
}

TEST(RecordedRuns, HaveEachAnEntryOfTheirOwnInTheTests) {
  std::string names;
  for (const RecordedRun& run : RecordedRuns())
    names += (names.empty() ? "" : ",") + std::string(run.name);
  EXPECT_EQ(names, PTA_FAULT_RUNS);
}

INSTANTIATE_TEST_SUITE_P(Runs, FaultMatrix, testing::ValuesIn(RecordedRuns()),
                         [](const auto& tested) { return std::string(tested.param.name); });

}  // namespace
}  // namespace faults
