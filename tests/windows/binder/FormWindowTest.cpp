#include "tests/windows/binder/BinderBench.h"

namespace ui {

namespace {

using driver::TextOf;
using driver::WaitUntil;
using Lines = std::vector<std::wstring>;

/// Counts how often the mouse button has gone up, as far as this thread's loop has come.
class ButtonUps {
 public:
  ButtonUps() : hook_(SetWindowsHookExW(WH_GETMESSAGE, &See, nullptr, GetCurrentThreadId())) {
    count_ = 0;
  }
  ~ButtonUps() { UnhookWindowsHookEx(hook_); }
  ButtonUps(const ButtonUps&) = delete;
  ButtonUps& operator=(const ButtonUps&) = delete;

  int count() const { return count_; }

 private:
  static LRESULT CALLBACK See(int code, WPARAM removed, LPARAM message) {
    if (code >= 0 && removed == PM_REMOVE &&
        reinterpret_cast<const MSG*>(message)->message == WM_LBUTTONUP) {
      ++count_;
    }
    return CallNextHookEx(nullptr, code, removed, message);
  }

  static inline std::atomic<int> count_ = 0;
  HHOOK hook_;
};

class FormWindowOnScreen : public BinderBench {
 protected:
  void LogFocus() {
    form.whenGot = [this](const Control& c) { Log(L"got " + std::wstring(c.name())); };
    form.whenLost = [this](const Control& c) { Log(L"lost " + std::wstring(c.name())); };
  }
};

TEST_F(FormWindowOnScreen, ShowsCaptionsAndStatesOfTheForm) {
  form.chkOP.SetValue(true);
  form.cmdOK.SetEnabled(false);
  form.staStatusText.SetText(L"Help");
  Run([&](HWND window) {
    EXPECT_EQ(TextOf(window), L"The test form");
    EXPECT_EQ(TextOf(Item(window, ID_lblPwct)), L"P&WCT:");
    EXPECT_EQ(TextOf(Item(window, ID_cmdCancel)), L"Cancel");
    EXPECT_EQ(SendMessageW(Item(window, ID_chkOP), BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_FALSE(IsWindowEnabled(Item(window, ID_cmdOK)));
    EXPECT_EQ(driver::StatusText(Item(window, ID_staStatusText)), L"Help");
  });
}

TEST_F(FormWindowOnScreen, FocusGoesInTheFormsOrderLostBeforeGot) {
  LogFocus();
  Run([&](HWND window) {
    int from = ID_txtPWCT;
    for (const int to : {ID_txtPTA, ID_chkOP, ID_lstTST, ID_cmdOK, ID_cmdCancel, ID_txtPWCT}) {
      driver::Press(Item(window, from), VK_TAB);
      driver::WaitForFocus(Item(window, to));
      from = to;
    }
  });
  EXPECT_EQ(log(), (Lines{L"got txtPWCT", L"lost txtPWCT", L"got txtPTA", L"lost txtPTA",
                          L"got chkOP", L"lost chkOP", L"got lstTST", L"lost lstTST", L"got cmdOK",
                          L"lost cmdOK", L"got cmdCancel", L"lost cmdCancel", L"got txtPWCT"}));
}

TEST_F(FormWindowOnScreen, AFocusThatLostFocusMovesOnStaysThere) {
  LogFocus();
  form.whenLost = [&](const Control& left) {
    if (&left == &form.txtPWCT) form.cmdCancel.SetFocus();
  };
  Run([&](HWND window) {
    driver::Press(Item(window, ID_txtPWCT), VK_TAB);
    driver::WaitForFocus(Item(window, ID_cmdCancel));
  });
  EXPECT_EQ(log().back(), L"got cmdCancel");
  EXPECT_EQ(form.ActiveControl(), &form.cmdCancel);
}

TEST_F(FormWindowOnScreen, AControlSwitchedOffUnderTheFocusPassesItOn) {
  form.txtPWCT.onChange = [&] { form.txtPWCT.SetEnabled(false); };
  Run([&](HWND window) {
    driver::Type(Item(window, ID_txtPWCT), L"x");
    driver::WaitForFocus(Item(window, ID_txtPTA));
  });
}

TEST_F(FormWindowOnScreen, SpaceTicksACheckBoxAndTheProgramsTickRaisesNoClickOfTheUsers) {
  form.chkOP.onClick = [&] { Log(form.chkOP.Value() ? L"ticked" : L"unticked"); };
  form.cmdOK.onClick = [&] { form.chkOP.SetValue(false); };
  Run([&](HWND window) {
    form.chkOP.SetFocus();
    driver::Press(Item(window, ID_chkOP), VK_SPACE);
    WaitUntil(L"it is ticked", [&] { return log().size() == 1; });
    driver::Click(Item(window, ID_cmdOK));
    WaitUntil(L"it is unticked",
              [&] { return SendMessageW(Item(window, ID_chkOP), BM_GETCHECK, 0, 0) == 0; });
  });
  EXPECT_EQ(log(), (Lines{L"ticked", L"unticked"}));
}

TEST_F(FormWindowOnScreen, EnterInAFieldDoesNothingAndOnAButtonClicksIt) {
  form.cmdOK.onClick = [&] { Log(L"OK"); };
  form.cmdCancel.onClick = [&] { Log(L"Cancel"); };
  Run([&](HWND window) {
    driver::Press(Item(window, ID_txtPWCT), VK_RETURN);
    driver::Press(Item(window, ID_txtPWCT), VK_TAB, driver::kShift);
    driver::Press(Item(window, ID_cmdCancel), VK_RETURN);
    WaitUntil(L"a button is clicked", [&] { return !log().empty(); });
    driver::Press(Item(window, ID_cmdCancel), VK_TAB);
    driver::Press(Item(window, ID_txtPWCT), VK_RETURN);
    driver::Type(Item(window, ID_txtPWCT), L"x");
    WaitUntil(L"all keys are through", [&] { return TextOf(Item(window, ID_txtPWCT)) == L"x"; });
  });
  EXPECT_EQ(log(), Lines{L"Cancel"});
}

TEST_F(FormWindowOnScreen, EnterThatIsHeldPressesAButtonOnce) {
  form.cmdOK.onClick = [&] { Log(L"OK"); };
  Run([&](HWND window) {
    const HWND button = Item(window, ID_cmdOK);
    form.cmdOK.SetFocus();
    driver::WaitForFocus(button);
    PostMessageW(button, WM_KEYDOWN, VK_RETURN, 1);
    for (int i = 0; i < 3; ++i) {
      PostMessageW(button, WM_KEYDOWN, VK_RETURN, MAKELPARAM(1, KF_REPEAT));
    }
    driver::Press(button, VK_TAB);
    driver::WaitForFocus(Item(window, ID_cmdCancel));
  });
  EXPECT_EQ(log(), Lines{L"OK"});
}

TEST_F(FormWindowOnScreen, AnAcceleratorGoesToTheFieldBehindItsLabel) {
  Run([&](HWND window) {
    driver::Press(Item(window, ID_txtPWCT), 'P', driver::kAlt);
    driver::WaitForFocus(Item(window, ID_txtPTA));
    driver::Press(Item(window, ID_txtPTA), 'W', driver::kAlt);
    driver::WaitForFocus(Item(window, ID_txtPWCT));
  });
}

TEST_F(FormWindowOnScreen, EscAndTheCloseBoxAskTheFormToClose) {
  Run([&](HWND window) {
    driver::Press(Item(window, ID_txtPWCT), VK_ESCAPE);
    WaitUntil(L"Esc asks", [&] { return form.closeAsked == 1; });
    PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0);
    WaitUntil(L"the close box asks", [&] { return form.closeAsked == 2; });
    EXPECT_TRUE(IsWindowVisible(window));
  });
}

TEST_F(FormWindowOnScreen, SeveralLinesOfAListAreSelectedWithTheKeyboard) {
  for (const wchar_t* line : {L"one", L"two", L"three"}) form.lstTST.Add(line);
  Run([&](HWND window) {
    const HWND list = Item(window, ID_lstTST);
    EXPECT_EQ(driver::ListLine(list, 2), L"three");
    form.lstTST.SetFocus();
    driver::Press(list, VK_SPACE);
    driver::Press(list, VK_DOWN);
    driver::Press(list, VK_DOWN);
    driver::Press(list, VK_SPACE);
    WaitUntil(L"the third is selected", [&] { return form.lstTST.Items()[2].selected; });
  });
  EXPECT_TRUE(form.lstTST.Items()[0].selected);
  EXPECT_FALSE(form.lstTST.Items()[1].selected);
  EXPECT_TRUE(form.lstTST.Items()[2].selected);
}

TEST_F(FormWindowOnScreen, ARunningTimerTicksUntilItsIntervalIsZero) {
  form.tmrWait.SetInterval(20);
  form.tmrWait.onTimer = [&] {
    Log(L"tick");
    if (log().size() == 3) form.tmrWait.SetInterval(0);
  };
  Run([&](HWND window) {
    WaitUntil(L"it has ticked three times", [&] { return log().size() == 3; });
    EXPECT_FALSE(driver::Holds([&] { return log().size() > 3; }, std::chrono::milliseconds(200)));
    EXPECT_TRUE(IsWindowVisible(window));
  });
}

TEST_F(FormWindowOnScreen, WhileTheGateIsShutNothingReachesTheForm) {
  form.txtPWCT.SetText(L"as it was");
  form.tmrWait.onTimer = [&] { Log(L"tick"); };
  form.chkOP.onClick = [&] { Log(L"check"); };
  form.txtPWCT.onChange = [&] { Log(L"change"); };
  form.txtPWCT.onKeyPress = [&](wchar_t&) { Log(L"key"); };
  form.whenKeyDown = [&](const Control&, int) { Log(L"down"); };
  form.cmdOK.onClick = [&] { Log(L"click"); };
  const ButtonUps ups;
  Run([&](HWND window) {
    {
      const InputGate::Shut shut(desktop.input());
      form.tmrWait.SetInterval(20);
      driver::Type(Item(window, ID_txtPWCT), L"x");
      driver::Press(Item(window, ID_txtPWCT), VK_F1);
      driver::Press(Item(window, ID_txtPWCT), VK_RETURN);
      driver::Press(Item(window, ID_txtPWCT), VK_ESCAPE);
      driver::Press(Item(window, ID_txtPWCT), VK_TAB);
      driver::Press(Item(window, ID_txtPWCT), 'P', driver::kAlt);
      driver::Click(Item(window, ID_cmdOK));
      driver::Click(Item(window, ID_chkOP));
      SendMessageW(window, WM_COMMAND, MAKEWPARAM(ID_cmdOK, BN_CLICKED),
                   reinterpret_cast<LPARAM>(Item(window, ID_cmdOK)));
      PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0);
      SendMessageW(Item(window, ID_cmdOK), BM_CLICK, 0, 0);
      SendMessageW(Item(window, ID_chkOP), BM_CLICK, 0, 0);
      SendMessageW(Item(window, ID_txtPWCT), WM_CHAR, 'x', 0);
      WaitUntil(L"all has come through", [&] { return ups.count() == 2; });
      EXPECT_FALSE(driver::Holds([&] { return !log().empty(); }, std::chrono::milliseconds(100)));
      EXPECT_EQ(TextOf(Item(window, ID_txtPWCT)), L"as it was");
      EXPECT_EQ(SendMessageW(Item(window, ID_chkOP), BM_GETCHECK, 0, 0), BST_UNCHECKED);
      EXPECT_EQ(form.closeAsked, 0);
      EXPECT_EQ(form.ActiveControl(), &form.txtPWCT);
    }
    WaitUntil(L"the timer is through again", [&] { return !log().empty(); });
  });
  EXPECT_EQ(log().front(), L"tick");
}

TEST_F(FormWindowOnScreen, AFormDestroyedWhileItIsVisibleTakesItsWindowAlong) {
  auto inner = std::make_unique<frmInner>();
  desktop.Show(*inner);
  EXPECT_TRUE(driver::IsThere(L"The inner form"));
  inner.reset();
  EXPECT_FALSE(driver::IsThere(L"The inner form"));
  desktop.Pause(std::chrono::milliseconds(50));
}

TEST_F(FormWindowOnScreen, AFormHiddenAndShownAgainHasKeptWhatItHeld) {
  frmInner inner;
  desktop.Show(inner);
  inner.txtOPText.SetText(L"kept");
  inner.Hide();
  EXPECT_FALSE(driver::IsThere(L"The inner form"));
  inner.txtOPText.SetText(L"changed meanwhile");
  desktop.Show(inner);
  EXPECT_EQ(TextOf(Item(driver::WindowNamed(L"The inner form"), ID_txtOPText)),
            L"changed meanwhile");
  inner.Unload();
}

}  // namespace

}  // namespace ui
