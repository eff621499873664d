#include <gtest/gtest.h>

#include "common/EndOfRun.h"
#include "tests/windows/dialog/DialogStage.h"
#include "tests/windows/driver/Driver.h"

namespace ui {

namespace {

using driver::WaitUntil;
using Lines = std::vector<std::wstring>;

const Lines kTabOrder = {L"chkPrintPNR",
                         L"chkTSTNoUpdate",
                         L"chkPanelMode",
                         L"chkTKNoUpdate",
                         L"chkOP",
                         L"txtOPText",
                         L"chkBOD",
                         L"chkPasSegAsso",
                         L"txtRMBODInfo",
                         L"txtFormOfPayment",
                         L"txtAirlinePrefix",
                         L"txtMCONumber",
                         L"txtCarrier",
                         L"txtCommission",
                         L"txtCityCode",
                         L"txtIATANumber",
                         L"txtMCOFee",
                         L"txtPWCT",
                         L"txtPTA",
                         L"txtQueueingOfficeID",
                         L"txtQueueCat",
                         L"cmdOK",
                         L"cmdCancel"};

/// Presses Tab in the first of these controls, in the one where that leads, and so on; the last
/// leads to the first.
void ExpectTabGoesRound(const DialogStage& stage, const Lines& order, int modifiers) {
  stage.GoTo(stage.Item(order.front()));
  for (std::size_t i = 0; i < order.size(); ++i) {
    driver::Press(stage.Item(order[i]), VK_TAB, modifiers);
    driver::WaitForFocus(stage.Item(order[(i + 1) % order.size()]));
  }
}

TEST(Tab, GoesThroughTheWholeFormInItsOrder) {
  DialogStage stage;
  stage.RunWithEverythingOn([&] { ExpectTabGoesRound(stage, kTabOrder, driver::kNone); });
}

TEST(Tab, GoesBackwardsWithShift) {
  DialogStage stage;
  const Lines backwards(kTabOrder.rbegin(), kTabOrder.rend());
  stage.RunWithEverythingOn([&] { ExpectTabGoesRound(stage, backwards, driver::kShift); });
}

TEST(Tab, PassesByWhatIsOff) {
  DialogStage stage;
  Lines order = kTabOrder;
  for (const wchar_t* off :
       {L"txtOPText", L"chkPasSegAsso", L"txtRMBODInfo", L"txtQueueCat", L"cmdOK"}) {
    std::erase(order, off);
  }
  stage.Run([] {}, [&] { ExpectTabGoesRound(stage, order, driver::kNone); });
}

struct Accelerator {
  wchar_t key;
  const wchar_t* field;
};

class AltAndALetter : public testing::TestWithParam<Accelerator> {};

TEST_P(AltAndALetter, GoesToTheFieldBehindTheLabel) {
  DialogStage stage;
  stage.RunWithEverythingOn([&] {
    stage.GoTo(ID_cmdCancel);
    driver::Press(stage.Item(ID_cmdCancel), static_cast<WORD>(GetParam().key), driver::kAlt);
    driver::WaitForFocus(stage.Item(GetParam().field));
  });
}

INSTANTIATE_TEST_SUITE_P(
    OfEachLabel, AltAndALetter,
    testing::Values(Accelerator{L'T', L"txtOPText"}, Accelerator{L'R', L"txtRMBODInfo"},
                    Accelerator{L'F', L"txtFormOfPayment"}, Accelerator{L'M', L"txtAirlinePrefix"},
                    Accelerator{L'A', L"txtCarrier"}, Accelerator{L'C', L"txtCommission"},
                    Accelerator{L'E', L"txtMCOFee"}, Accelerator{L'W', L"txtPWCT"},
                    Accelerator{L'P', L"txtPTA"}, Accelerator{L'O', L"txtQueueingOfficeID"},
                    Accelerator{L'N', L"txtQueueCat"}));

TEST(AltAndTheLetterOfAFieldThatIsOff, LeavesTheFocusWhereItIs) {
  DialogStage stage;
  stage.Run([] {},
            [&] {
              const HWND field = stage.Item(ID_txtPWCT);
              for (const WORD key : {WORD{'T'}, WORD{'R'}, WORD{'N'}}) {
                driver::Press(field, key, driver::kAlt);
              }
              driver::Type(field, L"x");
              WaitUntil(L"all keys are through", [&] { return driver::TextOf(field) == L"X"; });
            });
}

struct Arrival {
  const wchar_t* field;
  bool selects;
};

class ComingTo : public testing::TestWithParam<Arrival> {};

TEST_P(ComingTo, AFieldSelectsItsWholeTextUnlessItIsALongRemarkOrOnlyLookedAt) {
  DialogStage stage;
  stage.RunWithEverythingOn([&] {
    const HWND field = stage.Item(GetParam().field);
    SendMessageW(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"ABC"));
    stage.GoTo(field);
    WaitUntil(L"its selection is there", [&] {
      return SendMessageW(field, EM_GETSEL, 0, 0) == MAKELONG(0, GetParam().selects ? 3 : 0);
    });
  });
}

INSTANTIATE_TEST_SUITE_P(
    EachField, ComingTo,
    testing::Values(Arrival{L"txtCityCode", true}, Arrival{L"txtIATANumber", true},
                    Arrival{L"txtCommission", true}, Arrival{L"txtPWCT", true},
                    Arrival{L"txtQueueCat", true}, Arrival{L"txtQueueingOfficeID", true},
                    Arrival{L"txtOPText", true}, Arrival{L"txtPTA", false},
                    Arrival{L"txtRMBODInfo", false}, Arrival{L"txtMCONumber", false}));

TEST(Space, TicksTheFollowUpAndMovesTheFocusToItsText) {
  DialogStage stage;
  stage.RunFilled([&] {
    stage.GoTo(ID_chkOP);
    driver::Press(stage.Item(ID_chkOP), VK_SPACE);
    driver::WaitForFocus(stage.Item(ID_txtOPText));
    EXPECT_TRUE(IsWindowEnabled(stage.Item(ID_lblOPText)));
  });
}

TEST(Space, TicksTheBackofficeDataAndMovesTheFocusToTheRemark) {
  DialogStage stage;
  stage.RunFilled([&] {
    stage.GoTo(ID_chkBOD);
    driver::Press(stage.Item(ID_chkBOD), VK_SPACE);
    driver::WaitForFocus(stage.Item(ID_txtRMBODInfo));
    EXPECT_TRUE(IsWindowEnabled(stage.Item(ID_lblRMStar)));
    EXPECT_TRUE(IsWindowEnabled(stage.Item(ID_chkPasSegAsso)));
  });
}

class EnterIn : public testing::TestWithParam<std::wstring> {};

TEST_P(EnterIn, AFieldOrABoxDoesNothing) {
  DialogStage stage;
  stage.RunWithEverythingOn([&] {
    const HWND control = stage.Item(GetParam());
    stage.GoTo(control);
    const bool wasTicked = SendMessageW(control, BM_GETCHECK, 0, 0) == BST_CHECKED;
    driver::Press(control, VK_RETURN);
    driver::Press(control, VK_TAB);
    WaitUntil(L"both keys are through", [&] {
      return driver::FocusOf(control) != nullptr && driver::FocusOf(control) != control;
    });
    EXPECT_EQ(SendMessageW(control, BM_GETCHECK, 0, 0) == BST_CHECKED, wasTicked);
  });
  EXPECT_EQ(stage.actions.calls, Lines{L"load"});
}

INSTANTIATE_TEST_SUITE_P(ForEach, EnterIn,
                         testing::ValuesIn(kTabOrder.begin(), kTabOrder.end() - 2));

TEST(EnterOnAFocusedButton, PressesIt) {
  DialogStage stage;
  const auto acts = [&] {
    stage.GoTo(ID_cmdCancel);
    driver::Press(stage.Item(ID_cmdCancel), VK_RETURN);
    stage.WaitForTheEnd();
  };
  EXPECT_THROW(stage.RunFilled(acts), common::EndOfRun);
}

TEST(EnterOnAFocusedButton, PressesOKToo) {
  DialogStage stage;
  const auto acts = [&] {
    stage.GoTo(ID_cmdOK);
    driver::Press(stage.Item(ID_cmdOK), VK_RETURN);
    stage.WaitForTheEnd();
  };
  stage.actions.inRun = [] { throw common::EndOfRun(); };
  EXPECT_THROW(stage.RunFilled(acts), common::EndOfRun);
  EXPECT_EQ(stage.actions.calls, (Lines{L"load", L"save", L"run"}));
}

class EndingBy : public testing::TestWithParam<const wchar_t*> {
 protected:
  void End(DialogStage& stage) {
    const std::wstring way = GetParam();
    stage.GoTo(ID_txtPWCT);
    if (way == L"click Cancel") driver::Click(stage.Item(ID_cmdCancel));
    if (way == L"close box") PostMessageW(stage.window(), WM_SYSCOMMAND, SC_CLOSE, 0);
    if (way == L"Esc") driver::Press(stage.Item(ID_txtPWCT), VK_ESCAPE);
    if (way == L"Alt+F4") driver::Press(stage.Item(ID_txtPWCT), VK_F4, driver::kAlt);
    stage.WaitForTheEnd();
  }
};

TEST_P(EndingBy, SavesNothingUnloadsTheDialogAndReleasesTheSession) {
  DialogStage stage;
  EXPECT_THROW(stage.RunFilled([&] { End(stage); }), common::EndOfRun);
  EXPECT_EQ(stage.actions.calls, (Lines{L"load", L"release session"}));
  EXPECT_FALSE(driver::IsThere(L"  PTA Script - Prepaid Ticket Advice"));
}

INSTANTIATE_TEST_SUITE_P(AnyWay, EndingBy,
                         testing::Values(L"click Cancel", L"close box", L"Esc", L"Alt+F4"));

}  // namespace

}  // namespace ui
