#include <gtest/gtest.h>

#include "ui/controls/WindowlessDesktop.h"

namespace ui {
namespace {

using Events = std::vector<std::wstring>;

/// Writes down what the program sets.
struct PushedSets : WindowlessView {
  std::vector<std::pair<std::wstring, Property>> sets;
  int formSets = 0;
  void ControlSet(Control& control, Property property) override {
    sets.emplace_back(control.name(), property);
  }
  void FormSet(Form&) override { ++formSets; }
};

struct OneOfEach : Form {
  OneOfEach() : Form(L"OneOfEach") {}
  Label label{*this, L"label", L"&Label:"};
  Frame frame{*this, L"frame", L"Frame"};
  TextBox text{*this, L"text"};
  CheckBox check{*this, L"check", L"Check"};
  Button button{*this, L"button", L"Button"};
  ListBox single{*this, L"single", ListBox::Selection::kSingle};
  ListBox multiple{*this, L"multiple", ListBox::Selection::kMultiple};
  StatusBar status{*this, L"status"};
  Timer timer{*this, L"timer"};
};

struct ControlsBench {
  ControlsBench() {
    form.Load();
    form.Shown(view);
    form.text.onChange = [this] { events.push_back(L"change " + std::wstring(form.text.Text())); };
    form.check.onClick = [this] { events.push_back(form.check.Value() ? L"ticked" : L"unticked"); };
    form.button.onClick = [this] { events.push_back(L"clicked"); };
    form.timer.onTimer = [this] { events.push_back(L"tick"); };
  }
  Events TakeEvents() { return std::exchange(events, {}); }
  std::vector<std::pair<std::wstring, Property>> TakeSets() { return std::exchange(view.sets, {}); }

