#include <gtest/gtest.h>

#include "tests/windows/dialog/DialogStage.h"
#include "tests/windows/dialog/HeardBeeps.h"
#include "tests/windows/driver/Clipboard.h"
#include "tests/windows/driver/Driver.h"

namespace ui {

namespace {

using driver::WaitUntil;

class Editing : public testing::Test {
 protected:
  HWND GoToEmptied(int id) {
    const HWND field = stage.Item(id);
    stage.GoTo(field);
    driver::TypeOver(field, L"");
    WaitUntil(L"it is empty", [&] { return driver::TextOf(field).empty(); });
    return field;
  }
  void WaitForText(HWND field, const std::wstring& text) {
    WaitUntil(L"it shows \"" + text + L"\"", [&] { return driver::TextOf(field) == text; });
  }
  void WaitForAllSelected(HWND field) {
    const std::size_t length = driver::TextOf(field).size();
    WaitUntil(L"all is selected",
              [&] { return SendMessageW(field, EM_GETSEL, 0, 0) == MAKELONG(0, length); });
  }

  DialogStage stage;
};

TEST_F(Editing, WhatIsPastedIsUpperCasedButNotFiltered) {
  stage.RunFilled([&] {
    driver::PutOnClipboard(L"sto 1%");
    const HWND field = GoToEmptied(ID_txtCityCode);
    driver::Press(field, 'V', driver::kControl);
    WaitForText(field, L"STO 1%");
  });
  EXPECT_EQ(stage.form.txtCityCode.Text(), L"STO 1%");
}

TEST_F(Editing, ShiftInsertPastesToo) {
  stage.RunFilled([&] {
    driver::PutOnClipboard(L"sk at arn");
    const HWND field = GoToEmptied(ID_txtPWCT);
    driver::Press(field, VK_INSERT, driver::kShift);
    WaitForText(field, L"SK AT ARN");
  });
}

TEST_F(Editing, WhatIsPastedIntoTheIATANumberIsNotUpperCased) {
  stage.RunFilled([&] {
    driver::PutOnClipboard(L"8024ab");
    const HWND field = GoToEmptied(ID_txtIATANumber);
    driver::Press(field, 'V', driver::kControl);
    WaitForText(field, L"8024ab");
  });
}

TEST_F(Editing, PastingReplacesTheSelectionAndRaisesTheFieldsChange) {
  stage.RunFilled([&] {
    driver::PutOnClipboard(L"cphsk0001");
    const HWND queue = GoToEmptied(ID_txtQueueCat);
    const HWND office = stage.Item(ID_txtQueueingOfficeID);
    stage.GoTo(office);  // which selects its text
    driver::Press(office, 'V', driver::kControl);
    WaitForText(office, L"CPHSK0001");
    WaitForText(queue, L"80");
  });
}

TEST_F(Editing, CutTakesTheSelectionAwayAndPasteBringsItBack) {
  stage.RunFilled([&] {
    const HWND field = stage.Item(ID_txtCityCode);
    stage.GoTo(field);
    driver::Press(field, 'X', driver::kControl);
    WaitForText(field, L"");
    WaitUntil(L"OK is off", [&] { return !IsWindowEnabled(stage.Item(ID_cmdOK)); });
    driver::Press(field, 'V', driver::kControl);
    WaitForText(field, L"STO");
    WaitUntil(L"OK is on", [&] { return IsWindowEnabled(stage.Item(ID_cmdOK)) != FALSE; });
  });
}

TEST_F(Editing, UndoTakesTypingBackAndTheFormKnowsIt) {
  stage.RunFilled([&] {
    const HWND field = stage.Item(ID_txtCityCode);
    stage.GoTo(field);
    driver::Type(field, L"os");
    WaitForText(field, L"OS");
    driver::Press(field, 'Z', driver::kControl);
    WaitForText(field, L"STO");
  });
  EXPECT_EQ(stage.form.txtCityCode.Text(), L"STO");
  EXPECT_EQ(stage.form.txtCityCode.BackColor(), kWindowBackground);
}

TEST_F(Editing, UndoTakesAPasteBack) {
  stage.RunFilled([&] {
    driver::PutOnClipboard(L"pasted");
    const HWND field = stage.Item(ID_txtPWCT);
    stage.GoTo(field);
    driver::Press(field, 'V', driver::kControl);
    WaitForText(field, L"PASTED");
    driver::Press(field, 'Z', driver::kControl);
    WaitForText(field, L"SK AT ARN A/P BEFORE DEPARTURE");
  });
}

TEST_F(Editing, CtrlASelectsTheWholeTextWithoutABeepOrACharacter) {
  stage.RunFilled([&] {
    const HWND field = stage.Item(ID_txtPTA);
    stage.GoTo(field);
    driver::Press(field, VK_END);
    driver::Press(field, 'A', driver::kControl);
    WaitForAllSelected(field);
    driver::Type(field, L"x");
    WaitForText(field, L"X");
  });
}

TEST_F(Editing, CtrlBackspaceErasesTheWordBeforeTheCaret) {
  stage.RunFilled([&] {
    const HWND field = stage.Item(ID_txtPWCT);
    stage.GoTo(field);
    driver::Press(field, VK_END);
    driver::Press(field, VK_BACK, driver::kControl);
    WaitForText(field, L"SK AT ARN A/P BEFORE ");
    driver::Press(field, VK_BACK, driver::kControl);
    WaitForText(field, L"SK AT ARN A/P ");
    driver::Press(field, VK_HOME);
    driver::Press(field, VK_BACK, driver::kControl);
    driver::Type(field, L"x");
    WaitForText(field, L"XSK AT ARN A/P ");
    driver::Press(field, VK_BACK, driver::kControl);
    WaitForText(field, L"SK AT ARN A/P ");
  });
  EXPECT_EQ(stage.form.txtPWCT.Text(), L"SK AT ARN A/P ");
}

TEST_F(Editing, CtrlBackspaceErasesTheSelectionAndNoMoreAndDoesNotBeep) {
  const int before = HeardBeeps();
  stage.RunFilled([&] {
    const HWND field = stage.Item(ID_txtIATANumber);
    stage.GoTo(field);
    driver::Press(field, VK_END);
    driver::Press(field, VK_LEFT, driver::kShift);
    driver::Press(field, VK_BACK, driver::kControl);
    WaitForText(field, L"8024687");
  });
  EXPECT_EQ(HeardBeeps(), before);
}

class LockedOnes : public Editing, public testing::WithParamInterface<const wchar_t*> {};

TEST_P(LockedOnes, AreSelectedAndCopiedButNeitherCutNorPastedInto) {
  stage.RunFilled([&] {
    const HWND field = stage.Item(GetParam());
    const std::wstring text = driver::TextOf(field);
    stage.GoTo(field);
    driver::PutOnClipboard(L"other");
    driver::Press(field, 'V', driver::kControl);
    driver::Press(field, VK_INSERT, driver::kShift);
    driver::Press(field, 'A', driver::kControl);
    WaitForAllSelected(field);
    driver::Press(field, 'X', driver::kControl);
    driver::Press(field, VK_BACK, driver::kControl);
    driver::Press(field, VK_HOME);
    WaitUntil(L"nothing is selected", [&] { return SendMessageW(field, EM_GETSEL, 0, 0) == 0; });
    driver::Press(field, 'A', driver::kControl);
    WaitForAllSelected(field);
    driver::WaitForCopied(text, [&] { driver::Press(field, 'C', driver::kControl); });
    EXPECT_EQ(driver::TextOf(field), text);
  });
}

INSTANTIATE_TEST_SUITE_P(Each, LockedOnes,
                         testing::Values(L"txtFormOfPayment", L"txtAirlinePrefix", L"txtMCONumber",
                                         L"txtCarrier", L"txtMCOFee"));

}  // namespace

}  // namespace ui
