#include <gtest/gtest.h>

#include <set>

#include "common/Text.h"
#include "tests/ui/DialogBench.h"

namespace ui {
namespace {

constexpr int kF1 = 112;
constexpr int kF2 = 113;

struct Help {
  std::wstring control;
  std::wstring status;
  std::wstring f1;
};

// Written out a second time on purpose: no character of these may change unnoticed.
const std::vector<Help> kHelp = {
    {L"txtCityCode", L"Enter your three letter IATA city code, e.g. STO",
     L"Enter your three letter IATA city code, e.g. STO\r\rThe first time you start "
     L"the PTA script you have to fill in your 'City Code'.\rThis information is "
     L"stored and automatically displayed every time the script is used."},
    {L"txtIATANumber", L"Enter your IATA Number, Ex. 80246878. NB! Include check digit !",
     L"Enter your IATA Number, Ex. 80246878. NB! Include check digit !\r\rThe first "
     L"time you start the PTA script you have to fill in your 'IATA Number'.\rThis "
     L"information is stored and automatically displayed every time the script is "
     L"used."},
    {L"txtCommission", L"Enter commission percentage, eg. 4 or amount, eg. 250A",
     L"Enter commission percentage, eg. 4 or amount, eg. 250A\r\rThe commission is "
     L"automatically collected from the FM-element in the PNR if existing, or you "
     L"may add or modify it manually."},
    {L"txtPTA", L"Enter/modify the PTA Total Remark",
     L"Enter/modify the PTA Total Remark\r\rThe script collects the information "
     L"automatically from the TST(s) selected.\rYou may modify the text. "},
    {L"txtPWCT", L"Enter PWCT Remark, Eg. SK  AT ARN A/P BEFORE DEPARTURE",
     L"Enter PWCT Remark, Eg. SK  AT ARN A/P BEFORE DEPARTURE\r\rIf the PWCT "
     L"information is present in the PNR, it is automatically added to this "
     L"field.\rIf not, the program will suggest a default text based on the "
     L"departure airport and airline. "},
    {L"txtQueueCat", L"Enter Queue Number/Category, eg. 80",
     L"Enter Queue Number/Category, eg. 80\r\rDefault queue number is 80, but this "
     L"may be modified. "},
    {L"txtQueueingOfficeID",
     L"Enter the Office ID where the passenger will collect the ticket, Eg. "
     L"CPHSK0001.",
     L"Enter the Office ID where the passenger will collect the ticket, Eg. "
     L"CPHSK0001.\r\rThis is the airline's Office ID where the ticket is to be "
     L"collected.\rThe PNR is automatically queued to this Office ID by the "
     L"program.\rIf you do not want the program to queue the PNR automatically, you "
     L"may leave the information empty. "},
    {L"txtOPText",
     L"Enter text to be added to the Option Element, eg. 'Check if ticket has been "
     L"issued.'",
     L"Enter text to be added to the Option Element, eg. 'Check if ticket has been "
     L"issued.'\r\rThe text added to the OP-element may include a queue and/or "
     L"category number, eg. '80C2/Check if ticket OK.\rBy doing this, the PNR will "
     L"be queued to a specific queue and category.\rThe text will be stored and "
     L"automatically displayed the next time you use the program."},
    {L"txtRMBODInfo", L"Enter information for backoffice (RM*). ", L""},
    {L"chkOP", L"Mark if you want to add a Follow-Up(OP) Element to the PNR",
     L"Mark if you want to add a Follow-Up(OP) Element to the PNR\r\rIn order to do "
     L"an automatic follow up if a ticket has been issued, you may mark to add an "
     L"OP-element to the PNR.\rDate of the option element will be the date after the "
     L"departure date."},
    {L"chkPrintPNR", L"Mark if you want to print a copy of the PNR",
     L"Mark if you want to print a copy of the PNR\r\rIf you want to print a copy of "
     L"the PNR(WRA/RT) after all updates, please mark this check box. "},
    {L"chkTSTNoUpdate", L"Mark if you do not want to update the TST(s)",
     L"Mark if you do not want to update the TST(s)\r\rSome airlines requires that "
     L"the TST(s) are not updated according to PNR-PTA procedure.\rPlease mark this "
     L"check box if you do not want to update the TST(s)."},
    {L"chkTKNoUpdate", L"Mark if you do not want to update the TST(s)",
     L"Mark if you do not want to update the TK element"},
    {L"chkPanelMode", L"Mark if you want to return to Panel Mode after completing the PTA. ", L""},
    {L"chkBOD", L"Mark if you want to send B.O.D. to backoffice (BT)", L""},
    {L"chkPasSegAsso",
     L"Mark if you want to add Pasenger and Segment association to the BT "
     L"transaction.",
     L""},
    {L"cmdOK", L"Press Enter to perform updates", L""},
    {L"cmdCancel", L"Press Enter to exit without any updates", L""},
};

const std::set<std::wstring_view> kWithoutHelp = {L"txtFormOfPayment", L"txtAirlinePrefix",
                                                  L"txtMCONumber", L"txtCarrier", L"txtMCOFee"};

/// Everything on, so that every control can take the focus.
struct HelpBench : DialogBench {
  HelpBench() {
    ShowFilled();
    form.chkOP.SetValue(true);
    form.chkBOD.SetValue(true);
    form.cmdCancel.SetFocus();
    TakeLog();
  }
};

TEST(Help, TheStatusTextIsExactOnEveryControlThatHasOne) {
  HelpBench bench;
  for (const Help& help : kHelp) {
    bench.form.Find(help.control)->SetFocus();
    EXPECT_EQ(bench.form.staStatusText.Text(), help.status) << common::ToUtf8(help.control);
  }
}

TEST(Help, TheStatusTextIsExactOnFieldsThatAreStillEmpty) {
  DialogBench bench;
  bench.ShowEmpty();
  for (const Help& help : kHelp) {
    Control* control = bench.form.Find(help.control);
    if (!control->CanFocus()) continue;
    control->SetFocus();
    EXPECT_EQ(bench.form.staStatusText.Text(), help.status) << common::ToUtf8(help.control);
  }
}

TEST(Help, LosingTheFocusClearsTheStatusText) {
  HelpBench bench;
  for (const Help& help : kHelp) {
    bench.form.Find(help.control)->SetFocus();
    bench.form.FocusMovedTo(nullptr);
    EXPECT_EQ(bench.form.staStatusText.Text(), L"") << common::ToUtf8(help.control);
  }
}

TEST(Help, F1ShowsTheExactTextInAPlainBoxOrNothingAtAll) {
  HelpBench bench;
  for (const Help& help : kHelp) {
    bench.form.OnKeyDown(*bench.form.Find(help.control), kF1);
    EXPECT_EQ(bench.TakeLog(), help.f1.empty() ? Lines{} : Lines{PlainBox(help.f1)})
        << common::ToUtf8(help.control);
  }
}

TEST(Help, F1ShowsNothingOnAFieldWithoutHelp) {
  HelpBench bench;
  for (const std::wstring_view name : kWithoutHelp) {
    bench.form.OnKeyDown(*bench.form.Find(name), kF1);
    EXPECT_EQ(bench.TakeLog(), Lines{}) << common::ToUtf8(name);
  }
}

TEST(Help, F1GivesTheFocusBack) {
  HelpBench bench;
  bench.form.txtPWCT.SetFocus();
  bench.desktop.inBox = [&] { bench.form.FocusMovedTo(nullptr); };
  bench.form.OnKeyDown(bench.form.txtPWCT, kF1);
  EXPECT_TRUE(bench.form.txtPWCT.HasFocus());
  EXPECT_EQ(bench.form.staStatusText.Text(),
            L"Enter PWCT Remark, Eg. SK  AT ARN A/P BEFORE DEPARTURE");
}

TEST(Help, NoOtherKeyShowsABox) {
  HelpBench bench;
  for (Control* control : bench.form.controls()) {
    for (int key = 0; key < 256; ++key) {
      if (key != kF1) bench.form.OnKeyDown(*control, key);
    }
  }
  EXPECT_EQ(bench.TakeLog(), Lines{});
}

TEST(Help, EveryControlThatTakesTheFocusHasHelpButTheFieldsThatAreOnlyLookedAt) {
  HelpBench bench;
  std::set<std::wstring_view> helped;
  for (const Help& help : kHelp) helped.insert(help.control);
  for (Control* control : bench.form.controls()) {
    if (!control->CanFocus()) continue;
    EXPECT_NE(helped.contains(control->name()), kWithoutHelp.contains(control->name()))
        << common::ToUtf8(control->name());
  }
  EXPECT_EQ(helped.size(), 18U);
}

TEST(Help, AFieldWithoutHelpLeavesTheStatusEmptyWhileEverythingIsComplete) {
  HelpBench bench;
  for (const std::wstring_view name : kWithoutHelp) {
    bench.form.Find(name)->SetFocus();
    EXPECT_EQ(bench.form.staStatusText.Text(), L"") << common::ToUtf8(name);
  }
}

TEST(Help, AFieldWithoutHelpNamesTheFieldsThatAreIncomplete) {
  DialogBench bench;
  bench.ShowEmpty();
  bench.form.txtCarrier.SetFocus();
  EXPECT_EQ(bench.form.staStatusText.Text(),
            L"Incomplete: City Code, IATA Number, Commission, PTA Total, PWCT");
  bench.form.FocusMovedTo(nullptr);
  EXPECT_EQ(bench.form.staStatusText.Text(), L"");
}

TEST(Help, OnlyTheYellowFieldsAreNamedAsIncomplete) {
  HelpBench bench;
  bench.form.txtIATANumber.SetText(L"8024687");
  bench.form.txtMCOFee.SetFocus();
  EXPECT_EQ(bench.form.staStatusText.Text(), L"Incomplete: IATA Number");
}

TEST(Help, AnEditThatLeavesTheFieldIncompleteSaysSoBehindTheHelp) {
  HelpBench bench;
  bench.form.txtCityCode.SetFocus();
  bench.form.txtCityCode.TextTyped(L"ST");
  EXPECT_EQ(bench.form.staStatusText.Text(),
            L"Enter your three letter IATA city code, e.g. STO (incomplete)");
  bench.form.txtCityCode.TextTyped(L"STO");
  EXPECT_EQ(bench.form.staStatusText.Text(), L"Enter your three letter IATA city code, e.g. STO");
}

TEST(Help, AChangeOfAFieldWithoutTheFocusLeavesTheStatusTextAlone) {
  HelpBench bench;
  bench.form.cmdCancel.SetFocus();
  bench.form.txtCityCode.SetText(L"");
  EXPECT_EQ(bench.form.staStatusText.Text(), L"Press Enter to exit without any updates");
}

TEST(Help, F2IsNotBound) {
  HelpBench bench;
  for (Control* control : bench.form.controls()) bench.form.OnKeyDown(*control, kF2);
  EXPECT_EQ(bench.TakeLog(), Lines{});
  EXPECT_EQ(bench.actions.calls, Lines{L"load"});
}

}  // namespace
}  // namespace ui
