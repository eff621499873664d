#include <gtest/gtest.h>

#include "tests/ui/DialogBench.h"

namespace ui {
namespace {

const Lines kInvalidFieldsReport = {
    L"ScriptErrorReporter.1.18 ShowError(-2147221449, \"  PTA Script \", \"Invalid fields!\", 16)"};

struct Shown : DialogBench {
  Shown() {
    ShowFilled();
    TakeLog();
    actions.calls.clear();
  }
  bool TakesInput() { return desktop.input().IsOpen(); }
};

TEST(OK, ValidFieldsSaveTheSettingsAndStartTheUpdateRun) {
  Shown bench;
  bench.form.cmdOK.Clicked();
  EXPECT_EQ(bench.actions.calls, (Lines{L"save", L"run"}));
  EXPECT_EQ(bench.TakeLog(), Lines{});
}

TEST(OK, AnInvalidFieldKeepsTheDialogOpenAndSavesNothing) {
  Shown bench;
  bench.form.txtCityCode.TextTyped(L"ST");
  bench.form.cmdOK.Clicked();
  EXPECT_EQ(bench.actions.calls, Lines{});
  EXPECT_TRUE(bench.form.IsVisible());
  EXPECT_TRUE(bench.form.txtCityCode.HasFocus());
  EXPECT_EQ(bench.form.Pointer(), MousePointer::kDefault);
  EXPECT_TRUE(bench.TakesInput());
}

TEST(OK, TheHourglassComesAfterTheSettingsAndBeforeTheRun) {
  Shown bench;
  MousePointer whileSaving{};
  MousePointer whileRunning{};
  bench.actions.inSave = [&] { whileSaving = bench.form.Pointer(); };
  bench.actions.inRun = [&] { whileRunning = bench.form.Pointer(); };
  bench.form.cmdOK.Clicked();
  EXPECT_EQ(whileSaving, MousePointer::kDefault);
  EXPECT_EQ(whileRunning, MousePointer::kHourglass);
  EXPECT_EQ(static_cast<int>(whileRunning), 11);
}

TEST(OK, FromThePassedValidationOnTheDialogTakesNoInput) {
  Shown bench;
  bool whileSaving = true;
  bool whileRunning = true;
  bench.actions.inSave = [&] { whileSaving = bench.TakesInput(); };
  bench.actions.inRun = [&] { whileRunning = bench.TakesInput(); };
  bench.form.cmdOK.Clicked();
  EXPECT_FALSE(whileSaving);
  EXPECT_FALSE(whileRunning);
}

TEST(OK, WhileAValidationBoxIsUpTheDialogIsNotShut) {
  Shown bench;
  bench.form.txtCityCode.TextTyped(L"ST");
  bool whileBox = false;
  bench.desktop.inBox = [&] { whileBox = bench.TakesInput(); };
  bench.form.cmdOK.Clicked();
  EXPECT_TRUE(whileBox);
}

TEST(OK, TheEndOfTheRunPassesThroughAndOpensTheGate) {
  Shown bench;
  bench.actions.inRun = [&] { bench.room.runEnd.EndScript(); };
  EXPECT_THROW(bench.form.cmdOK.Clicked(), support::EndedByEndScript);
  EXPECT_TRUE(bench.TakesInput());
  EXPECT_EQ(bench.room.TakeCalls(), Lines{});
}

TEST(OK, TheDialogStaysLoadedForTheUpdateRun) {
  Shown bench;
  bool loaded = false;
  bench.actions.inRun = [&] { loaded = bench.form.IsLoaded() && bench.form.IsVisible(); };
  bench.form.cmdOK.Clicked();
  EXPECT_TRUE(loaded);
}

TEST(OK, AFailureWhileSavingIsReportedAndNothingIsRun) {
  Shown bench;
  bench.actions.inSave = [] { throw common::RunTimeError(L"broken"); };
  bench.form.cmdOK.Clicked();
  EXPECT_EQ(bench.room.TakeCalls(), kInvalidFieldsReport);
  EXPECT_EQ(bench.actions.calls, Lines{L"save"});
  EXPECT_EQ(bench.form.Pointer(), MousePointer::kDefault);
  EXPECT_TRUE(bench.TakesInput());
}

TEST(OK, AFailureInTheRunIsReportedAndTheDialogIsTheAgentsAgain) {
  Shown bench;
  bench.actions.inRun = [] { throw hostlib::LibraryError(77, L"lib", L"broken"); };
  bench.form.cmdOK.Clicked();
  EXPECT_EQ(bench.room.TakeCalls(), kInvalidFieldsReport);
  EXPECT_EQ(bench.form.Pointer(), MousePointer::kDefault);
  EXPECT_TRUE(bench.TakesInput());
}

TEST(OK, TheReportOfAFailedRunIsShownBehindAShutGate) {
  Shown bench;
  bool whileReport = true;
  bench.room.scripted.On(hostlib::operations::script_error_reporter::kShowError,
                         [&](const hostlib::Arguments&) -> hostlib::Value {
                           whileReport = bench.TakesInput();
                           return {};
                         });
  bench.actions.inRun = [] { throw common::RunTimeError(L"broken"); };
  bench.form.cmdOK.Clicked();
  EXPECT_FALSE(whileReport);
}

TEST(OK, UnloadingTheFormReleasesTheTerminalSessionOnce) {
  Shown bench;
  bench.form.Unload();
  EXPECT_EQ(bench.actions.calls, Lines{L"release session"});
  bench.form.Unload();
  EXPECT_EQ(bench.actions.calls, Lines{L"release session"});
}

TEST(OK, HidingTheFormReleasesNothing) {
  Shown bench;
  bench.form.Hide();
  EXPECT_EQ(bench.actions.calls, Lines{});
}

}  // namespace
}  // namespace ui
