#include "tests/windows/binder/BinderBench.h"
#include "tests/windows/driver/Clipboard.h"

namespace ui {

namespace {

using driver::TextOf;
using driver::WaitUntil;

using TextBoxWindow = BinderBench;

TEST_F(TextBoxWindow, TypedCharactersPassTheKeyHandlerWhichMayChangeOrRefuseThem) {
  form.txtPWCT.onKeyPress = [](wchar_t& key) {
    if (key >= L'a' && key <= L'z') key = static_cast<wchar_t>(key - L'a' + L'A');
    if (key == L'1') key = 0;
  };
  Run([&](HWND window) {
    const HWND field = Item(window, ID_txtPWCT);
    driver::Type(field, L"sk 1at1.");
    WaitUntil(L"the text is typed", [&] { return TextOf(field) == L"SK AT."; });
    driver::Press(field, VK_BACK);
    WaitUntil(L"one is taken back", [&] { return TextOf(field) == L"SK AT"; });
  });
  EXPECT_EQ(form.txtPWCT.Text(), L"SK AT");
}

TEST_F(TextBoxWindow, TypingRaisesOneChangeForEachCharacterWithTheNewText) {
  form.txtPWCT.onChange = [&] { Log(form.txtPWCT.Text()); };
  Run([&](HWND window) {
    driver::Type(Item(window, ID_txtPWCT), L"abc");
    WaitUntil(L"all is typed", [&] { return log().size() >= 3; });
  });
  EXPECT_EQ(log(), (std::vector<std::wstring>{L"a", L"ab", L"abc"}));
}

TEST_F(TextBoxWindow, WhatTheProgramSetsIsShownAndComesBackAsNoSecondChange) {
  form.txtPTA.onChange = [&] { Log(L"PTA=" + std::wstring(form.txtPTA.Text())); };
  form.txtPWCT.onChange = [&] {
    Log(L"PWCT=" + std::wstring(form.txtPWCT.Text()));
    form.txtPTA.SetText(L"80");
  };
  Run([&](HWND window) {
    driver::Type(Item(window, ID_txtPWCT), L"x");
    WaitUntil(L"the other field shows it",
              [&] { return TextOf(Item(window, ID_txtPTA)) == L"80"; });
    driver::Type(Item(window, ID_txtPWCT), L"y");
    WaitUntil(L"both have changed again", [&] { return log().size() >= 4; });
  });
  EXPECT_EQ(log(), (std::vector<std::wstring>{L"PWCT=x", L"PTA=80", L"PWCT=xy", L"PTA=80"}));
}

TEST_F(TextBoxWindow, ALockedFieldCanBeFocusedSelectedAndCopiedButNotChanged) {
  form.txtPWCT.SetText(L"4012345678");
  form.txtPWCT.SetLocked(true);
  form.txtPWCT.onKeyPress = [&](wchar_t&) { Log(L"key"); };
  Run([&](HWND window) {
    const HWND field = Item(window, ID_txtPWCT);
    driver::PutOnClipboard(L"pasted");
    driver::Type(field, L"x");
    driver::Press(field, 'V', driver::kControl);
    driver::Press(field, 'A', driver::kControl);
    WaitUntil(L"all is selected", [&] { return SendMessageW(field, EM_GETSEL, 0, 0) == 10 << 16; });
    driver::WaitForCopied(L"4012345678", [&] { driver::Press(field, 'C', driver::kControl); });
  });
  EXPECT_EQ(form.txtPWCT.Text(), L"4012345678");
  EXPECT_EQ(form.txtPWCT.SelectionLength(), 10);
  EXPECT_EQ(log(), std::vector<std::wstring>{});
}

// Some edit controls know the key, and see to it before its character comes: hence the character
// alone.
TEST_F(TextBoxWindow, TheCharacterOfCtrlASelectsAllAndIsNeitherTypedNorFiltered) {
  form.txtPWCT.SetText(L"4012345678");
  form.txtPWCT.onKeyPress = [&](wchar_t&) { Log(L"key"); };
  Run([&](HWND window) {
    const HWND field = Item(window, ID_txtPWCT);
    SendMessageW(field, WM_CHAR, 1, 0);
    EXPECT_EQ(SendMessageW(field, EM_GETSEL, 0, 0), MAKELONG(0, 10));
  });
  EXPECT_EQ(form.txtPWCT.Text(), L"4012345678");
  EXPECT_EQ(form.txtPWCT.SelectionLength(), 10);
  EXPECT_EQ(log(), std::vector<std::wstring>{});
}

TEST_F(TextBoxWindow, PastedTextPassesThePasteHandlerNotTheKeyHandler) {
  form.txtPWCT.onKeyPress = [](wchar_t& key) { key = 0; };
  form.txtPWCT.onPaste = [](std::wstring_view text) { return L"<" + std::wstring(text) + L">"; };
  Run([&](HWND window) {
    driver::PutOnClipboard(L"one\r\ntwo");
    driver::Press(Item(window, ID_txtPWCT), 'V', driver::kControl);
    WaitUntil(L"it is pasted", [&] { return TextOf(Item(window, ID_txtPWCT)) == L"<one>"; });
  });
  EXPECT_EQ(form.txtPWCT.Text(), L"<one>");
}

TEST_F(TextBoxWindow, ComingToAFieldSelectsNothingUnlessTheFormSelects) {
  form.txtPWCT.SetText(L"first");
  form.txtPTA.SetText(L"second");
  form.txtPTA.onGotFocus = [&] { form.txtPTA.Select(1, 2); };
  Run([&](HWND window) {
    const HWND first = Item(window, ID_txtPWCT);
    const HWND second = Item(window, ID_txtPTA);
    driver::Press(first, VK_TAB);
    driver::WaitForFocus(second);
    WaitUntil(L"the form's selection is there",
              [&] { return SendMessageW(second, EM_GETSEL, 0, 0) == MAKELONG(1, 3); });
    driver::Press(second, VK_TAB, driver::kShift);
    driver::WaitForFocus(first);
    EXPECT_EQ(SendMessageW(first, EM_GETSEL, 0, 0), MAKELONG(0, 0));
  });
}

TEST_F(TextBoxWindow, TheFormKnowsWhatIsSelectedInTheWindow) {
  form.txtPWCT.SetText(L"abcdef");
  Run([&](HWND window) {
    const HWND field = Item(window, ID_txtPWCT);
    driver::Press(field, VK_HOME);
    driver::Press(field, VK_RIGHT);
    driver::Press(field, VK_RIGHT, driver::kShift);
    driver::Press(field, VK_RIGHT, driver::kShift);
    WaitUntil(L"two are selected",
              [&] { return SendMessageW(field, EM_GETSEL, 0, 0) == MAKELONG(1, 3); });
  });
  EXPECT_EQ(form.txtPWCT.SelectionStart(), 1);
  EXPECT_EQ(form.txtPWCT.SelectionLength(), 2);
}

TEST_F(TextBoxWindow, AnIncompleteFieldIsPaintedYellowAndALockedOneGrey) {
  form.txtPWCT.SetBackColor(kYellow);
  form.txtPTA.SetLocked(true);
  Run([&](HWND window) {
    const HDC dc = GetDC(window);
    SendMessageW(window, WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc),
                 reinterpret_cast<LPARAM>(Item(window, ID_txtPWCT)));
    EXPECT_EQ(GetBkColor(dc), RGB(255, 255, 0));
    SendMessageW(window, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc),
                 reinterpret_cast<LPARAM>(Item(window, ID_txtPTA)));
    EXPECT_EQ(GetBkColor(dc), GetSysColor(COLOR_BTNFACE));
    ReleaseDC(window, dc);
  });
}

