#include <gtest/gtest.h>

#include "common/EndOfRun.h"
#include "tests/ui/FilledDialog.h"
#include "tests/windows/dialog/DialogStage.h"
#include "tests/windows/driver/Driver.h"

namespace ui {

namespace {

using driver::WaitUntil;
using Lines = std::vector<std::wstring>;

constexpr std::wstring_view kBoxTitle = L"  PTA Script ";

struct Invalid {
  const wchar_t* field;
  const wchar_t* text;
  const wchar_t* message;
};

class OKWith : public testing::TestWithParam<Invalid> {
 protected:
  void Fill() {
    FillDialog(stage.form);
    stage.form.Find(GetParam().field)->SetText(GetParam().text);
  }

  DialogStage stage;
};

TEST_P(OKWith, AnInvalidFieldShowsWhyAndLeavesTheFocusAndTheSelectionThere) {
  stage.Run([this] { Fill(); },
            [&] {
              driver::WaitForFocusWithin(stage.window());
              driver::Click(stage.Item(ID_cmdOK));
              const HWND box = driver::WindowNamed(L"Invalid Field !");
              EXPECT_EQ(driver::BoxText(box), GetParam().message);
              EXPECT_EQ(driver::BoxIcon(box), LoadIconW(nullptr, IDI_INFORMATION));
              driver::Press(driver::OkButton(box), VK_RETURN);
              const HWND field = stage.Item(GetParam().field);
              driver::WaitForFocus(field);
              const std::size_t length = std::wstring_view(GetParam().text).size();
              WaitUntil(L"all of it is selected", [&] {
                return SendMessageW(field, EM_GETSEL, 0, 0) == MAKELONG(0, length);
              });
              EXPECT_EQ(driver::TextOf(field), GetParam().text);
              EXPECT_TRUE(IsWindowEnabled(stage.window()));
            });
  EXPECT_EQ(stage.actions.calls, Lines{L"load"});
}

INSTANTIATE_TEST_SUITE_P(
    EachFieldThatIsLookedAt, OKWith,
    testing::Values(
        Invalid{L"txtQueueingOfficeID", L"CPH SK001", L"Invalid Airline Office ID !"},
        Invalid{L"txtIATANumber", L"8024687", L"Invalid IATA Number, must be 8 digits !"},
        Invalid{L"txtCityCode", L"ST", L"Invalid City Code, must be three letters !"},
        Invalid{L"txtCarrier", L"SAS", L"Invalid Airline Code, must be two letters !"}));

TEST(OK, OfAFieldThatIsPutRightIsTaken) {
  DialogStage stage;
  stage.actions.inRun = [] { throw common::EndOfRun(); };
  const auto acts = [&] {
    const HWND field = stage.Item(ID_txtCityCode);
    stage.GoTo(field);
    driver::TypeOver(field, L"os");
    driver::Click(stage.Item(ID_cmdOK));
    const HWND box = driver::WindowNamed(L"Invalid Field !");
    driver::Press(driver::OkButton(box), VK_ESCAPE);
    driver::Type(field, L"osl");
    WaitUntil(L"it is put right", [&] { return driver::TextOf(field) == L"OSL"; });
    driver::Click(stage.Item(ID_cmdOK));
    stage.WaitForTheEnd();
  };
  EXPECT_THROW(stage.RunFilled(acts), common::EndOfRun);
  EXPECT_EQ(stage.actions.calls, (Lines{L"load", L"save", L"run"}));
  EXPECT_EQ(stage.form.txtCityCode.Text(), L"OSL");
}

/// What an agent can see of the dialog.
Lines Sight(const DialogStage& stage) {
  Lines lines;
  for (const Control* control : stage.form.controls()) {
    if (control->kind() != ControlKind::kTextBox && control->kind() != ControlKind::kCheckBox) {
      continue;
    }
    const HWND item = stage.Item(control->name());
    lines.push_back(std::wstring(control->name()) + L" " + driver::TextOf(item) + L" " +
                    std::to_wstring(SendMessageW(item, BM_GETCHECK, 0, 0)) + L" " +
                    std::to_wstring(IsWindowEnabled(item)));
  }
  lines.push_back(stage.Status());
  return lines;
}

void TryEverything(const DialogStage& stage) {
  const HWND focus = driver::WaitForFocusWithin(stage.window());
  for (const WORD key : {WORD{'X'}, WORD{VK_BACK}, WORD{VK_DELETE}, WORD{VK_F1}, WORD{VK_RETURN},
                         WORD{VK_SPACE}, WORD{VK_TAB}, WORD{VK_ESCAPE}}) {
    driver::Press(focus, key);
  }
  driver::Press(focus, 'W', driver::kAlt);
  driver::Press(focus, 'V', driver::kControl);
  driver::Press(focus, VK_F4, driver::kAlt);
  for (const int id : {ID_cmdOK, ID_cmdCancel, ID_chkOP, ID_txtCityCode}) {
    driver::Click(stage.Item(id));
  }
  PostMessageW(stage.window(), WM_SYSCOMMAND, SC_CLOSE, 0);
  SendMessageW(stage.Item(ID_cmdOK), BM_CLICK, 0, 0);
  SendMessageW(stage.Item(ID_cmdCancel), BM_CLICK, 0, 0);
}

TEST(FromAPassedValidation, TheDialogTakesNoInputAtAllUntilTheEnd) {
  DialogStage stage;
  std::atomic<bool> running = false;
  std::atomic<bool> tried = false;
  stage.actions.inRun = [&] {
    running = true;
    while (!tried) stage.desktop.Pause(std::chrono::milliseconds(10));
    stage.desktop.Pause(std::chrono::milliseconds(100));
    throw common::EndOfRun();
  };
  Lines before;
  Lines after;
  const auto acts = [&] {
    stage.GoTo(ID_txtPWCT);
    driver::Click(stage.Item(ID_cmdOK));
    WaitUntil(L"the run has begun", [&] { return running.load(); });
    before = Sight(stage);
    TryEverything(stage);
    after = Sight(stage);
    EXPECT_EQ(driver::FocusOf(stage.window()), stage.Item(ID_cmdOK));
    EXPECT_FALSE(driver::IsThere(kBoxTitle));
    tried = true;
    stage.WaitForTheEnd();
  };
  EXPECT_THROW(stage.RunFilled(acts), common::EndOfRun);
  EXPECT_EQ(before, after);
  EXPECT_EQ(stage.actions.calls, (Lines{L"load", L"save", L"run"}));
}

TEST(AFailedRun, GivesTheDialogBackToTheAgent) {
  DialogStage stage;
  std::atomic<bool> failed = false;
  stage.actions.inRun = [&] {
    failed = true;
    throw common::RunTimeError(L"broken");
  };
  stage.RunFilled([&] {
    stage.GoTo(ID_txtPWCT);
    driver::Click(stage.Item(ID_cmdOK));
    WaitUntil(L"the run has failed", [&] { return failed.load(); });
    stage.GoTo(ID_txtPWCT);
    driver::TypeOver(stage.Item(ID_txtPWCT), L"again");
    WaitUntil(L"the dialog takes keys again", [&] { return stage.Text(ID_txtPWCT) == L"AGAIN"; });
  });
  EXPECT_EQ(stage.actions.calls, (Lines{L"load", L"save", L"run"}));
}

}  // namespace

}  // namespace ui
