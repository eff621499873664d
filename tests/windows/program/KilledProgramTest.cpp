#include <gtest/gtest.h>

#include "platform/win32/WindowsPlatform.h"
#include "practice/host/Host.h"
#include "tests/run/Scenes.h"
#include "tests/windows/driver/Driver.h"
#include "tests/windows/program/Boxes.h"
#include "tests/windows/program/Stage.h"
#include "tests/windows/terminal/Client.h"
#include "ui/win32/resource.h"

// The program is killed while it waits for its agent, in one window after the other. The terminal
// goes on, and gives up what it had made for the program.
namespace driver {
namespace {

using std::chrono::seconds;

class AKilledProgram : public testing::Test {
 protected:
  void Set(practice::RehearsalScene scene) {
    scene.today = platform::WindowsPlatform().Today();
    booking_ = scene.booking;
    stage_.Set(scene);
  }
  void Work(const std::wstring& lines) {
    WindowAgent(stage_.program(), practice::ReadAgentScript(lines))
        .Work([](HWND, const std::wstring&) {});
  }

  /// The PNR is what the entries so far make of the booking.
  void LeavesTheTerminalUnharmed() {
    EXPECT_TRUE(Holds([] { return client::LiveObjects() == 0; }));
    practice::Host host;
    host.LoadBooking(booking_);
    for (const std::wstring& entry : stage_.terminal().Entries()) host.Enter(entry);
    EXPECT_EQ(ToUtf8(stage_.PnrAfter()), ToUtf8(Stage::WithLineFeeds(host.PnrText())));
  }

  Stage stage_;

 private:
  std::wstring booking_;
};

struct Place {
  const char* name;
  const wchar_t* wayThere;
  int control;  ///< that no other window has
};

class InADialog : public AKilledProgram, public testing::WithParamInterface<Place> {};

TEST_P(InADialog, LeavesTheTerminalUnharmed) {
  auto scene = run::OrdinaryScene();
  scene.booking = run::ReadProjectFile("tests/faults/bookings/waiting-and-choosing.pnr");
  Set(scene);
  stage_.Start();
  Work(GetParam().wayThere);
  ASSERT_NE(stage_.program().WaitForWindowWith(GetParam().control), nullptr);
  stage_.program().Kill();
  LeavesTheTerminalUnharmed();
}

INSTANTIATE_TEST_SUITE_P(
    Forms, InADialog,
    testing::Values(
        Place{"ThatWaitsForTheMCO", L"form frmWaitForMCO\n", ID_lstMCOElements},
        Place{"ThatListsTheMCOs", L"form frmWaitForMCO\ntick tmrWait\nform frmSelectMCO\n",
              ID_lstMCO},
        Place{"ThatListsTheTSTs",
              L"form frmWaitForMCO\ntick tmrWait\nform frmSelectMCO\npick lstMCO 2\nclick btnOK\n"
              L"form frmSelectTST\n",
              ID_lstTST}),
    [](const auto& tested) { return std::string(tested.param.name); });

TEST_F(AKilledProgram, BehindItsProgressWindowLeavesTheTerminalUnharmed) {
  Set(run::OrdinaryScene());
  stage_.terminal().HoldEntry(1, seconds(60));
  const int before = stage_.terminal().EntryCount();
  ASSERT_NE(stage_.Start().WaitForWindowWith(ID_lblWorking), nullptr);
  WaitUntil(L"the entry has arrived", [&] { return stage_.terminal().EntryCount() == before + 1; });
  stage_.program().Kill();
  stage_.terminal().BehaveWell();
  LeavesTheTerminalUnharmed();
}

TEST_F(AKilledProgram, InABoxOfItsOwnLeavesTheTerminalUnharmed) {
  Set(run::SceneOf("no-mco"));
  const HWND box = stage_.Start().WaitForBox();
  EXPECT_EQ(BoxText(box), L"No MCO's in PNR, script is closing");
  stage_.program().Kill();
  WaitUntil(L"the box is gone", [box] { return !IsWindow(box); });
  LeavesTheTerminalUnharmed();
}

// The box stays until somebody answers it; the program's objects do not.
TEST_F(AKilledProgram, InABoxThatTheTerminalShowsForItLeavesTheTerminalUnharmed) {
  auto scene = run::OrdinaryScene();
  scene.hasIni = false;
  Set(scene);
  const HWND box = stage_.Start().WaitForBox();
  EXPECT_EQ(Stage::WithLineFeeds(BoxText(box)).substr(0, 28), L"The ini file does not exist!");
  stage_.program().Kill();
  PressOk(box);
  LeavesTheTerminalUnharmed();
  Set(run::OrdinaryScene());
  stage_.WorkLikeTheOrdinaryAgent();
  EXPECT_EQ(stage_.ExitCode(), 0u);
}

}  // namespace
}  // namespace driver
