#include <gtest/gtest.h>

#include "common/Text.h"
#include "fares/Amounts.h"
#include "platform/win32/WindowsPlatform.h"
#include "tests/run/Refusals.h"
#include "tests/windows/driver/Driver.h"
#include "tests/windows/program/Stage.h"

// Every practice booking with its written agent, in the real windows and over COM. The host is
// asked the same, and the PNR and the settings are afterwards the same, as when the run is
// rehearsed without either.
namespace driver {
namespace {

std::string TestName(const testing::TestParamInfo<std::string>& info) {
  std::string name = info.param;
  for (char& c : name) {
    if (c == '-' || c == '.') c = '_';
  }
  return name;
}

std::vector<std::string> BookingsWithAgent() {
  std::vector<std::string> names = run::BookingNames();
  std::erase_if(names, [](const std::string& name) { return !run::HasAgent(name); });
  return names;
}

/// One terminal for all of them.
class InTheTerminal : public testing::Test {
 protected:
  static void SetUpTestSuite() { terminal_ = std::make_shared<terminal::PracticeTerminal>(); }
  static void TearDownTestSuite() { terminal_ = nullptr; }

  /// The scene as this machine's user would see it.
  practice::RehearsalScene OfThisUser(practice::RehearsalScene scene) const {
    scene.decimal = common::ToUtf8(fares::GetDecimalSymbol(machine_));
    scene.today = machine_.Today();
    return scene;
  }

  /// Works the scene in the real windows; `told` tells the host what to do wrong first.
  void GoesAsItIsRehearsed(const practice::RehearsalScene& scene,
                           const std::function<void()>& told) {
    const auto rehearsed = practice::Rehearse(scene);
    ASSERT_EQ(ToUtf8(rehearsed.disagreement), "");
    Stage stage(terminal_);
    stage.Set(scene);
    told();
    stage.Work(scene.agent);
    EXPECT_EQ(stage.program().ExitCode(), static_cast<DWORD>(rehearsed.exitCode));
    EXPECT_EQ(stage.terminal().Entries(), rehearsed.EntryTexts());
    EXPECT_EQ(ToUtf8(stage.PnrAfter()), ToUtf8(Stage::WithLineFeeds(rehearsed.pnrAfter)));
    if (!scene.hasIni) return;
    EXPECT_EQ(ToUtf8(stage.Ini()), ToUtf8(Stage::WithLineFeeds(rehearsed.iniAfter)));
  }

  static Stage::TerminalPtr terminal_;
  platform::WindowsPlatform machine_;
};

Stage::TerminalPtr InTheTerminal::terminal_;

class Booking : public InTheTerminal, public testing::WithParamInterface<std::string> {};

TEST_P(Booking, GoesInTheRealWindowsAsItIsRehearsed) {
  if (GetParam() == "document-missing") {
    GTEST_SKIP() << "it waits for minutes of the real clock; document-on-its-way waits once";
  }
  GoesAsItIsRehearsed(OfThisUser(run::SceneOf(GetParam())), [] {});
}

class RefusedEntry : public InTheTerminal, public testing::WithParamInterface<run::Refusal> {};

TEST_P(RefusedEntry, IsToldInTheRealWindowsAndLeavesThePNRAsItIsRehearsed) {
  auto scene = OfThisUser(run::SceneOf(run::kRefusalBooking));
  const int place = run::PlaceOf(practice::Rehearse(scene).EntryTexts(), GetParam().entry);
  scene.prepare = [place](practice::Host& host) { host.faults.refusals[place] = L"TOLD TO"; };
  scene.agent += GetParam().agentGoesOn;
  GoesAsItIsRehearsed(scene, [&] { terminal_->RefuseEntry(place, L"TOLD TO"); });
}

INSTANTIATE_TEST_SUITE_P(Practice, RefusedEntry, testing::ValuesIn(run::AllRefusals()),
                         [](const auto& refusal) { return std::string(refusal.param.name); });

INSTANTIATE_TEST_SUITE_P(Practice, Booking, testing::ValuesIn(BookingsWithAgent()), TestName);

}  // namespace
}  // namespace driver
