#include <gtest/gtest.h>

#include "tests/mco/WaitBench.h"

namespace mco {
namespace {

using namespace hostlib::operations;

TEST(WaitForMCO, WithAllFANumbersThereTheDialogIsNeverSeen) {
  WaitBench bench;
  bench.segments = WaitBench::Complete();
  bench.wait.ShowWaitForMCO();
  EXPECT_TRUE(bench.desktop.log.empty());
  EXPECT_TRUE(bench.wait.form().WaitOK());
}

TEST(WaitForMCO, ReturnsWhenTheFAArrivesAndNotBefore) {
  WaitBench bench;
  bool waitedOnce = false;
  bench.desktop.inModal = [&](ui::Form& shown) {
    auto& form = static_cast<frmWaitForMCO&>(shown);
    form.tmrWait.Ticked();
    waitedOnce = form.IsVisible();
    bench.segments = WaitBench::Complete();
    form.tmrWait.Ticked();
    EXPECT_FALSE(form.IsVisible());
  };
  bench.wait.ShowWaitForMCO();
  EXPECT_TRUE(waitedOnce);
  EXPECT_EQ(bench.desktop.log, (Lines{L"modal frmWaitForMCO", L"close frmWaitForMCO"}));
}

TEST(WaitForMCO, CancelEndsTheScript) {
  WaitBench bench;
  bench.desktop.inModal = [](ui::Form& form) {
    static_cast<frmWaitForMCO&>(form).cmdCancel.Clicked();
  };
  EXPECT_THROW(bench.wait.ShowWaitForMCO(), support::EndedByEndScript);
}

TEST(WaitForMCO, TheCloseBoxEndsTheScript) {
  WaitBench bench;
  bench.desktop.inModal = [](ui::Form& form) { form.OnCloseBox(); };
  EXPECT_THROW(bench.wait.ShowWaitForMCO(), support::EndedByEndScript);
}

TEST(WaitForMCO, TheScriptIsEndedAfterTheDialogHasClosed) {
  WaitBench bench;
  bool cancelReturned = false;
  bench.desktop.inModal = [&](ui::Form& form) {
    static_cast<frmWaitForMCO&>(form).cmdCancel.Clicked();
    cancelReturned = true;
  };
  EXPECT_THROW(bench.wait.ShowWaitForMCO(), support::EndedByEndScript);
  EXPECT_TRUE(cancelReturned);
  EXPECT_EQ(bench.desktop.log.back(), L"close frmWaitForMCO");
}

TEST(WaitForMCO, ACancelledWaitIsForgottenBeforeTheNext) {
  WaitBench bench;
  bench.desktop.inModal = [](ui::Form& form) { form.OnCloseBox(); };
  EXPECT_THROW(bench.wait.ShowWaitForMCO(), support::EndedByEndScript);
  // A wait that a report ends leaves the flag as the caller had cleared it.
  bench.scripted.Fail(terminal_session::kLoadPNR, 77, L"the line is down");
  EXPECT_NO_THROW(bench.wait.ShowWaitForMCO());
}

TEST(WaitForMCO, AReportThatStopsTheRunWhileLoadingIsLeftToTheCaller) {
  WaitBench bench;
  bench.scripted.Fail(terminal_session::kLoadPNR, 77, L"the line is down");
  bench.wait.ShowWaitForMCO();
  EXPECT_TRUE(bench.stop.isSet);
  EXPECT_TRUE(bench.desktop.log.empty());
}

TEST(WaitForMCO, AReportThatStopsTheRunDuringATickIsLeftToTheCaller) {
  WaitBench bench;
  bench.desktop.inModal = [&](ui::Form& shown) {
    bench.scripted.Fail(terminal_session::kLoadPNR, 77, L"the line is down");
    static_cast<frmWaitForMCO&>(shown).tmrWait.Ticked();
    EXPECT_FALSE(shown.IsVisible());
  };
  bench.wait.ShowWaitForMCO();
  EXPECT_TRUE(bench.stop.isSet);
}

TEST(WaitForMCO, WithoutAnyMCOTheProgramEndsAtOnceAndTheDialogIsNotSeen) {
  WaitBench bench;
  bench.segments.clear();
  EXPECT_THROW(bench.wait.ShowWaitForMCO(), support::EndedAtOnce);
  EXPECT_EQ(bench.desktop.log, Lines{L"box 0 \"\" \"No MCO's in PNR, script is closing\" -> 1"});
}

}  // namespace
}  // namespace mco