/// Another colour of the user's for texts, while it stands.
class OtherTextColor {
 public:
  explicit OtherTextColor(COLORREF color) : before_(GetSysColor(COLOR_WINDOWTEXT)) { Set(color); }
  ~OtherTextColor() { Set(before_); }
  OtherTextColor(const OtherTextColor&) = delete;
  OtherTextColor& operator=(const OtherTextColor&) = delete;

 private:
  static void Set(COLORREF color) {
    const int index = COLOR_WINDOWTEXT;
    SetSysColors(1, &index, &color);
  }

  COLORREF before_;
};

TEST_F(TextBoxWindow, TheTextOfAYellowFieldIsBlackForAUserWithWhiteTextsToo) {
  const OtherTextColor white(RGB(255, 255, 255));
  form.txtPWCT.SetBackColor(kYellow);
  Run([&](HWND window) {
    const HDC dc = GetDC(window);
    SendMessageW(window, WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc),
                 reinterpret_cast<LPARAM>(Item(window, ID_txtPWCT)));
    EXPECT_EQ(GetTextColor(dc), RGB(0, 0, 0));
    ReleaseDC(window, dc);
  });
}

TEST_F(TextBoxWindow, F1ReachesTheFormFromTheControlWithTheFocus) {
  form.whenKeyDown = [&](const Control& control, int key) {
    if (key != VK_TAB) Log(std::wstring(control.name()) + L" " + std::to_wstring(key));
  };
  Run([&](HWND window) {
    driver::Press(Item(window, ID_txtPWCT), VK_F1);
    driver::Press(Item(window, ID_txtPWCT), VK_TAB);
    driver::Press(Item(window, ID_txtPTA), VK_TAB);
    driver::Press(Item(window, ID_chkOP), VK_F1);
    WaitUntil(L"both keys are through", [&] { return log().size() >= 2; });
  });
  EXPECT_EQ(log(), (std::vector<std::wstring>{L"txtPWCT 112", L"chkOP 112"}));
}

}  // namespace

}  // namespace ui
