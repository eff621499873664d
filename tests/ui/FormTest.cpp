#include <gtest/gtest.h>

#include "tests/support/FakeDesktop.h"

namespace ui {
namespace {

using Events = std::vector<std::wstring>;

/// Two fields and a button that write down their focus, and what happens to the form itself.
struct WatchedForm : Form {
  WatchedForm() : Form(L"WatchedForm") {}
  void OnGotFocus(Control& control) override {
    events.push_back(L"got " + std::wstring(control.name()));
  }
  void OnLostFocus(Control& control) override {
    events.push_back(L"lost " + std::wstring(control.name()));
    if (whenLost) std::exchange(whenLost, nullptr)();
  }
  void OnLoad() override {
    events.push_back(L"load");
    if (inLoad) inLoad();
  }
  void OnUnload() override { events.push_back(L"unload"); }
  Events TakeEvents() { return std::exchange(events, {}); }

  TextBox first{*this, L"first"};
  TextBox second{*this, L"second"};
  Button third{*this, L"third", L"Third"};
  std::function<void()> inLoad;
  std::function<void()> whenLost;  ///< done once
  Events events;
};

struct FormBench {
  support::FakeDesktop desktop;
  WatchedForm form;
};

struct ShownBench : FormBench {
  ShownBench() {
    desktop.Show(form);
    form.TakeEvents();
    desktop.log.clear();
  }
};

TEST(Form, ShowingLoadsOnce) {
  FormBench bench;
  bench.desktop.Show(bench.form);
  bench.form.Hide();
  bench.desktop.Show(bench.form);
  EXPECT_EQ(bench.form.TakeEvents(), Events{L"load"});
  EXPECT_TRUE(bench.form.IsVisible());
}

TEST(Form, AFormThatUnloadsItselfWhileLoadingIsNeverSeen) {
  FormBench bench;
  bench.form.inLoad = [&] { bench.form.Unload(); };
  bench.desktop.ShowModal(bench.form);
  EXPECT_EQ(bench.form.TakeEvents(), (Events{L"load", L"unload"}));
  EXPECT_EQ(bench.desktop.log, Events{});
  EXPECT_FALSE(bench.form.IsLoaded());
  EXPECT_FALSE(bench.form.IsVisible());
}

TEST(Form, HidingKeepsItLoadedAndTellsTheDesktopOnce) {
  ShownBench bench;
  bench.form.Hide();
  bench.form.Hide();
  EXPECT_TRUE(bench.form.IsLoaded());
  EXPECT_FALSE(bench.form.IsVisible());
  EXPECT_EQ(bench.desktop.log, Events{L"close WatchedForm"});
  EXPECT_EQ(bench.form.TakeEvents(), Events{});
}

TEST(Form, UnloadingHidesItFirstAndHappensOnce) {
  ShownBench bench;
  bench.form.Unload();
  bench.form.Unload();
  EXPECT_FALSE(bench.form.IsLoaded());
  EXPECT_FALSE(bench.form.IsVisible());
  EXPECT_EQ(bench.desktop.log, Events{L"close WatchedForm"});
  EXPECT_EQ(bench.form.TakeEvents(), Events{L"unload"});
}

TEST(Form, AHiddenFormIsUnloadedWithoutTellingTheDesktopAgain) {
  ShownBench bench;
  bench.form.Hide();
  bench.desktop.log.clear();
  bench.form.Unload();
  EXPECT_EQ(bench.desktop.log, Events{});
  EXPECT_EQ(bench.form.TakeEvents(), Events{L"unload"});
}

TEST(Form, AFormThatWasNeverLoadedIsNotUnloaded) {
  FormBench bench;
  bench.form.Unload();
  EXPECT_EQ(bench.form.TakeEvents(), Events{});
}

TEST(Form, AnUnloadedFormCanBeLoadedAgain) {
  ShownBench bench;
  bench.form.Unload();
  bench.desktop.Show(bench.form);
  EXPECT_EQ(bench.form.TakeEvents(), (Events{L"unload", L"load"}));
}

TEST(Form, ControlsAreFoundByTheirNameAndKeepTheirOrder) {
  FormBench bench;
  EXPECT_EQ(bench.form.Find(L"second"), &bench.form.second);
  EXPECT_EQ(bench.form.Find(L"Second"), nullptr);
  EXPECT_EQ(bench.form.controls(),
            (std::vector<Control*>{&bench.form.first, &bench.form.second, &bench.form.third}));
}

TEST(Form, TheFocusIsLostBeforeItIsGot) {
  ShownBench bench;
  bench.form.first.SetFocus();
  bench.form.second.SetFocus();
  EXPECT_EQ(bench.form.TakeEvents(), (Events{L"got first", L"lost first", L"got second"}));
  EXPECT_EQ(bench.form.ActiveControl(), &bench.form.second);
}

TEST(Form, TheControlsOwnHandlerComesBeforeTheForms) {
  ShownBench bench;
  bench.form.first.onGotFocus = [&] { bench.form.events.push_back(L"first has it"); };
  bench.form.first.SetFocus();
  EXPECT_EQ(bench.form.TakeEvents(), (Events{L"first has it", L"got first"}));
}

TEST(Form, AControlThatPassesTheFocusOnIsNotTheFormsAnyMore) {
  ShownBench bench;
  bench.form.first.onGotFocus = [&] { bench.form.second.SetFocus(); };
  bench.form.first.SetFocus();
  EXPECT_EQ(bench.form.TakeEvents(), (Events{L"lost first", L"got second"}));
  EXPECT_EQ(bench.form.ActiveControl(), &bench.form.second);
}

TEST(Form, AControlThatUnloadsTheFormGivesTheFocusToNobody) {
  ShownBench bench;
  bench.form.first.onGotFocus = [&] { bench.form.Unload(); };
  bench.form.first.SetFocus();
  EXPECT_EQ(bench.form.TakeEvents(), Events{L"unload"});
}

TEST(Form, TheFocusOnTheSameControlAgainRaisesNothing) {
  ShownBench bench;
  bench.form.first.SetFocus();
  bench.form.TakeEvents();
  bench.form.first.SetFocus();
  EXPECT_EQ(bench.form.TakeEvents(), Events{});
}

TEST(Form, WhileTheFocusIsLostTheNextControlIsTheActiveOneAlready) {
  ShownBench bench;
  bench.form.first.SetFocus();
  const Control* active = nullptr;
  bench.form.whenLost = [&] { active = bench.form.ActiveControl(); };
  bench.form.second.SetFocus();
  EXPECT_EQ(active, &bench.form.second);
}

TEST(Form, ALostFocusThatMovesTheFocusOnSkipsTheControlBetween) {
  ShownBench bench;
  bench.form.first.SetFocus();
  bench.form.TakeEvents();
  bench.form.whenLost = [&] { bench.form.third.SetFocus(); };
  bench.form.second.SetFocus();
  EXPECT_EQ(bench.form.TakeEvents(), (Events{L"lost first", L"lost second", L"got third"}));
  EXPECT_EQ(bench.form.ActiveControl(), &bench.form.third);
}

TEST(Form, ALostFocusThatMovesTheFocusAwayAndBackGivesItOnce) {
  ShownBench bench;
  bench.form.first.SetFocus();
  bench.form.TakeEvents();
  bench.form.whenLost = [&] {
    bench.form.third.SetFocus();
    bench.form.second.SetFocus();
  };
  bench.form.second.SetFocus();
  EXPECT_EQ(bench.form.TakeEvents(),
            (Events{L"lost first", L"lost second", L"got third", L"lost third", L"got second"}));
  EXPECT_EQ(bench.form.ActiveControl(), &bench.form.second);
}

TEST(Form, TheFocusCanLeaveTheFormAltogether) {
  ShownBench bench;
  bench.form.first.SetFocus();
  bench.form.TakeEvents();
  bench.form.FocusMovedTo(nullptr);
  EXPECT_EQ(bench.form.TakeEvents(), Events{L"lost first"});
  EXPECT_EQ(bench.form.ActiveControl(), nullptr);
}

TEST(Form, NothingTakesTheFocusWhileTheFormIsNotVisible) {
  FormBench bench;
  bench.form.Load();
  bench.form.first.SetFocus();
  EXPECT_EQ(bench.form.ActiveControl(), nullptr);
  bench.desktop.Show(bench.form);
  bench.form.Hide();
  bench.form.first.SetFocus();
  EXPECT_EQ(bench.form.ActiveControl(), nullptr);
}

TEST(Form, UnloadingWhileTheFocusIsLostGivesItToNobody) {
  ShownBench bench;
  bench.form.first.SetFocus();
  bench.form.TakeEvents();
  bench.form.whenLost = [&] { bench.form.Unload(); };
  bench.form.second.SetFocus();
  EXPECT_EQ(bench.form.TakeEvents(), (Events{L"lost first", L"unload"}));
  EXPECT_EQ(bench.form.ActiveControl(), nullptr);
}

/// Counts the forms that were destroyed under it.
struct LastingView : WindowlessView {
  int gone = 0;
  void FormGone(Form&) override { ++gone; }
};

TEST(Form, AVisibleFormThatIsDestroyedTellsItsView) {
  LastingView view;
  {
    WatchedForm form;
    form.Load();
    form.Shown(view);
  }
  EXPECT_EQ(view.gone, 1);
}

TEST(Form, AHiddenFormIsDestroyedUnnoticed) {
  LastingView view;
  {
    WatchedForm form;
    form.Load();
    form.Shown(view);
    form.Hide();
  }
  EXPECT_EQ(view.gone, 0);
}

TEST(Form, AFormThatItsViewLeftHidesAndTakesNoFocus) {
  ShownBench bench;
  bench.form.Detach();
  bench.form.first.SetFocus();
  EXPECT_EQ(bench.form.ActiveControl(), nullptr);
  bench.form.Hide();
  EXPECT_FALSE(bench.form.IsVisible());
  EXPECT_EQ(bench.desktop.log, Events{});
}

TEST(Form, TheCloseBoxOfAFormWithoutAnAnswerToItLeavesItAsItIs) {
  ShownBench bench;
  bench.form.OnCloseBox();
  EXPECT_TRUE(bench.form.IsLoaded());
  EXPECT_TRUE(bench.form.IsVisible());
  EXPECT_EQ(bench.form.TakeEvents(), Events{});
}

TEST(Form, SettingsOfAFormWithoutADesktopAreKept) {
  FormBench bench;
  bench.form.SetCaption(L"Caption");
  bench.form.SetPointer(MousePointer::kHourglass);
  bench.form.SetKeyPreview(true);
  EXPECT_EQ(bench.form.Caption(), L"Caption");
  EXPECT_EQ(bench.form.Pointer(), MousePointer::kHourglass);
  EXPECT_TRUE(bench.form.KeyPreview());
}

}  // namespace
}  // namespace ui
