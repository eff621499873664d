#include <gtest/gtest.h>

#include "tests/windows/dialog/DialogStage.h"
#include "tests/windows/dialog/HeardBeeps.h"
#include "tests/windows/driver/Driver.h"

namespace ui {

namespace {

using driver::WaitUntil;

struct Typing {
  const wchar_t* field;
  const wchar_t* keys;
  const wchar_t* arrives;
  int refused;
};

class TypingInto : public testing::TestWithParam<Typing> {
 protected:
  /// Empties the field, presses the keys and waits until as much has arrived.
  void TypeAfresh(HWND field) {
    stage.GoTo(field);
    driver::TypeOver(field, L"");
    WaitUntil(L"the field is empty", [&] { return driver::TextOf(field).empty(); });
    driver::Type(field, GetParam().keys);
    const std::wstring arrives = GetParam().arrives;
    WaitUntil(L"\"" + arrives + L"\" has arrived",
              [&] { return driver::TextOf(field) == arrives; });
  }

  DialogStage stage;
};

TEST_P(TypingInto, TheFieldTakesItsOwnCharactersInCapitalsAndBeepsForEveryOther) {
  const int before = HeardBeeps();
  stage.RunWithEverythingOn([&] {
    const HWND field = stage.Item(GetParam().field);
    TypeAfresh(field);
    driver::Press(field, VK_BACK);
    std::wstring shorter = GetParam().arrives;
    shorter.pop_back();
    WaitUntil(L"backspace has passed", [&] { return driver::TextOf(field) == shorter; });
    EXPECT_EQ(stage.form.Find(GetParam().field)->Text(), shorter);
  });
  EXPECT_EQ(HeardBeeps() - before, GetParam().refused);
}

INSTANTIATE_TEST_SUITE_P(
    EachField, TypingInto,
    testing::Values(Typing{L"txtCityCode", L"s1t%o 9", L"STO", 4},
                    Typing{L"txtCityCode", L"Stockh", L"STOCKH", 0},
                    Typing{L"txtIATANumber", L"80a2-46878B", L"80246878", 3},
                    Typing{L"txtIATANumber", L"802468780123", L"802468780123", 0},
                    Typing{L"txtCommission", L"25%0ab", L"250A", 2},
                    Typing{L"txtQueueCat", L"80c2ed 1", L"80C2D1", 2},
                    Typing{L"txtQueueingOfficeID", L"cphsk0001 ?x", L"CPHSK0001 ?X", 0},
                    Typing{L"txtPWCT", L"sk  at arn a/p before departure",
                           L"SK  AT ARN A/P BEFORE DEPARTURE", 0},
                    Typing{L"txtPTA", L"sek1000/tax sek120xt, sek40.50yq",
                           L"SEK1000/TAX SEK120XT, SEK40.50YQ", 0},
                    Typing{L"txtOPText", L"80c2/check 'it'", L"80C2/CHECK 'IT'", 0},
                    Typing{L"txtRMBODInfo", L"paid by card #1 \u00e5\u00e9",
                           L"PAID BY CARD #1 \u00c5\u00c9", 0}));

class FieldsWithoutALimit : public testing::TestWithParam<const wchar_t*> {};

TEST_P(FieldsWithoutALimit, TakeAHundredCharactersAndMore) {
  DialogStage stage;
  const std::wstring keys(150, L'x');
  stage.RunWithEverythingOn([&] {
    const HWND field = stage.Item(GetParam());
    stage.GoTo(field);
    driver::TypeOver(field, keys);
    WaitUntil(L"all has arrived", [&] { return driver::TextOf(field) == std::wstring(150, L'X'); });
  });
}

INSTANTIATE_TEST_SUITE_P(Remarks, FieldsWithoutALimit,
                         testing::Values(L"txtPTA", L"txtPWCT", L"txtOPText", L"txtRMBODInfo"));

class LockedField : public testing::TestWithParam<const wchar_t*> {};

TEST_P(LockedField, TakesTheFocusAndTheSelectionButNoKey) {
  DialogStage stage;
  stage.RunFilled([&] {
    const HWND field = stage.Item(GetParam());
    const std::wstring text = driver::TextOf(field);
    ASSERT_FALSE(text.empty());
    stage.GoTo(field);
    driver::Type(field, L"x1");
    driver::Press(field, VK_BACK);
    driver::Press(field, VK_DELETE);
    driver::Press(field, VK_HOME);
    driver::Press(field, VK_END, driver::kShift);
    WaitUntil(L"all of it is selected",
              [&] { return SendMessageW(field, EM_GETSEL, 0, 0) == MAKELONG(0, text.size()); });
    EXPECT_EQ(driver::TextOf(field), text);
  });
}

INSTANTIATE_TEST_SUITE_P(Each, LockedField,
                         testing::Values(L"txtFormOfPayment", L"txtAirlinePrefix", L"txtMCONumber",
                                         L"txtCarrier", L"txtMCOFee"));

TEST(TypingAnOffice, TurnsTheQueueOnWithItsDefaultAndClearingItTurnsItOff) {
  DialogStage stage;
  stage.RunFilled([&] {
    const HWND office = stage.Item(ID_txtQueueingOfficeID);
    const HWND queue = stage.Item(ID_txtQueueCat);
    stage.GoTo(office);
    driver::TypeOver(office, L"");
    WaitUntil(L"the queue is off", [&] { return !IsWindowEnabled(queue); });
    EXPECT_EQ(driver::TextOf(queue), L"");
    EXPECT_FALSE(IsWindowEnabled(stage.Item(ID_lblQueuecatnumber)));
    driver::Type(office, L"c");
    WaitUntil(L"the queue is on", [&] { return IsWindowEnabled(queue) != FALSE; });
    EXPECT_TRUE(IsWindowEnabled(stage.Item(ID_lblQueuecatnumber)));
    WaitUntil(L"the queue is the usual one", [&] { return driver::TextOf(queue) == L"80"; });
  });
}

TEST(TypingAnOffice, OneMoreCharacterResetsTheQueueThatWasTyped) {
  DialogStage stage;
  stage.RunFilled([&] {
    const HWND queue = stage.Item(ID_txtQueueCat);
    stage.GoTo(queue);
    driver::TypeOver(queue, L"12c3");
    WaitUntil(L"the queue is typed", [&] { return driver::TextOf(queue) == L"12C3"; });
    const HWND office = stage.Item(ID_txtQueueingOfficeID);
    stage.GoTo(office);
    driver::Press(office, VK_END);
    driver::Type(office, L"x");
    WaitUntil(L"the queue is the usual one", [&] { return driver::TextOf(queue) == L"80"; });
    EXPECT_EQ(driver::TextOf(office), L"STOSK08AAX");
  });
}

TEST(TypingTheLastRequiredField, TurnsOKOnAndEmptyingItTurnsItOff) {
  DialogStage stage;
  stage.RunFilled([&] {
    const HWND field = stage.Item(ID_txtPWCT);
    const HWND ok = stage.Item(ID_cmdOK);
    WaitUntil(L"OK is on", [&] { return IsWindowEnabled(ok) != FALSE; });
    stage.GoTo(field);
    driver::TypeOver(field, L"");
    WaitUntil(L"OK is off", [&] { return !IsWindowEnabled(ok); });
    driver::Type(field, L"s");
    WaitUntil(L"OK is on again", [&] { return IsWindowEnabled(ok) != FALSE; });
  });
}

}  // namespace

}  // namespace ui
