#include <gtest/gtest.h>

#include "tests/ui/DialogBench.h"

namespace ui {
namespace {

struct Shown : DialogBench {
  Shown() { ShowFilled(); }
};

TEST(Click, NothingOfTheOptionsIsOnBeforeItsBoxIsTicked) {
  DialogBench bench;
  EXPECT_FALSE(bench.form.lblOPText.Enabled());
  EXPECT_FALSE(bench.form.txtOPText.Enabled());
  EXPECT_FALSE(bench.form.txtRMBODInfo.Enabled());
  EXPECT_FALSE(bench.form.lblRMStar.Enabled());
  EXPECT_FALSE(bench.form.chkPasSegAsso.Enabled());
}

TEST(Click, TickingTheFollowUpTurnsItsTextOnAndMovesTheFocusThere) {
  Shown bench;
  bench.form.chkOP.Clicked(true);
  EXPECT_TRUE(bench.form.lblOPText.Enabled());
  EXPECT_TRUE(bench.form.txtOPText.Enabled());
  EXPECT_TRUE(bench.form.txtOPText.HasFocus());
}

TEST(Click, UntickingTheFollowUpTurnsItsTextOffAndLeavesTheFocus) {
  Shown bench;
  bench.form.chkOP.Clicked(true);
  bench.form.chkOP.SetFocus();
  bench.form.chkOP.Clicked(false);
  EXPECT_FALSE(bench.form.lblOPText.Enabled());
  EXPECT_FALSE(bench.form.txtOPText.Enabled());
  EXPECT_TRUE(bench.form.chkOP.HasFocus());
}

TEST(Click, TickingBODTurnsItsThreeControlsOnAndMovesTheFocusToTheRemark) {
  Shown bench;
  bench.form.chkBOD.Clicked(true);
  EXPECT_TRUE(bench.form.txtRMBODInfo.Enabled());
  EXPECT_TRUE(bench.form.lblRMStar.Enabled());
  EXPECT_TRUE(bench.form.chkPasSegAsso.Enabled());
  EXPECT_TRUE(bench.form.txtRMBODInfo.HasFocus());
}

TEST(Click, UntickingBODTurnsItsThreeControlsOffAndLeavesTheFocus) {
  Shown bench;
  bench.form.chkBOD.Clicked(true);
  bench.form.chkBOD.SetFocus();
  bench.form.chkBOD.Clicked(false);
  EXPECT_FALSE(bench.form.txtRMBODInfo.Enabled());
  EXPECT_FALSE(bench.form.lblRMStar.Enabled());
  EXPECT_FALSE(bench.form.chkPasSegAsso.Enabled());
  EXPECT_TRUE(bench.form.chkBOD.HasFocus());
}

TEST(Click, UntickingDoesNotEmptyWhatWasTyped) {
  Shown bench;
  bench.form.chkOP.Clicked(true);
  bench.form.txtOPText.TextTyped(L"CHECK");
  bench.form.chkOP.Clicked(false);
  EXPECT_EQ(bench.form.txtOPText.Text(), L"CHECK");
}

TEST(Click, TheOtherBoxesMoveAndChangeNothing) {
  Shown bench;
  bench.form.chkPasSegAsso.SetEnabled(true);
  for (CheckBox* box :
       {&bench.form.chkPrintPNR, &bench.form.chkTSTNoUpdate, &bench.form.chkPanelMode,
        &bench.form.chkTKNoUpdate, &bench.form.chkPasSegAsso}) {
    box->SetFocus();
    box->Clicked(true);
    EXPECT_TRUE(box->HasFocus());
    EXPECT_FALSE(bench.form.txtOPText.Enabled());
    EXPECT_FALSE(bench.form.txtRMBODInfo.Enabled());
  }
}

TEST(Click, ASettingThatTicksABoxBeforeTheFormIsSeenMovesNoFocus) {
  DialogBench bench;
  bench.actions.inLoad = [&] {
    bench.form.chkOP.SetValue(true);
    bench.form.chkBOD.SetValue(true);
  };
  bench.form.Form_Init();
  EXPECT_TRUE(bench.form.txtOPText.Enabled());
  EXPECT_TRUE(bench.form.txtRMBODInfo.Enabled());
  EXPECT_EQ(bench.form.ActiveControl(), nullptr);
}

TEST(Click, CancelEndsTheRunAndSavesNothing) {
  Shown bench;
  EXPECT_THROW(bench.form.cmdCancel.Clicked(), support::EndedByEndScript);
  EXPECT_EQ(bench.actions.calls, Lines{L"load"});
}

TEST(Click, TheCloseBoxMeansCancel) {
  Shown bench;
  EXPECT_THROW(bench.form.OnCloseBox(), support::EndedByEndScript);
  EXPECT_EQ(bench.actions.calls, Lines{L"load"});
}

}  // namespace
}  // namespace ui
