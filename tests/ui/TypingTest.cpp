#include <gtest/gtest.h>

#include "common/Text.h"
#include "tests/ui/DialogBench.h"

namespace ui {
namespace {

constexpr wchar_t kBackspace = 8;

struct Typing {
  std::wstring field;
  bool upperCases;
  bool filters;
  std::wstring allowed;
};

const std::vector<Typing> kTyping = {
    {L"txtCityCode", true, true, L"ABCDEFGHIJKLMNOPQRSTUVWXYZ"},
    {L"txtIATANumber", false, true, L"0123456789"},
    {L"txtCommission", true, true, L"0123456789A"},
    {L"txtPTA", true, false, L""},
    {L"txtPWCT", true, false, L""},
    {L"txtQueueCat", true, true, L"0123456789CD"},
    {L"txtQueueingOfficeID", true, false, L""},
    {L"txtOPText", true, false, L""},
    {L"txtRMBODInfo", true, false, L""},
};

const std::vector<std::wstring> kOnlyLookedAt = {L"txtFormOfPayment", L"txtAirlinePrefix",
                                                 L"txtMCONumber", L"txtCarrier", L"txtMCOFee"};

TextBox& Field(DialogBench& bench, const std::wstring& name) {
  return dynamic_cast<TextBox&>(*bench.form.Find(name));
}

wchar_t Capital(wchar_t character) {
  if (character >= L'a' && character <= L'z') return static_cast<wchar_t>(character - 32);
  return character < 128 ? character : common::UpperCase(character);
}

/// What goes into the field when the character is typed; 0 when nothing does.
wchar_t Expected(const Typing& typing, wchar_t character) {
  const wchar_t typed = typing.upperCases ? Capital(character) : character;
  if (!typing.filters || character == kBackspace) return typed;
  return typed != 0 && typing.allowed.find(typed) != std::wstring::npos ? typed : L'\0';
}

TEST(Typing, EachFieldTakesExactlyItsOwnCharactersOfAll256) {
  DialogBench bench;
  for (const Typing& typing : kTyping) {
    TextBox& field = Field(bench, typing.field);
    for (wchar_t character = 0; character < 256; ++character) {
      bench.TakeLog();
      const wchar_t expected = Expected(typing, character);
      const bool refused = typing.filters && expected == 0;
      EXPECT_EQ(field.FilterKey(character), expected)
          << common::ToUtf8(typing.field) << " character " << static_cast<int>(character);
      EXPECT_EQ(bench.TakeLog(), refused ? Lines{L"beep"} : Lines{})
          << common::ToUtf8(typing.field) << " character " << static_cast<int>(character);
    }
  }
}

TEST(Typing, TheFieldsThatAreOnlyLookedAtChangeNoCharacter) {
  DialogBench bench;
  for (const std::wstring& name : kOnlyLookedAt) {
    for (wchar_t character = 0; character < 256; ++character) {
      EXPECT_EQ(Field(bench, name).FilterKey(character), character);
    }
  }
  EXPECT_EQ(bench.TakeLog(), Lines{});
}

TEST(Typing, LettersThatBecomeAllowedOnesWhenCapitalizedAreTyped) {
  DialogBench bench;
  EXPECT_EQ(bench.form.txtCityCode.FilterKey(L'b'), L'B');
  EXPECT_EQ(bench.form.txtCommission.FilterKey(L'a'), L'A');
  EXPECT_EQ(bench.form.txtQueueCat.FilterKey(L'c'), L'C');
  EXPECT_EQ(bench.form.txtQueueCat.FilterKey(L'd'), L'D');
  EXPECT_EQ(bench.TakeLog(), Lines{});
}

TEST(Typing, ARefusedKeyBeepsAndTypesNothing) {
  DialogBench bench;
  EXPECT_EQ(bench.form.txtCityCode.FilterKey(L'1'), 0);
  EXPECT_EQ(bench.form.txtIATANumber.FilterKey(L'A'), 0);
  EXPECT_EQ(bench.form.txtCommission.FilterKey(L'%'), 0);
  EXPECT_EQ(bench.form.txtQueueCat.FilterKey(L'E'), 0);
  EXPECT_EQ(bench.TakeLog(), (Lines{L"beep", L"beep", L"beep", L"beep"}));
}

TEST(Typing, ControlCharactersOtherThanBackspaceAreRefusedWhereKeysAreFiltered) {
  DialogBench bench;
  for (wchar_t character = 1; character < 32; ++character) {
    EXPECT_EQ(bench.form.txtIATANumber.FilterKey(character),
              character == kBackspace ? kBackspace : L'\0');
  }
  EXPECT_EQ(bench.TakeLog().size(), 30U);
}

TEST(Typing, WhatIsPastedIsUpperCasedExactlyWhereTypingIs) {
  DialogBench bench;
  for (const Typing& typing : kTyping) {
    TextBox& field = Field(bench, typing.field);
    const std::wstring pasted = L"sk at arn 1%";
    const std::wstring result = field.onPaste ? field.onPaste(pasted) : pasted;
    EXPECT_EQ(result, typing.upperCases ? L"SK AT ARN 1%" : pasted) << common::ToUtf8(typing.field);
  }
  EXPECT_EQ(bench.TakeLog(), Lines{});
}

TEST(Typing, TheWholeTextIsSelectedWhenTheFocusComesButNotInTheTwoLongRemarks) {
  const std::vector<std::pair<std::wstring, bool>> selecting = {
      {L"txtCityCode", true},   {L"txtIATANumber", true}, {L"txtCommission", true},
      {L"txtPTA", false},       {L"txtPWCT", true},       {L"txtQueueCat", true},
      {L"txtOPText", true},     {L"txtRMBODInfo", false}, {L"txtQueueingOfficeID", true},
      {L"txtMCONumber", false}, {L"txtCarrier", false},   {L"txtMCOFee", false}};
  DialogBench bench;
  bench.ShowFilled();
  bench.form.chkOP.SetValue(true);
  bench.form.chkBOD.SetValue(true);
  bench.form.txtOPText.SetText(L"CHECK");
  bench.form.txtRMBODInfo.SetText(L"INFO");
  for (const auto& [name, selects] : selecting) {
    bench.form.cmdCancel.SetFocus();
    TextBox& field = Field(bench, name);
    field.Select(1, 0);
    field.SetFocus();
    const int length = static_cast<int>(field.Text().size());
    EXPECT_EQ(field.SelectionStart(), selects ? 0 : 1) << common::ToUtf8(name);
    EXPECT_EQ(field.SelectionLength(), selects ? length : 0) << common::ToUtf8(name);
  }
}

}  // namespace
}  // namespace ui
