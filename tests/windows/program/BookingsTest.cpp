#include <gtest/gtest.h>

#include "common/Text.h"
#include "fares/Amounts.h"
#include "platform/win32/WindowsPlatform.h"
#include "tests/run/Scenes.h"
#include "tests/windows/driver/Driver.h"
#include "tests/windows/program/Stage.h"

// Every practice booking with its written agent, in the real windows and over COM. The host is
// asked the same, and the PNR is afterwards the same, as when the run is rehearsed without either.
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

class Booking : public testing::TestWithParam<std::string> {
 protected:
  static void SetUpTestSuite() { terminal_ = std::make_shared<terminal::PracticeTerminal>(); }
  static void TearDownTestSuite() { terminal_ = nullptr; }

  static Stage::TerminalPtr terminal_;
  platform::WindowsPlatform machine_;
};

Stage::TerminalPtr Booking::terminal_;

TEST_P(Booking, GoesInTheRealWindowsAsItIsRehearsed) {
  if (GetParam() == "document-missing") {
    GTEST_SKIP() << "it waits for minutes of the real clock; document-on-its-way waits once";
  }
  practice::RehearsalScene scene = run::SceneOf(GetParam());
  scene.decimal = common::ToUtf8(fares::GetDecimalSymbol(machine_));
  scene.today = machine_.Today();
  const auto rehearsed = practice::Rehearse(scene);
  ASSERT_EQ(ToUtf8(rehearsed.disagreement), "");

  Stage stage(terminal_);
  stage.Set(scene);
  stage.Work(scene.agent);
  EXPECT_EQ(stage.program().ExitCode(), static_cast<DWORD>(rehearsed.exitCode));
  EXPECT_EQ(stage.terminal().Entries(), rehearsed.EntryTexts());
  EXPECT_EQ(ToUtf8(stage.PnrAfter()), ToUtf8(Stage::WithLineFeeds(rehearsed.pnrAfter)));
}

INSTANTIATE_TEST_SUITE_P(Practice, Booking, testing::ValuesIn(BookingsWithAgent()), TestName);

}  // namespace
}  // namespace driver
