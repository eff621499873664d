#include "common/EndOfRun.h"
#include "tests/windows/binder/BinderBench.h"

namespace ui {

namespace {

using driver::WaitUntil;
using driver::WindowNamed;
using Lines = std::vector<std::wstring>;

class ModalWindows : public BinderBench {
 protected:
  frmInner inner;
  frmInnermost innermost;
};

TEST_F(ModalWindows, AModalFormKeepsTheOthersOffUntilItCloses) {
  form.cmdOK.onClick = [&] {
    desktop.ShowModal(inner);
    Log(L"back");
  };
  Run([&](HWND window) {
    driver::Click(Item(window, ID_cmdOK));
    const HWND modal = WindowNamed(L"The inner form");
    driver::WaitForFocus(Item(modal, ID_txtOPText));
    EXPECT_FALSE(IsWindowEnabled(window));
    EXPECT_EQ(log(), Lines{});
    driver::Press(Item(modal, ID_txtOPText), VK_RETURN);  // its default button closes it
    WaitUntil(L"it is closed", [&] { return log() == Lines{L"back"}; });
    EXPECT_TRUE(IsWindowEnabled(window));
    driver::WaitForFocus(Item(window, ID_cmdOK));
  });
}

TEST_F(ModalWindows, AFormThatUnloadsItselfWhileLoadingIsNeverSeen) {
  struct Shy : frmInner {
    void OnLoad() override { Unload(); }
  } shy;
  desktop.ShowModal(shy);
  EXPECT_FALSE(driver::IsThere(L"The inner form"));
}

TEST_F(ModalWindows, AFormClosedByAnotherProgramsMessageEndsItsLoopToo) {
  form.cmdOK.onClick = [&] {
    desktop.ShowModal(inner);
    Log(L"back");
  };
  Run([&](HWND window) {
    driver::Click(Item(window, ID_cmdOK));
    SendMessageW(WindowNamed(L"The inner form"), WM_CLOSE, 0, 0);
    WaitUntil(L"its loop has ended", [&] { return log() == Lines{L"back"}; });
  });
}

TEST_F(ModalWindows, TheEndOfTheRunComesOutThroughTwoModalForms) {
  form.cmdOK.onClick = [&] { desktop.ShowModal(inner); };
  inner.txtOPText.onChange = [&] { desktop.ShowModal(innermost); };
  innermost.btnCancel.onClick = [&] {
    form.Unload();
    throw common::EndOfRun();
  };
  const auto toTheInnermost = [&](HWND window) {
    driver::Click(Item(window, ID_cmdOK));
    driver::Type(Item(WindowNamed(L"The inner form"), ID_txtOPText), L"x");
    driver::Press(Item(WindowNamed(L"The innermost form"), ID_btnCancel), VK_SPACE);
    WaitForTheEnd();
  };
  EXPECT_THROW(Run(toTheInnermost), common::EndOfRun);
  for (const wchar_t* caption : {L"The test form", L"The inner form", L"The innermost form"}) {
    EXPECT_FALSE(driver::IsThere(caption));
  }
}

TEST_F(ModalWindows, AFormThatHasClosedHearsNoMoreOfItsWindow) {
  HWND field = nullptr;
  form.whenKeyDown = [&](const Control&, int) { Log(L"key"); };
  form.cmdOK.onClick = [&] {
    SendMessageW(field, WM_KEYDOWN, VK_F1, 0);
    form.Hide();
    Log(L"hidden");
    SendMessageW(field, WM_KEYDOWN, VK_F1, 0);
  };
  Run([&](HWND window) {
    field = Item(window, ID_txtPWCT);
    driver::Click(Item(window, ID_cmdOK));
    WaitForTheEnd();
  });
  EXPECT_EQ(log(), (Lines{L"key", L"hidden"}));
}

TEST_F(ModalWindows, AFormOfAHandlersOwnCanBeLeftByTheEndOfTheRun) {
  form.cmdOK.onClick = [&] {
    frmInner own;
    own.btnOK.onClick = [] { throw common::EndOfRun(); };
    desktop.ShowModal(own);
  };
  const auto toItsButton = [&](HWND window) {
    driver::Click(Item(window, ID_cmdOK));
    driver::Press(Item(WindowNamed(L"The inner form"), ID_txtOPText), VK_RETURN);
    WaitForTheEnd();
  };
  EXPECT_THROW(Run(toItsButton), common::EndOfRun);
  EXPECT_FALSE(driver::IsThere(L"The inner form"));
}

TEST_F(ModalWindows, AFailureInATimerComesOutThroughAMessageBox) {
  form.cmdOK.onClick = [&] {
    form.tmrWait.SetInterval(10);
    desktop.ShowBox(L"Wait", common::kPlain, L"A box");
    Log(L"the box was answered");
  };
  form.tmrWait.onTimer = [&] { throw std::runtime_error("from the timer"); };
  const auto clickOk = [&](HWND window) {
    driver::Click(Item(window, ID_cmdOK));
    WaitForTheEnd();
  };
  EXPECT_THROW(Run(clickOk), std::runtime_error);
  EXPECT_EQ(log(), Lines{});
  EXPECT_FALSE(driver::IsThere(L"A box"));
}

TEST_F(ModalWindows, AFailureInAFocusHandlerComesOutWhereTheFocusWasAskedFor) {
  form.txtPTA.onGotFocus = [] { throw std::runtime_error("from the handler"); };
  form.cmdOK.onClick = [&] {
    try {
      form.txtPTA.SetFocus();
    } catch (const std::runtime_error& error) {
      Log(driver::ToWide(error.what()));
    }
  };
  Run([&](HWND window) {
    driver::Click(Item(window, ID_cmdOK));
    WaitUntil(L"it is caught", [&] { return !log().empty(); });
    EXPECT_TRUE(IsWindowVisible(window));
  });
  EXPECT_EQ(log(), Lines{L"from the handler"});
}

TEST_F(ModalWindows, ABoxShowsItsLinesAndGivesTheAnswer) {
  form.cmdOK.onClick = [&] {
    Log(std::to_wstring(desktop.ShowBox(L"one\rtwo\r\nthree", common::kOkCancel, L"A box")));
    Log(std::to_wstring(desktop.ShowBox(L"plain", common::kInformation, L"")));
    Log(std::to_wstring(desktop.ShowBox(L"again", common::kOkCancel, L"Another box")));
  };
  Run([&](HWND window) {
    driver::Click(Item(window, ID_cmdOK));
    const HWND box = WindowNamed(L"A box");
    EXPECT_EQ(driver::BoxText(box), L"one\ntwo\nthree");
    EXPECT_FALSE(IsWindowEnabled(window));
    driver::Press(Item(box, IDOK), VK_ESCAPE);
    driver::Press(driver::OkButton(WindowNamed(L"Default")), VK_RETURN);
    driver::Press(Item(WindowNamed(L"Another box"), IDOK), VK_RETURN);
    WaitUntil(L"all are answered", [&] { return log().size() == 3; });
  });
  EXPECT_EQ(log(), (Lines{L"2", L"1", L"1"}));
}

TEST_F(ModalWindows, ABoxWithRetryGivesTheAnswer) {
  form.cmdOK.onClick = [&] {
    for (int box = 0; box < 3; ++box) {
      Log(std::to_wstring(
          desktop.ShowBox(L"busy", common::kRetryCancel, L"Box " + std::to_wstring(box))));
    }
  };
  Run([&](HWND window) {
    driver::Click(Item(window, ID_cmdOK));
    driver::Press(Item(WindowNamed(L"Box 0"), IDRETRY), VK_RETURN);
    driver::Click(Item(WindowNamed(L"Box 1"), IDCANCEL));
    driver::Press(Item(WindowNamed(L"Box 2"), IDRETRY), VK_ESCAPE);
    WaitUntil(L"all are answered", [&] { return log().size() == 3; });
  });
  EXPECT_EQ(log(), (Lines{L"4", L"2", L"2"}));
}

TEST_F(ModalWindows, ABoxKeepsEveryFormOff) {
  desktop.Show(inner);
  form.cmdOK.onClick = [&] { desktop.ShowBox(L"Wait", common::kPlain, L"A box"); };
  Run([&](HWND window) {
    driver::Click(Item(window, ID_cmdOK));
    const HWND box = WindowNamed(L"A box");
    EXPECT_FALSE(IsWindowEnabled(window));
    EXPECT_FALSE(IsWindowEnabled(WindowNamed(L"The inner form")));
    driver::Press(driver::OkButton(box), VK_RETURN);
    WaitUntil(L"they are on again", [&] {
      return IsWindowEnabled(window) && IsWindowEnabled(WindowNamed(L"The inner form"));
    });
  });
  inner.Unload();
}

TEST_F(ModalWindows, TheProgramsLoopEndsWhenNoFormIsVisible) {
  form.cmdOK.onClick = [&] { form.Hide(); };
  Run([&](HWND window) {
    driver::Click(Item(window, ID_cmdOK));
    WaitUntil(L"the form is gone", [&] { return !IsWindowVisible(window); });
  });
  EXPECT_FALSE(form.IsVisible());
}

}  // namespace

}  // namespace ui
