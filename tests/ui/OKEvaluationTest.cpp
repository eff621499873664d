#include <gtest/gtest.h>

#include "tests/ui/DialogBench.h"

namespace ui {
namespace {

/// The eight required fields, the three that are not asked for, the office and the queue: one bit
/// each.
struct Combination {
  std::vector<TextBox*> required;
  std::vector<TextBox*> notAsked;
};

Combination Fields(frmPTA& form) {
  return {{&form.txtMCONumber, &form.txtCarrier, &form.txtCityCode, &form.txtPTA, &form.txtPWCT,
           &form.txtCommission, &form.txtFormOfPayment, &form.txtIATANumber},
          {&form.txtAirlinePrefix, &form.txtMCOFee, &form.txtRMBODInfo, &form.txtOPText}};
}

TEST(OKEvaluation, OKIsOnExactlyWhenAllEightAreFilledAndAnOfficeHasItsQueue) {
  DialogBench bench;
  frmPTA& form = bench.form;
  const Combination fields = Fields(form);
  int enabled = 0;
  for (unsigned bits = 0; bits < 1U << 10; ++bits) {
    for (unsigned i = 0; i < 8; ++i) {
      fields.required[i]->SetText((bits >> i) % 2 != 0 ? L"X" : L"");
    }
    const bool office = (bits >> 8) % 2 != 0;
    const bool queue = (bits >> 9) % 2 != 0;
    form.txtQueueingOfficeID.SetText(office ? L"X" : L"");
    form.txtQueueCat.SetText(queue ? L"X" : L"");
    form.UpdateOKButton();
    const bool expected = (bits & 0xFF) == 0xFF && (!office || queue);
    EXPECT_EQ(form.cmdOK.Enabled(), expected) << bits;
    if (form.cmdOK.Enabled()) ++enabled;
  }
  EXPECT_EQ(enabled, 3);
}

TEST(OKEvaluation, PrefixFeeRMInfoAndOPTextAreNotAskedFor) {
  DialogBench bench;
  const Combination fields = Fields(bench.form);
  for (TextBox* field : fields.required) field->SetText(L"X");
  for (unsigned bits = 0; bits < 1U << 4; ++bits) {
    for (unsigned i = 0; i < 4; ++i) {
      fields.notAsked[i]->SetText((bits >> i) % 2 != 0 ? L"X" : L"");
    }
    bench.form.UpdateOKButton();
    EXPECT_TRUE(bench.form.cmdOK.Enabled()) << bits;
  }
  fields.required[0]->SetText(L"");
  for (TextBox* field : fields.notAsked) field->SetText(L"X");
  bench.form.UpdateOKButton();
  EXPECT_FALSE(bench.form.cmdOK.Enabled());
}

TEST(OKEvaluation, ABlankIsNotEmpty) {
  DialogBench bench;
  for (TextBox* field : Fields(bench.form).required) field->SetText(L" ");
  bench.form.UpdateOKButton();
  EXPECT_TRUE(bench.form.cmdOK.Enabled());
}

}  // namespace
}  // namespace ui
