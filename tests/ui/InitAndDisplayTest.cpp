#include <gtest/gtest.h>

#include "tests/ui/DialogBench.h"

namespace ui {
namespace {

const std::wstring kAirlineWarning = PlainBox(
    L"Warning: The Ticketing Airline varies in the TST's and/or does not match first Airline in "
    L"the TST(s) selected !");
const std::wstring kCommissionWarning = PlainBox(
    L"Warning: The Commission varies in the TST's selected ! Only one commission is valid.");

struct Filled : DialogBench {
  Filled() {
    form.Form_Init();
    Fill();
    general.strFirstFlightNo = L"SK1234";
    mco.strCommission = L"10";
    TakeLog();
  }
};

TEST(Unload, ADialogThatNoRunHasTakenYetCanGo) {
  DialogBench bench;
  frmPTA dialog(bench.desktop, bench.room.errors, bench.room.runEnd);
  dialog.Load();
  dialog.Unload();
  EXPECT_FALSE(dialog.IsLoaded());
  EXPECT_EQ(bench.TakeLog(), Lines{});
}

TEST(FormInit, KeysArePreviewedOKIsOffAndTheHourglassIsUp) {
  DialogBench bench;
  bench.form.Form_Init();
  EXPECT_TRUE(bench.form.KeyPreview());
  EXPECT_FALSE(bench.form.cmdOK.Enabled());
  EXPECT_EQ(bench.form.Pointer(), MousePointer::kHourglass);
  EXPECT_FALSE(bench.form.IsVisible());
}

TEST(FormInit, TheSettingsAreLoadedOnceUnderTheHourglassWithOKOff) {
  DialogBench bench;
  bool asTold = false;
  bench.actions.inLoad = [&] {
    asTold = bench.form.KeyPreview() && !bench.form.cmdOK.Enabled() &&
             bench.form.Pointer() == MousePointer::kHourglass;
  };
  bench.form.Form_Init();
  EXPECT_TRUE(asTold);
  EXPECT_EQ(bench.actions.calls, Lines{L"load"});
}

TEST(FormInit, EmptyRequiredFieldsAreYellowFromTheStartAndTheQueueFieldIsOff) {
  DialogBench bench;
  bench.form.Form_Init();
  frmPTA& form = bench.form;
  for (TextBox* field :
       {&form.txtCityCode, &form.txtIATANumber, &form.txtCommission, &form.txtPTA, &form.txtPWCT}) {
    EXPECT_EQ(field->BackColor(), kYellow);
  }
  EXPECT_FALSE(form.txtQueueCat.Enabled());
  EXPECT_FALSE(form.lblQueuecatnumber.Enabled());
}

TEST(FormInit, FieldsThatTheSettingsFillAreNotYellow) {
  DialogBench bench;
  bench.actions.inLoad = [&] {
    bench.form.txtCityCode.SetText(L"STO");
    bench.form.txtIATANumber.SetText(L"80246878");
  };
  bench.form.Form_Init();
  EXPECT_EQ(bench.form.txtCityCode.BackColor(), kWindowBackground);
  EXPECT_EQ(bench.form.txtIATANumber.BackColor(), kWindowBackground);
}

TEST(FormInit, OKEndsOffEvenWhenEverythingIsFilled) {
  DialogBench bench;
  bench.actions.inLoad = [&] { bench.Fill(); };
  bench.form.Form_Init();
  EXPECT_FALSE(bench.form.cmdOK.Enabled());
}

TEST(FormInit, AFailureIsReportedAndTheRunGoesOn) {
  DialogBench bench;
  bench.actions.inLoad = [] { throw common::RunTimeError(L"broken"); };
  bench.form.Form_Init();
  EXPECT_EQ(bench.room.TakeCalls(),
            Lines{L"ScriptErrorReporter.1.18 ShowError(-2147221451, \"  PTA Script \", \"Error "
                  L"initializing the form!\", 16)"});
  EXPECT_FALSE(bench.room.stop.isSet);
}

TEST(FormDisplay, TheFormIsShownModelessAndTheHourglassEnds) {
  Filled bench;
  MousePointer whenShown{};
  bench.desktop.onShown = [&] { whenShown = bench.form.Pointer(); };
  bench.Display();
  EXPECT_EQ(bench.TakeLog(), Lines{L"show frmPTA"});
  EXPECT_EQ(whenShown, MousePointer::kHourglass);
  EXPECT_EQ(bench.form.Pointer(), MousePointer::kDefault);
}

TEST(FormDisplay, TheFeeIsWrittenWithTheUsersDecimalSeparator) {
  Filled bench;
  bench.mco.dblMCOFee = 250.5;
  bench.form.Form_Display(bench.mco, bench.general, bench.tsts, L",");
  EXPECT_EQ(bench.form.txtMCOFee.Text(), L"250,5");
  bench.form.Form_Display(bench.mco, bench.general, bench.tsts, L".");
  EXPECT_EQ(bench.form.txtMCOFee.Text(), L"250.5");
  bench.mco.dblMCOFee = 0;
  bench.Display();
  EXPECT_EQ(bench.form.txtMCOFee.Text(), L"0");
}

TEST(FormDisplay, TheFocusGoesToThePWCTThenTheOfficeThenThePTAByWhatIsEmpty) {
  struct Case {
    std::wstring pwct;
    std::wstring office;
    std::wstring pta;
    std::wstring focus;
  };
  const Case cases[] = {
      {L"", L"", L"", L"txtPWCT"},
      {L"", L"STOSK08AA", L"X", L"txtPWCT"},
      {L"X", L"", L"", L"txtQueueingOfficeID"},
      {L"X", L"", L"X", L"txtQueueingOfficeID"},
      {L"X", L"STOSK08AA", L"", L"txtPTA"},
      {L"X", L"STOSK08AA", L"X", L"txtPTA"},
      {L" ", L" ", L"X", L"txtPTA"},
  };
  for (const Case& given : cases) {
    Filled bench;
    bench.form.txtPWCT.SetText(given.pwct);
    bench.form.txtQueueingOfficeID.SetText(given.office);
    bench.form.txtPTA.SetText(given.pta);
    bench.Display();
    ASSERT_NE(bench.form.ActiveControl(), nullptr);
    EXPECT_EQ(bench.form.ActiveControl()->name(), given.focus);
  }
}

TEST(FormDisplay, TheStatusExplainsTheFieldThatGetsTheFirstFocus) {
  Filled bench;
  bench.Display();
  EXPECT_EQ(bench.form.staStatusText.Text(), L"Enter/modify the PTA Total Remark");
}

TEST(FormDisplay, TSTsThatAgreeWithTheFlightAndTheCommissionGiveNoWarning) {
  Filled bench;
  bench.AddTST(L"1", L"SK", L"10");
  bench.AddTST(L"2", L"", L"");
  bench.Display();
  EXPECT_EQ(bench.TakeLog(), Lines{L"show frmPTA"});
  EXPECT_EQ(bench.form.txtCarrier.SelectionLength(), 0);
}

TEST(FormDisplay, ATicketingAirlineOtherThanTheFirstFlightsIsWarnedOfOnce) {
  Filled bench;
  bench.AddTST(L"1", L"SK", L"10");
  bench.AddTST(L"2", L"LH", L"10");
  bench.AddTST(L"3", L"AF", L"10");
  bench.Display();
  EXPECT_EQ(bench.TakeLog(), (Lines{L"show frmPTA", kAirlineWarning}));
  EXPECT_EQ(bench.form.txtCarrier.SelectionStart(), 0);
  EXPECT_EQ(bench.form.txtCarrier.SelectionLength(), 2);
}

TEST(FormDisplay, TheTicketingAirlineIsComparedWithTheFlightNotWithTheCarrierField) {
  Filled bench;
  bench.form.txtCarrier.SetText(L"LH");
  bench.AddTST(L"1", L"SK", L"10");
  bench.Display();
  EXPECT_EQ(bench.TakeLog(), Lines{L"show frmPTA"});
}

TEST(FormDisplay, WithoutAFirstFlightAnyTicketingAirlineIsWarnedOf) {
  Filled bench;
  bench.general.strFirstFlightNo = L"";
  bench.AddTST(L"1", L"SK", L"10");
  bench.Display();
  EXPECT_EQ(bench.TakeLog(), (Lines{L"show frmPTA", kAirlineWarning}));
}

TEST(FormDisplay, ADifferingCommissionIsWarnedOfAndItsFieldTurnedOnAndSelected) {
  Filled bench;
  bench.form.txtCommission.SetEnabled(false);
  bench.AddTST(L"1", L"SK", L"");
  bench.AddTST(L"2", L"SK", L"9");
  bench.AddTST(L"3", L"SK", L"8");
  bench.Display();
  EXPECT_EQ(bench.TakeLog(), (Lines{L"show frmPTA", kCommissionWarning}));
  EXPECT_TRUE(bench.form.txtCommission.Enabled());
  EXPECT_EQ(bench.form.txtCommission.SelectionStart(), 0);
  EXPECT_EQ(bench.form.txtCommission.SelectionLength(), 2);
}

TEST(FormDisplay, TheCommissionIsComparedWithTheRecordNotWithTheField) {
  Filled bench;
  bench.form.txtCommission.SetText(L"9");
  bench.AddTST(L"1", L"SK", L"9");
  bench.Display();
  EXPECT_EQ(bench.TakeLog(), (Lines{L"show frmPTA", kCommissionWarning}));
}

TEST(FormDisplay, BothWarningsFollowEachOther) {
  Filled bench;
  bench.AddTST(L"1", L"LH", L"9");
  bench.Display();
  EXPECT_EQ(bench.TakeLog(), (Lines{L"show frmPTA", kAirlineWarning, kCommissionWarning}));
}

TEST(FormDisplay, TheWarningsComeAfterTheFirstFocusAndLeaveIt) {
  Filled bench;
  bench.AddTST(L"1", L"LH", L"9");
  std::vector<bool> focused;
  bench.desktop.inBox = [&] { focused.push_back(bench.form.txtPTA.HasFocus()); };
  bench.Display();
  EXPECT_EQ(focused, (std::vector<bool>{true, true}));
  EXPECT_TRUE(bench.form.txtPTA.HasFocus());
}

TEST(FormDisplay, OKIsEvaluatedAtTheEnd) {
  Filled bench;
  bench.form.cmdOK.SetEnabled(false);
  bench.Display();
  EXPECT_TRUE(bench.form.cmdOK.Enabled());
}

TEST(FormDisplay, AFailureIsReportedAndTheRunGoesOn) {
  Filled bench;
  bench.desktop.onShown = [] { throw common::RunTimeError(L"broken"); };
  bench.Display();
  EXPECT_EQ(bench.room.TakeCalls(),
            Lines{L"ScriptErrorReporter.1.18 ShowError(-2147221450, \"  PTA Script \", \"Error "
                  L"displaying the PTA form!\", 16)"});
  EXPECT_FALSE(bench.room.stop.isSet);
}

TEST(FormDisplay, TheFeeIsLockedFromTheStartAndTheDocumentFieldsWhenTold) {
  DialogBench bench;
  frmPTA& form = bench.form;
  const auto locked = [&] {
    Lines names;
    for (Control* control : form.controls()) {
      const auto* field = dynamic_cast<TextBox*>(control);
      if (field != nullptr && field->Locked()) names.emplace_back(field->name());
    }
    return names;
  };
  EXPECT_EQ(locked(), Lines{L"txtMCOFee"});
  form.LockDocumentFields();
  EXPECT_EQ(locked(), (Lines{L"txtFormOfPayment", L"txtAirlinePrefix", L"txtMCONumber",
                             L"txtCarrier", L"txtMCOFee"}));
  for (const std::wstring& name : locked()) EXPECT_TRUE(form.Find(name)->CanFocus());
}

}  // namespace
}  // namespace ui
