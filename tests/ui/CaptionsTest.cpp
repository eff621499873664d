#include <gtest/gtest.h>

#include <map>

#include "common/Text.h"
#include "tests/ui/DialogBench.h"
#include "ui/frmWorking.h"

namespace ui {
namespace {

struct Row {
  ControlKind kind;
  std::wstring name;
  std::wstring caption;
};

constexpr ControlKind kFrame = ControlKind::kFrame;
constexpr ControlKind kLabel = ControlKind::kLabel;
constexpr ControlKind kText = ControlKind::kTextBox;
constexpr ControlKind kCheck = ControlKind::kCheckBox;
constexpr ControlKind kButton = ControlKind::kButton;

// The order is the tab order; each label stands directly before its field.
const std::vector<Row> kRows = {
    {kFrame, L"fraOptions", L"Options"},
    {kFrame, L"fraPrint", L"Print"},
    {kCheck, L"chkPrintPNR", L"Print PNR"},
    {kFrame, L"fraTST", L"TST"},
    {kCheck, L"chkTSTNoUpdate", L"No TST Update"},
    {kCheck, L"chkPanelMode", L"Return to TST Panel Mode"},
    {kFrame, L"fraTK", L"TK Element"},
    {kCheck, L"chkTKNoUpdate", L"No TK Update"},
    {kFrame, L"fraOP", L"OP Element"},
    {kCheck, L"chkOP", L"PNR Follow Up"},
    {kLabel, L"lblOPText", L"&Text:"},
    {kText, L"txtOPText", L""},
    {kFrame, L"fraBOD", L"Backoffice Data"},
    {kCheck, L"chkBOD", L"Send B.O.D. (BT)"},
    {kCheck, L"chkPasSegAsso", L"Add Passenger and Segment Association"},
    {kLabel, L"lblRMStar", L"&RM* Info:"},
    {kText, L"txtRMBODInfo", L""},
    {kFrame, L"fraDocumentInformation", L"Document Information"},
    {kLabel, L"lblFoP", L"&Form of Payment:"},
    {kText, L"txtFormOfPayment", L""},
    {kLabel, L"lblOriginalDocumentNumber", L"&MCO Number:"},
    {kText, L"txtAirlinePrefix", L""},
    {kLabel, L"lblDash", L"-"},
    {kText, L"txtMCONumber", L""},
    {kLabel, L"lblCarrier", L"&Airline:"},
    {kText, L"txtCarrier", L""},
    {kLabel, L"lblCommission", L"&Commission:"},
    {kText, L"txtCommission", L""},
    {kLabel, L"lblCityCode", L"City Code:"},
    {kText, L"txtCityCode", L""},
    {kLabel, L"LblIataNr", L"IATA Number:"},
    {kText, L"txtIATANumber", L""},
    {kFrame, L"fraRemarks", L"Remarks"},
    {kLabel, L"lblMCOFee", L"MCO F&ee:"},
    {kText, L"txtMCOFee", L""},
    {kLabel, L"lblPwct", L"P&WCT:"},
    {kText, L"txtPWCT", L""},
    {kLabel, L"lblPTATotal", L"&PTA Total:"},
    {kText, L"txtPTA", L""},
    {kFrame, L"fraQueuingInformation", L"Queueing Information"},
    {kLabel, L"lblOfficeID", L"&Office ID:"},
    {kText, L"txtQueueingOfficeID", L""},
    {kLabel, L"lblQueuecatnumber", L"&Number/Category:"},
    {kText, L"txtQueueCat", L""},
    {kButton, L"cmdOK", L"OK"},
    {kButton, L"cmdCancel", L"Cancel"},
    {ControlKind::kStatusBar, L"staStatusText", L""},
};

TEST(Captions, TheControlsStandInTheirOrderWithTheirExactCaptions) {
  DialogBench bench;
  const std::vector<Control*>& controls = bench.form.controls();
  ASSERT_EQ(controls.size(), kRows.size());
  for (std::size_t i = 0; i < kRows.size(); ++i) {
    EXPECT_EQ(controls[i]->name(), kRows[i].name);
    EXPECT_EQ(controls[i]->kind(), kRows[i].kind) << common::ToUtf8(kRows[i].name);
    EXPECT_EQ(controls[i]->Text(), kRows[i].caption) << common::ToUtf8(kRows[i].name);
  }
}

TEST(Captions, NoTwoAcceleratorsClash) {
  DialogBench bench;
  std::map<wchar_t, std::wstring> owners;
  for (const Control* control : bench.form.controls()) {
    const std::size_t mark = control->Text().find(L'&');
    if (control->kind() == kText || mark == std::wstring::npos) continue;
    const wchar_t key = common::UpperCase(control->Text().at(mark + 1));
    EXPECT_TRUE(owners.emplace(key, control->name()).second) << common::ToUtf8(control->name());
  }
  EXPECT_EQ(owners.size(), 11U);
}

TEST(Captions, TheDesignerCaptionGivesWayToTheTitleWhenTheFormLoads) {
  DialogBench bench;
  EXPECT_EQ(bench.form.Caption(), L"PTA - Prepaid Ticket Advice");
  bench.form.Load();
  EXPECT_EQ(bench.form.Caption(), L"  PTA Script - Prepaid Ticket Advice");
}

TEST(Captions, TheProgressFormSaysWhatTheRunIsDoing) {
  frmWorking working;
  EXPECT_EQ(working.lblWorking.Text(), L"Retrieving information from Corvane...");
}

}  // namespace
}  // namespace ui
