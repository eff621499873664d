#include <gtest/gtest.h>

#include "tests/ui/DialogBench.h"

namespace ui {
namespace {

constexpr std::uint32_t kYellowOnScreen = 0x00FFFF;
constexpr std::uint32_t kWindowOnScreen = 0x80000005;

struct FormInitDone : DialogBench {
  FormInitDone() { form.Form_Init(); }
};
struct Shown : DialogBench {
  Shown() { ShowFilled(); }
};

TEST(Change, ACityCodeIsYellowBelowThreeCharacters) {
  FormInitDone bench;
  for (const std::wstring text : {L"", L"S", L"ST"}) {
    bench.form.txtCityCode.SetText(text);
    EXPECT_EQ(bench.form.txtCityCode.BackColor(), kYellowOnScreen);
  }
  for (const std::wstring text : {L"STO", L"STOX"}) {
    bench.form.txtCityCode.SetText(text);
    EXPECT_EQ(bench.form.txtCityCode.BackColor(), kWindowOnScreen);
  }
}

TEST(Change, AnIATANumberIsYellowBelowEightCharacters) {
  FormInitDone bench;
  bench.form.txtIATANumber.TextTyped(L"8024687");
  EXPECT_EQ(bench.form.txtIATANumber.BackColor(), kYellowOnScreen);
  bench.form.txtIATANumber.TextTyped(L"80246878");
  EXPECT_EQ(bench.form.txtIATANumber.BackColor(), kWindowOnScreen);
  bench.form.txtIATANumber.TextTyped(L"802468789");
  EXPECT_EQ(bench.form.txtIATANumber.BackColor(), kWindowOnScreen);
  bench.form.txtIATANumber.TextTyped(L"");
  EXPECT_EQ(bench.form.txtIATANumber.BackColor(), kYellowOnScreen);
}

TEST(Change, CommissionPTATotalAndPWCTAreYellowOnlyWhileEmpty) {
  FormInitDone bench;
  for (TextBox* field : {&bench.form.txtCommission, &bench.form.txtPTA, &bench.form.txtPWCT}) {
    EXPECT_EQ(field->BackColor(), kYellowOnScreen);
    field->TextTyped(L"1");
    EXPECT_EQ(field->BackColor(), kWindowOnScreen);
    field->TextTyped(L"");
    EXPECT_EQ(field->BackColor(), kYellowOnScreen);
  }
}

TEST(Change, NoOtherFieldEverTurnsYellow) {
  FormInitDone bench;
  bench.Display();
  frmPTA& form = bench.form;
  for (TextBox* field : {&form.txtMCONumber, &form.txtAirlinePrefix, &form.txtCarrier,
                         &form.txtFormOfPayment, &form.txtMCOFee, &form.txtQueueCat,
                         &form.txtQueueingOfficeID, &form.txtOPText, &form.txtRMBODInfo}) {
    field->TextTyped(L"X");
    field->TextTyped(L"");
    EXPECT_EQ(field->BackColor(), kWindowOnScreen);
  }
}

TEST(Change, EmptyingARequiredFieldTurnsOKOffAndFillingItTurnsOKOn) {
  Shown bench;
  frmPTA& form = bench.form;
  for (TextBox* field : {&form.txtCityCode, &form.txtIATANumber, &form.txtCommission, &form.txtPTA,
                         &form.txtPWCT, &form.txtQueueCat}) {
    field->TextTyped(L"");
    EXPECT_FALSE(form.cmdOK.Enabled());
    field->TextTyped(L"1");
    EXPECT_TRUE(form.cmdOK.Enabled());
  }
}

TEST(Change, AnOfficeIDTurnsTheQueueFieldOnWithItsDefault) {
  FormInitDone bench;
  bench.form.txtQueueingOfficeID.TextTyped(L"C");
  EXPECT_EQ(bench.form.txtQueueCat.Text(), L"80");
  EXPECT_TRUE(bench.form.txtQueueCat.Enabled());
  EXPECT_TRUE(bench.form.lblQueuecatnumber.Enabled());
}

TEST(Change, EveryChangeOfANonEmptyOfficeIDResetsTheQueue) {
  Shown bench;
  for (const std::wstring office : {L"C", L"CPHSK000", L"CPHSK0001", L"CPHSK00012"}) {
    bench.form.txtQueueCat.TextTyped(L"12C3");
    bench.form.txtQueueingOfficeID.TextTyped(office);
    EXPECT_EQ(bench.form.txtQueueCat.Text(), L"80");
  }
}

TEST(Change, ClearingTheOfficeIDClearsTheQueueAndTurnsItOff) {
  Shown bench;
  bench.form.txtQueueingOfficeID.TextTyped(L"");
  EXPECT_EQ(bench.form.txtQueueCat.Text(), L"");
  EXPECT_FALSE(bench.form.txtQueueCat.Enabled());
  EXPECT_FALSE(bench.form.lblQueuecatnumber.Enabled());
  EXPECT_TRUE(bench.form.cmdOK.Enabled());
}

TEST(Change, ABlankOfficeIDIsNotEmpty) {
  Shown bench;
  bench.form.txtQueueingOfficeID.TextTyped(L" ");
  EXPECT_EQ(bench.form.txtQueueCat.Text(), L"80");
  EXPECT_TRUE(bench.form.txtQueueCat.Enabled());
}

TEST(Change, SettingTheQueueFromTheOfficeEvaluatesOKEvenWhenItHeldTheDefaultAlready) {
  Shown bench;
  bench.form.txtFormOfPayment.SetText(L"");
  bench.form.txtCityCode.TextTyped(L"STO");
  ASSERT_FALSE(bench.form.cmdOK.Enabled());
  // The form of payment has no Change handler of its own: only the office's change can see it.
  bench.form.txtFormOfPayment.SetText(L"CASH");
  ASSERT_FALSE(bench.form.cmdOK.Enabled());
  ASSERT_EQ(bench.form.txtQueueCat.Text(), L"80");
  bench.form.txtQueueingOfficeID.TextTyped(L"STOSK08A");
  EXPECT_TRUE(bench.form.cmdOK.Enabled());
}

/// Writes down what the dialog does to OK and to the queue field, in order.
struct OrderView : WindowlessView {
  std::vector<std::wstring> sets;
  void ControlSet(Control& control, Property property) override {
    const bool isText = property == Property::kText;
    if (control.name() == L"cmdOK") sets.push_back(control.Enabled() ? L"OK on" : L"OK off");
    if (control.name() == L"txtQueueCat") {
      sets.push_back(isText ? L"queue text " + std::wstring(control.Text())
                            : (control.Enabled() ? L"queue on" : L"queue off"));
    }
  }
};

TEST(Change, AnOfficeIDOfNineCharactersEvaluatesOKBeforeTheQueueIsTouched) {
  OrderView view;
  Shown bench;
  bench.form.txtQueueCat.TextTyped(L"");
  bench.form.Shown(view);
  bench.form.txtQueueingOfficeID.TextTyped(L"CPHSK0001");
  EXPECT_EQ(view.sets, (Lines{L"OK off", L"queue on", L"queue text 80", L"OK on"}));
}

TEST(Change, AnOfficeIDOfAnotherLengthEvaluatesOKOnlyThroughTheQueue) {
  OrderView view;
  Shown bench;
  bench.form.Shown(view);
  for (const std::wstring office : {L"CPHSK000", L"CPHSK00012"}) {
    view.sets.clear();
    bench.form.txtQueueingOfficeID.TextTyped(office);
    EXPECT_EQ(view.sets, (Lines{L"queue on", L"queue text 80", L"OK on"}));
  }
}

TEST(Change, AnEmptiedOfficeIDClearsTheQueueBeforeTurningItOff) {
  OrderView view;
  Shown bench;
  bench.form.Shown(view);
  bench.form.txtQueueingOfficeID.TextTyped(L"");
  EXPECT_EQ(view.sets, (Lines{L"queue text ", L"OK on", L"queue off"}));
}

}  // namespace
}  // namespace ui
