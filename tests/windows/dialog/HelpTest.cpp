#include <gtest/gtest.h>

#include <mutex>

#include "tests/windows/dialog/DialogStage.h"
#include "tests/windows/driver/Driver.h"
#include "ui/HelpDefinitions.h"

namespace ui {

namespace {

using driver::WaitUntil;
using Lines = std::vector<std::wstring>;

constexpr std::wstring_view kBoxTitle = L"  PTA Script ";

// The texts themselves are compared with a table of their own, character by character, without a
// window; here it is whether the windows show them.
std::wstring F1Text(const std::wstring& control) {
  const HelpDefinition* const help = FindHelp(control);
  std::wstring text(help == nullptr ? L"" : help->f1);
  std::replace(text.begin(), text.end(), L'\r', L'\n');
  return text;
}

std::wstring StatusText(const std::wstring& control) {
  const HelpDefinition* const help = FindHelp(control);
  return std::wstring(help == nullptr ? L"" : help->status);
}

class F1On : public testing::TestWithParam<std::wstring> {};

TEST_P(F1On, ShowsTheLongHelpAndGivesTheFocusBack) {
  DialogStage stage;
  stage.RunWithEverythingOn([&] {
    const HWND control = stage.Item(GetParam());
    stage.GoTo(control);
    driver::Press(control, VK_F1);
    const HWND box = driver::WindowNamed(kBoxTitle);
    EXPECT_EQ(driver::BoxText(box), F1Text(GetParam()));
    EXPECT_EQ(driver::BoxIcon(box), nullptr);
    EXPECT_EQ(GetWindow(box, GW_OWNER), stage.window());
    driver::Press(driver::OkButton(box), VK_RETURN);
    driver::WaitForFocus(control);
    WaitUntil(L"the status explains it again",
              [&] { return stage.Status() == StatusText(GetParam()); });
  });
}

INSTANTIATE_TEST_SUITE_P(EachControlThatHasIt, F1On,
                         testing::Values(L"txtCityCode", L"txtIATANumber", L"txtCommission",
                                         L"txtPTA", L"txtPWCT", L"txtQueueCat",
                                         L"txtQueueingOfficeID", L"txtOPText", L"chkOP",
                                         L"chkPrintPNR", L"chkTSTNoUpdate", L"chkTKNoUpdate"));

class F1OnAControlWithoutHelp : public testing::TestWithParam<const wchar_t*> {};

TEST_P(F1OnAControlWithoutHelp, ShowsNothing) {
  DialogStage stage;
  stage.RunWithEverythingOn([&] {
    const HWND control = stage.Item(GetParam());
    stage.GoTo(control);
    driver::Press(control, VK_F1);
    driver::Press(control, VK_TAB, driver::kShift);
    WaitUntil(L"both keys are through", [&] {
      const HWND focus = driver::FocusOf(stage.window());
      return focus != nullptr && focus != control;
    });
    EXPECT_FALSE(driver::IsThere(kBoxTitle));
  });
}

INSTANTIATE_TEST_SUITE_P(Each, F1OnAControlWithoutHelp,
                         testing::Values(L"chkPanelMode", L"chkBOD", L"chkPasSegAsso",
                                         L"txtRMBODInfo", L"txtFormOfPayment", L"txtAirlinePrefix",
                                         L"txtMCONumber", L"txtCarrier", L"txtMCOFee", L"cmdOK",
                                         L"cmdCancel"));

class StatusOf : public testing::TestWithParam<std::wstring> {};

TEST_P(StatusOf, AControlExplainsItWhileItHasTheFocus) {
  DialogStage stage;
  stage.RunWithEverythingOn([&] {
    stage.GoTo(stage.Item(GetParam()));
    WaitUntil(L"the status explains it", [&] { return stage.Status() == StatusText(GetParam()); });
    // A field that is only looked at has nothing to say, so nothing may be left of the last one.
    stage.GoTo(ID_txtMCOFee);
    WaitUntil(L"the status is empty", [&] { return stage.Status().empty(); });
  });
}

INSTANTIATE_TEST_SUITE_P(Each, StatusOf,
                         testing::Values(L"txtCityCode", L"txtIATANumber", L"txtCommission",
                                         L"txtPTA", L"txtPWCT", L"txtQueueCat",
                                         L"txtQueueingOfficeID", L"txtOPText", L"txtRMBODInfo",
                                         L"chkOP", L"chkPrintPNR", L"chkTSTNoUpdate",
                                         L"chkTKNoUpdate", L"chkPanelMode", L"chkBOD",
                                         L"chkPasSegAsso", L"cmdOK", L"cmdCancel"));

/// What the status bar is told, as far as this thread's windows have come.
class StatusTexts {
 public:
  StatusTexts() : hook_(SetWindowsHookExW(WH_CALLWNDPROC, &See, nullptr, GetCurrentThreadId())) {
    Take();
  }
  ~StatusTexts() { UnhookWindowsHookEx(hook_); }
  StatusTexts(const StatusTexts&) = delete;
  StatusTexts& operator=(const StatusTexts&) = delete;

  static Lines Take() {
    const std::lock_guard lock(mutex_);
    return std::exchange(texts_, {});
  }

 private:
  static LRESULT CALLBACK See(int code, WPARAM wide, LPARAM further) {
    const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(further);
    if (code >= 0 && sent.message == WM_SETTEXT && GetDlgCtrlID(sent.hwnd) == ID_staStatusText) {
      const std::lock_guard lock(mutex_);
      texts_.emplace_back(reinterpret_cast<const wchar_t*>(sent.lParam));
    }
    return CallNextHookEx(nullptr, code, wide, further);
  }

  static inline std::mutex mutex_;
  static inline Lines texts_;
  HHOOK hook_;
};

TEST(Status, IsClearedWhenTheFocusLeavesBeforeTheNextControlSpeaks) {
  DialogStage stage;
  const StatusTexts texts;
  stage.RunFilled([&] {
    stage.GoTo(ID_chkPrintPNR);
    WaitUntil(L"it is explained", [&] { return stage.Status() == StatusText(L"chkPrintPNR"); });
    StatusTexts::Take();
    driver::Press(stage.Item(ID_chkPrintPNR), VK_TAB);
    WaitUntil(L"the next is explained",
              [&] { return stage.Status() == StatusText(L"chkTSTNoUpdate"); });
    EXPECT_EQ(StatusTexts::Take(), (Lines{L"", StatusText(L"chkTSTNoUpdate")}));
  });
}

TEST(Status, OfTheFieldThatGetsTheFirstFocusIsThereFromTheStart) {
  DialogStage stage;
  stage.RunFilled([&] {
    driver::WaitForFocus(stage.Item(ID_txtPTA));
    WaitUntil(L"the status explains it",
              [&] { return stage.Status() == L"Enter/modify the PTA Total Remark"; });
  });
}

TEST(Status, SaysInWordsThatAFieldIsIncomplete) {
  DialogStage stage;
  stage.RunFilled([&] {
    const HWND field = stage.Item(ID_txtCityCode);
    stage.GoTo(field);
    driver::TypeOver(field, L"st");
    WaitUntil(L"it says so", [&] {
      return stage.Status() == L"Enter your three letter IATA city code, e.g. STO (incomplete)";
    });
    driver::Type(field, L"o");
    WaitUntil(L"it says so no longer", [&] {
      return stage.Status() == L"Enter your three letter IATA city code, e.g. STO";
    });
  });
}

}  // namespace

}  // namespace ui
