#include <gtest/gtest.h>

#include "tests/windows/dialog/DialogStage.h"
#include "tests/windows/driver/Driver.h"
#include "tests/windows/driver/Picture.h"

namespace ui {

namespace {

using driver::WaitUntil;

constexpr COLORREF kYellowOnScreen = RGB(255, 255, 0);
constexpr COLORREF kWhite = RGB(255, 255, 255);

/// The screen's colour within the field, beside its text and caret.
COLORREF ColorOf(HWND field) {
  RECT area = {};
  GetClientRect(field, &area);
  return driver::ColorAt(field, area.right - 3, area.bottom / 2);
}

void WaitForColor(HWND field, COLORREF color) {
  WaitUntil(L"it has the colour " + std::to_wstring(color),
            [&] { return ColorOf(field) == color; });
}

class RequiredFieldOnScreen : public testing::TestWithParam<std::tuple<const wchar_t*, int>> {};

TEST_P(RequiredFieldOnScreen, IsYellowUntilItsLastCharacterIsTyped) {
  const auto [name, length] = GetParam();
  ASSERT_EQ(GetSysColor(COLOR_WINDOW), kWhite);
  DialogStage stage;
  stage.Run([] {},
            [&] {
              const HWND field = stage.Item(name);
              WaitForColor(field, kYellowOnScreen);
              const bool letters = std::wstring_view(name) == L"txtCityCode";
              stage.GoTo(field);
              driver::Type(
                  field, std::wstring(static_cast<std::size_t>(length) - 1, letters ? L'S' : L'1'));
              WaitUntil(L"all but one are typed", [&] {
                return static_cast<int>(driver::TextOf(field).size()) == length - 1;
              });
              WaitForColor(field, kYellowOnScreen);
              driver::Type(field, letters ? L"S" : L"1");
              WaitForColor(field, kWhite);
              driver::Press(field, VK_BACK);
              WaitForColor(field, kYellowOnScreen);
            });
}

INSTANTIATE_TEST_SUITE_P(Each, RequiredFieldOnScreen,
                         testing::Values(std::tuple{L"txtCityCode", 3},
                                         std::tuple{L"txtIATANumber", 8},
                                         std::tuple{L"txtCommission", 1}, std::tuple{L"txtPTA", 1},
                                         std::tuple{L"txtPWCT", 1}));

class FieldThatIsNotRequired : public testing::TestWithParam<const wchar_t*> {};

TEST_P(FieldThatIsNotRequired, IsWhiteThoughItIsEmpty) {
  DialogStage stage;
  stage.Run([&] { stage.form.chkOP.SetValue(true); },
            [&] { WaitForColor(stage.Item(GetParam()), kWhite); });
}

INSTANTIATE_TEST_SUITE_P(Each, FieldThatIsNotRequired,
                         testing::Values(L"txtQueueingOfficeID", L"txtOPText"));

class FieldThatTakesNothing : public testing::TestWithParam<const wchar_t*> {};

TEST_P(FieldThatTakesNothing, LooksSo) {
  DialogStage stage;
  stage.Run([] {}, [&] { WaitForColor(stage.Item(GetParam()), GetSysColor(COLOR_BTNFACE)); });
}

INSTANTIATE_TEST_SUITE_P(LockedOrOff, FieldThatTakesNothing,
                         testing::Values(L"txtFormOfPayment", L"txtAirlinePrefix", L"txtMCONumber",
                                         L"txtCarrier", L"txtMCOFee", L"txtQueueCat", L"txtOPText",
                                         L"txtRMBODInfo"));

TEST(TheWindow, BearsItsTitleAndAnIconAndCanBePutAside) {
  DialogStage stage;
  stage.RunFilled([&] {
    EXPECT_EQ(driver::TextOf(stage.window()), L"  PTA Script - Prepaid Ticket Advice");
    EXPECT_NE(GetWindowLongW(stage.window(), GWL_STYLE) & WS_MINIMIZEBOX, 0);
    EXPECT_NE(GetWindowLongW(stage.window(), GWL_EXSTYLE) & WS_EX_APPWINDOW, 0);
  });
}

TEST(TheFee, IsShownWithTheUsersDecimalSeparator) {
  DialogStage stage;
  stage.RunFilled(
      [&] { WaitUntil(L"it is shown", [&] { return stage.Text(ID_txtMCOFee) == L"250,5"; }); });
}

class WarningBox : public testing::Test {
 protected:
  /// Waits for the warning over the dialog, and answers it.
  void Answer(const std::wstring& text) {
    const HWND box = driver::WindowNamed(L"  PTA Script ");
    EXPECT_EQ(driver::BoxText(box), text);
    EXPECT_EQ(driver::BoxIcon(box), nullptr);
    EXPECT_FALSE(IsWindowEnabled(stage.window()));
    driver::Press(driver::OkButton(box), VK_RETURN);
    WaitUntil(L"the box is gone", [&] { return !IsWindow(box); });
  }
  void WaitForSelection(int id, int length) {
    WaitUntil(L"all of it is selected",
              [&] { return SendMessageW(stage.Item(id), EM_GETSEL, 0, 0) == MAKELONG(0, length); });
  }

  const std::wstring airlineVaries =
      L"Warning: The Ticketing Airline varies in the TST's and/or does not match first Airline in "
      L"the TST(s) selected !";
  const std::wstring commissionVaries =
      L"Warning: The Commission varies in the TST's selected ! Only one commission is valid.";
  DialogStage stage;
};

TEST_F(WarningBox, OfAnotherTicketingAirlineSelectsTheAirlineAndLeavesTheFocus) {
  stage.AddTST(L"LH", L"10");
  stage.RunFilled([&] {
    Answer(airlineVaries);
    WaitForSelection(ID_txtCarrier, 2);
    driver::WaitForFocus(stage.Item(ID_txtPTA));
  });
}

TEST_F(WarningBox, OfAnotherCommissionSelectsTheCommissionAndLeavesTheFocus) {
  stage.AddTST(L"SK", L"9");
  stage.RunFilled([&] {
    Answer(commissionVaries);
    WaitForSelection(ID_txtCommission, 2);
    driver::WaitForFocus(stage.Item(ID_txtPTA));
  });
}

TEST_F(WarningBox, OfTheAirlineIsFollowedByThatOfTheCommission) {
  stage.AddTST(L"LH", L"9");
  stage.RunFilled([&] {
    Answer(airlineVaries);
    Answer(commissionVaries);
    driver::WaitForFocus(stage.Item(ID_txtPTA));
  });
}

}  // namespace

}  // namespace ui
