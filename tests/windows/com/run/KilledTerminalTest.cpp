#include <cstdlib>

#include "app/Program.h"
#include "common/ConstDefintions.h"
#include "common/LineFeeds.h"
#include "tests/faults/Run.h"
#include "tests/run/Scenes.h"
#include "tests/windows/com/run/AgentAtTheTerminal.h"
#include "tests/windows/com/run/RunningTerminal.h"
#include "tests/windows/com/run/WatchedLibrary.h"

// A terminal that is killed in the middle of a run, at one call after the other. The agent must see
// what the fault matrix shows, natively, for a library that is gone from that call on while another
// one makes the new objects: the system starts the terminal's program anew when it is asked for
// one. ./test takes a sample; with PTA_EVERY_CALL in the environment every call has its turn.
namespace com_run {
namespace {

constexpr int kFirstCall = 1;
constexpr int kBetweenSamples = 29;

/// A box in one line: its style, its title and its text.
using Boxes = std::vector<std::string>;

std::string Line(int style, const std::wstring& title, const std::wstring& text) {
  return std::to_string(style) + " \"" + common::ToUtf8(title) + "\" \"" +
         common::ToUtf8(common::WithLineFeeds(text)) + "\"";
}

/// The boxes of a run; a failure's own words, which the library has from the system, instead of
/// those that the fault matrix puts there.
Boxes BoxesOf(const faults::Timeline& timeline, const std::wstring& words) {
  Boxes boxes;
  for (const faults::Event& event : timeline) {
    if (event.kind != faults::Event::Kind::kBox) continue;
    boxes.push_back(
        Line(event.style, event.title, common::Replace(event.text, faults::kFaultText, words)));
  }
  return boxes;
}

class KilledTerminal : public RunningTerminal {
 protected:
  /// Runs the ordinary booking to its end, however it ends, and gives the boxes that were shown.
  Boxes RunToTheEnd(Watch& watch) {
    WatchedLibrary watched(library_, watch);
    faults::Timeline timeline;
    faults::PatientAgent agent(scene_.agent, {}, timeline);
    AgentAtTheTerminal atTheTerminal;
    try {
      EXPECT_EQ(app::RunProgram(watched, agent, platform_), 0);
    } catch (const faults::AgentStuck& stuck) {
      ADD_FAILURE() << "the agent is stuck: " << common::ToUtf8(stuck.where);
    }
    const auto end = Watch::Clock::now();
    if (watch.failure()) {
      EXPECT_LT(end - watch.failure()->when, std::chrono::seconds(5));
    }
    EXPECT_EQ(watch.live(), 0);
    Boxes boxes;
    for (const SeenBox& box : atTheTerminal.Leave()) {
      boxes.push_back(Line(box.hasIcon ? common::kCritical : 0, box.title, box.text));
    }
    for (std::string& box : BoxesOf(timeline, {})) boxes.push_back(std::move(box));
    return boxes;
  }

  /// What the same run shows natively when its library dies before this call.
  Boxes Natively(int place, const Watch& watch) const {
    const faults::Shown shown =
        faults::Perform(scene_, {.place = place, .way = faults::Way::kLibraryReplaced});
    return BoxesOf(shown.timeline, watch.failure() ? watch.failure()->words : std::wstring());
  }

  /// A terminal as at the beginning of a run.
  void Open() {
    Start();
    Set(scene_);
  }

  practice::RehearsalScene scene_ = run::OrdinaryScene();
};

TEST_F(KilledTerminal, BeforeAnyCallShowsTheBoxesOfTheFaultMatrix) {
  Telling([&] {
    Open();
    Watch undisturbed;
    ASSERT_EQ(RunToTheEnd(undisturbed), Boxes{});
    const auto sites = faults::Perform(scene_).sites;
    // Else the places would not be the same calls.
    ASSERT_EQ(undisturbed.count(), static_cast<int>(sites.size()));
    const int step = std::getenv("PTA_EVERY_CALL") != nullptr ? 1 : kBetweenSamples;
    int kills = 0;
    int beforeMakings = 0;
    for (int place = kFirstCall; place <= undisturbed.count(); place += step, ++kills) {
      const faults::CallSite& site = sites[static_cast<std::size_t>(place) - 1];
      SCOPED_TRACE("killed before call " + std::to_string(place) + ", " +
                   common::ToUtf8(site.name));
      beforeMakings += site.isCreation ? 1 : 0;
      Open();
      Watch watch(place, [this] { terminal_->Kill(); });
      const Boxes boxes = RunToTheEnd(watch);
      EXPECT_EQ(boxes, Natively(place, watch));
    }
    std::cout << "terminals killed: " << kills << " before one of " << undisturbed.count()
              << " calls, " << beforeMakings << " of them the making of an object\n";
    // The first one is that of the first object; a sample must have others, in the midst of a run.
    EXPECT_TRUE(sites[kFirstCall - 1].isCreation);
    EXPECT_GE(beforeMakings, 2);
  });
}

TEST_F(KilledTerminal, InTheMiddleOfAnyEntryShowsTheBoxesOfTheFaultMatrix) {
  Telling([&] {
    Open();
    Watch undisturbed;
    RunToTheEnd(undisturbed);
    const int entries = static_cast<int>(terminal_->Entries().size());
    ASSERT_GT(entries, 10);
    for (int entry = 1; entry <= entries; ++entry) {
      SCOPED_TRACE("dies in entry " + std::to_string(entry));
      Open();
      terminal_->DieInEntry(entry);
      Watch watch;
      // Wine must know, too, that it is dead.
      watch.onFailure = [this] { terminal_->Kill(); };
      const Boxes boxes = RunToTheEnd(watch);
      ASSERT_TRUE(watch.failure());
      EXPECT_EQ(boxes, Natively(watch.failure()->place, watch));
      EXPECT_NE(boxes, Boxes{});
    }
    std::cout << "terminals that died in an entry: " << entries << "\n";
  });
}

}  // namespace
}  // namespace com_run