  PushedSets view;
  OneOfEach form;
  Events events;
};

using Sets = std::vector<std::pair<std::wstring, Property>>;

TEST(TextBox, SettingTheTextRaisesChangeAlsoWhenItIsTheSame) {
  ControlsBench bench;
  bench.form.text.SetText(L"A");
  bench.form.text.SetText(L"A");
  EXPECT_EQ(bench.TakeEvents(), (Events{L"change A", L"change A"}));
}

TEST(TextBox, SettingTheTextIsPushedBeforeChangeIsRaised) {
  ControlsBench bench;
  std::size_t pushed = 0;
  bench.form.text.onChange = [&] { pushed = bench.view.sets.size(); };
  bench.form.text.SetText(L"A");
  EXPECT_EQ(pushed, 1U);
  EXPECT_EQ(bench.TakeSets(), (Sets{{L"text", Property::kText}}));
}

TEST(TextBox, SettingTheTextUnselects) {
  ControlsBench bench;
  bench.form.text.SetText(L"ABC");
  bench.form.text.SelectAll();
  bench.form.text.SetText(L"ABC");
  EXPECT_EQ(bench.form.text.SelectionStart(), 0);
  EXPECT_EQ(bench.form.text.SelectionLength(), 0);
}

TEST(TextBox, AFieldCanBeSetToItsOwnTextAndToAPartOfIt) {
  ControlsBench bench;
  bench.form.text.SetText(L"a text too long to be kept inside the object itself");
  bench.form.text.SetText(bench.form.text.Text());
  EXPECT_EQ(bench.form.text.Text(), L"a text too long to be kept inside the object itself");
  bench.form.text.SetText(bench.form.text.Text().substr(2));
  EXPECT_EQ(bench.form.text.Text(), L"text too long to be kept inside the object itself");
}

TEST(TextBox, WhatTheUserTypesRaisesChangeAndIsNotEchoed) {
  ControlsBench bench;
  bench.form.text.TextTyped(L"A");
  EXPECT_EQ(bench.TakeEvents(), Events{L"change A"});
  EXPECT_EQ(bench.TakeSets(), Sets{});
}

TEST(TextBox, TypingOverASelectionLeavesNoSelectionPastTheEnd) {
  ControlsBench bench;
  bench.form.text.SetText(L"80246878");
  bench.form.text.SelectAll();
  bench.form.text.TextTyped(L"8");
  EXPECT_EQ(bench.form.text.SelectionLength(), 0);
  bench.form.text.SelectionMoved(1, 0);
  bench.form.text.TextTyped(L"");
  EXPECT_EQ(bench.form.text.SelectionStart(), 0);
}

TEST(TextBox, TheSelectionStaysWithinTheText) {
  ControlsBench bench;
  bench.form.text.SetText(L"ABC");
  bench.form.text.Select(1, 10);
  EXPECT_EQ(bench.form.text.SelectionStart(), 1);
  EXPECT_EQ(bench.form.text.SelectionLength(), 2);
  bench.form.text.Select(-1, -1);
  EXPECT_EQ(bench.form.text.SelectionStart(), 0);
  EXPECT_EQ(bench.form.text.SelectionLength(), 0);
  bench.form.text.Select(9, 1);
  EXPECT_EQ(bench.form.text.SelectionStart(), 3);
  EXPECT_EQ(bench.form.text.SelectionLength(), 0);
}

TEST(TextBox, TheUsersSelectionIsNotEchoedAndTheProgramsIsPushed) {
  ControlsBench bench;
  bench.form.text.TextTyped(L"ABC");
  bench.form.text.SelectionMoved(0, 2);
  EXPECT_EQ(bench.TakeSets(), Sets{});
  bench.form.text.SelectAll();
  EXPECT_EQ(bench.TakeSets(), (Sets{{L"text", Property::kSelection}}));
}

TEST(TextBox, AKeyPassesAHandlerThatIsNotThere) {
  ControlsBench bench;
  EXPECT_EQ(bench.form.text.FilterKey(L'x'), L'x');
}

TEST(TextBox, AKeyHandlerMayChangeOrRefuseTheCharacter) {
  ControlsBench bench;
  bench.form.text.onKeyPress = [](wchar_t& character) {
    character = character == L'a' ? L'A' : L'\0';
  };
  EXPECT_EQ(bench.form.text.FilterKey(L'a'), L'A');
  EXPECT_EQ(bench.form.text.FilterKey(L'b'), L'\0');
}

TEST(TextBox, TheColourIsPushedOnlyWhenItChanges) {
  ControlsBench bench;
  bench.form.text.SetBackColor(kWindowBackground);
  EXPECT_EQ(bench.TakeSets(), Sets{});
  bench.form.text.SetBackColor(kYellow);
  EXPECT_EQ(bench.TakeSets(), (Sets{{L"text", Property::kBackColor}}));
}

TEST(TextBox, ALockedFieldCanBeFocused) {
  ControlsBench bench;
  bench.form.text.SetLocked(true);
  EXPECT_EQ(bench.TakeSets(), (Sets{{L"text", Property::kLocked}}));
  bench.form.text.SetFocus();
  EXPECT_TRUE(bench.form.text.HasFocus());
}

TEST(CheckBox, SettingANewValueIsPushedAndRaisesClick) {
  ControlsBench bench;
  bench.form.check.SetValue(true);
  bench.form.check.SetValue(false);
  EXPECT_EQ(bench.TakeEvents(), (Events{L"ticked", L"unticked"}));
  EXPECT_EQ(bench.TakeSets(), (Sets{{L"check", Property::kValue}, {L"check", Property::kValue}}));
}

TEST(CheckBox, SettingTheValueItHasDoesNothing) {
  ControlsBench bench;
  bench.form.check.SetValue(false);
  EXPECT_EQ(bench.TakeEvents(), Events{});
  EXPECT_EQ(bench.TakeSets(), Sets{});
}

TEST(CheckBox, TheUsersClickRaisesClickAndIsNotEchoed) {
  ControlsBench bench;
  bench.form.check.Clicked(true);
  EXPECT_EQ(bench.TakeEvents(), Events{L"ticked"});
  EXPECT_EQ(bench.TakeSets(), Sets{});
}

TEST(Button, AClickRaisesClick) {
  ControlsBench bench;
  bench.form.button.Clicked();
  EXPECT_EQ(bench.TakeEvents(), Events{L"clicked"});
}

TEST(Timer, ATickRaisesTheTimer) {
  ControlsBench bench;
  EXPECT_EQ(bench.form.timer.Interval(), 0);
  bench.form.timer.SetInterval(5000);
  EXPECT_EQ(bench.TakeSets(), (Sets{{L"timer", Property::kInterval}}));
  bench.form.timer.Ticked();
  EXPECT_EQ(bench.TakeEvents(), Events{L"tick"});
}

TEST(Events, WithoutHandlersNothingHappens) {
  OneOfEach form;
  form.text.SetText(L"A");
  form.text.TextTyped(L"B");
  form.check.SetValue(true);
  form.check.Clicked(false);
  form.button.Clicked();
  form.timer.Ticked();
  EXPECT_EQ(form.text.Text(), L"B");
  EXPECT_FALSE(form.check.Value());
}

TEST(ListBox, LinesKeepTheirOrderAndTheirNumbers) {
  ControlsBench bench;
  bench.form.single.Add(L"first", 7);
  bench.form.single.Add(L"second", -1);
  ASSERT_EQ(bench.form.single.Count(), 2);
  EXPECT_EQ(bench.form.single.Items()[0].text, L"first");
  EXPECT_EQ(bench.form.single.Items()[0].data, 7);
  EXPECT_EQ(bench.form.single.Items()[1].text, L"second");
  EXPECT_EQ(bench.form.single.Items()[1].data, -1);
  EXPECT_EQ(bench.form.single.ListIndex(), -1);
}

TEST(ListBox, ASingleSelectionMovesFromLineToLine) {
  ControlsBench bench;
  bench.form.single.Add(L"first");
  bench.form.single.Add(L"second");
  bench.form.single.Select(1);
  EXPECT_EQ(bench.form.single.ListIndex(), 1);
  bench.form.single.Select(0);
  EXPECT_EQ(bench.form.single.ListIndex(), 0);
  EXPECT_FALSE(bench.form.single.Items()[1].selected);
}

TEST(ListBox, ALineThatIsNotThereUnselectsASingleSelection) {
  ControlsBench bench;
  bench.form.single.Add(L"first");
  bench.form.single.Select(0);
  bench.form.single.Select(-1);
  EXPECT_EQ(bench.form.single.ListIndex(), -1);
  bench.form.single.Select(5);
  EXPECT_EQ(bench.form.single.ListIndex(), -1);
}

TEST(ListBox, AMultipleSelectionAddsUp) {
  ControlsBench bench;
  for (const wchar_t* line : {L"a", L"b", L"c"}) bench.form.multiple.Add(line);
  bench.form.multiple.Select(2);
  bench.form.multiple.Select(1);
  EXPECT_EQ(bench.form.multiple.ListIndex(), 1);
  EXPECT_FALSE(bench.form.multiple.Items()[0].selected);
  EXPECT_TRUE(bench.form.multiple.Items()[1].selected);
  EXPECT_TRUE(bench.form.multiple.Items()[2].selected);
}

TEST(ListBox, TheUsersSelectionReplacesTheOldOneAndIsNotEchoed) {
  ControlsBench bench;
  for (const wchar_t* line : {L"a", L"b", L"c"}) bench.form.multiple.Add(line);
  bench.form.multiple.Select(0);
  bench.TakeSets();
  bench.form.multiple.SelectionChanged({false, true});
  EXPECT_FALSE(bench.form.multiple.Items()[0].selected);
  EXPECT_TRUE(bench.form.multiple.Items()[1].selected);
  EXPECT_FALSE(bench.form.multiple.Items()[2].selected);
  EXPECT_EQ(bench.TakeSets(), Sets{});
}

TEST(ListBox, ClearingTakesLinesAndSelection) {
  ControlsBench bench;
  bench.form.single.Add(L"first");
  bench.form.single.Select(0);
  bench.form.single.Clear();
  EXPECT_EQ(bench.form.single.Count(), 0);
  EXPECT_EQ(bench.form.single.ListIndex(), -1);
}

TEST(Focus, OnlyControlsOfTheUserThatAreOnTakeTheFocus) {
  ControlsBench bench;
  std::vector<std::wstring> takes;
  for (Control* control : bench.form.controls()) {
    if (control->CanFocus()) takes.emplace_back(control->name());
  }
  EXPECT_EQ(takes, (Events{L"text", L"check", L"button", L"single", L"multiple"}));
  bench.form.text.SetEnabled(false);
  EXPECT_FALSE(bench.form.text.CanFocus());
  bench.form.text.SetFocus();
  EXPECT_FALSE(bench.form.text.HasFocus());
  bench.form.label.SetFocus();
  EXPECT_EQ(bench.form.ActiveControl(), nullptr);
}

TEST(Form, TheViewHearsOfCaptionPointerAndKeyPreview) {
  ControlsBench bench;
  bench.form.SetCaption(L"Caption");
  bench.form.SetPointer(MousePointer::kHourglass);
  EXPECT_EQ(bench.view.formSets, 2);
  bench.form.SetKeyPreview(true);
  EXPECT_EQ(bench.view.formSets, 3);
}

TEST(InputGate, ItIsShutForALifetimeAndNests) {
  InputGate gate;
  EXPECT_TRUE(gate.IsOpen());
  {
    const InputGate::Shut outer(gate);
    EXPECT_FALSE(gate.IsOpen());
    {
      const InputGate::Shut inner(gate);
      EXPECT_FALSE(gate.IsOpen());
    }
    EXPECT_FALSE(gate.IsOpen());
  }
  EXPECT_TRUE(gate.IsOpen());
}

}  // namespace
}  // namespace ui
