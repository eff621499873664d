#include "common/Text.h"
#include "ui/HelpDefinitions.h"
#include "ui/frmPTA.h"

namespace ui {
namespace {

constexpr int kF1 = 112;
constexpr wchar_t kBackspace = 8;
constexpr wchar_t kRefused = 0;
constexpr std::wstring_view kDefaultQueue = L"80";

bool IsCapital(wchar_t character) { return character >= L'A' && character <= L'Z'; }
bool IsCommissionCharacter(wchar_t character) {
  return common::IsDigit(character) || character == L'A';
}
bool IsQueueCharacter(wchar_t character) {
  return common::IsDigit(character) || character == L'C' || character == L'D';
}

/// What may be typed into a field, and what becomes of it when the focus comes.
struct TypingRule {
  bool upperCases;
  bool (*allows)(wchar_t);  ///< null: everything
  bool selectsAll;
};
constexpr TypingRule kCityCode{true, IsCapital, true};
constexpr TypingRule kIATANumber{false, common::IsDigit, true};
constexpr TypingRule kCommission{true, IsCommissionCharacter, true};
constexpr TypingRule kQueue{true, IsQueueCharacter, true};
constexpr TypingRule kText{true, nullptr, true};
constexpr TypingRule kLongRemark{true, nullptr, false};

/// "P&WCT:" is PWCT.
std::wstring NameOf(const Label& label) {
  return common::Replace(common::Replace(label.Text(), L"&", L""), L":", L"");
}

/// The rule outlasts the field.
void BindTyping(TextBox& field, const TypingRule& rule, Desktop& desktop) {
  field.onKeyPress = [&desktop, &rule](wchar_t& character) {
    if (rule.upperCases) character = common::UpperCase(character);
    if (rule.allows == nullptr || character == kBackspace || rule.allows(character)) return;
    character = kRefused;
    desktop.Beep();
  };
  if (rule.upperCases) {
    field.onPaste = [](std::wstring_view text) { return common::UpperCase(text); };
  }
  if (rule.selectsAll) {
    field.onGotFocus = [&field] { field.SelectAll(); };
  }
}

}  // namespace

void frmPTA::OnLostFocus(Control&) { staStatusText.SetText(L""); }

void frmPTA::OnGotFocus(Control& control) {
  const HelpDefinition* help = FindHelp(control.name());
  staStatusText.SetText(help == nullptr ? IncompleteFields() : std::wstring(help->status));
}

void frmPTA::OnKeyDown(Control& control, int key) {
  if (key != kF1) return;
  const HelpDefinition* help = FindHelp(control.name());
  if (help == nullptr || help->f1.empty()) return;
  desktop_.ShowBox(help->f1, common::kPlain, common::kTitle);
  control.SetFocus();
}

std::wstring frmPTA::IncompleteFields() const {
  std::wstring names;
  for (const RequiredField& required : required_) {
    if (required.field.BackColor() != kYellow) continue;
    names.append(names.empty() ? kIncompleteList : L", ").append(NameOf(required.label));
  }
  return names;
}

void frmPTA::BindTextBoxes() {
  BindTyping(txtCityCode, kCityCode, desktop_);
  BindTyping(txtIATANumber, kIATANumber, desktop_);
  BindTyping(txtCommission, kCommission, desktop_);
  BindTyping(txtPTA, kLongRemark, desktop_);
  BindTyping(txtPWCT, kText, desktop_);
  BindTyping(txtQueueCat, kQueue, desktop_);
  BindTyping(txtQueueingOfficeID, kText, desktop_);
  BindTyping(txtOPText, kText, desktop_);
  BindTyping(txtRMBODInfo, kLongRemark, desktop_);

  for (const RequiredField& required : required_) {
    required.field.onChange = [this, &required] { RequiredFieldChanged(required); };
  }
  txtQueueCat.onChange = [this] { UpdateOKButton(); };
  txtQueueingOfficeID.onChange = [this] { OfficeIDChanged(); };
}

void frmPTA::RequiredFieldChanged(const RequiredField& required) {
  const bool complete = required.field.Text().size() >= required.completeLength;
  required.field.SetBackColor(complete ? kWindowBackground : kYellow);
  // Colour is not the only sign: an edit that leaves the field incomplete says so in words.
  if (required.field.HasFocus()) {
    std::wstring status(FindHelp(required.field.name())->status);
    if (!complete) status += kIncompleteMark;
    staStatusText.SetText(status);
  }
  UpdateOKButton();
}

// A changed office has its own queue, so what was typed for the old one goes. The queue field's
// own Change handler evaluates OK once more.
void frmPTA::OfficeIDChanged() {
  if (txtQueueingOfficeID.Text().size() == kOfficeIDLength) UpdateOKButton();
  if (txtQueueingOfficeID.Text().empty()) {
    txtQueueCat.SetText(L"");
    txtQueueCat.SetEnabled(false);
    lblQueuecatnumber.SetEnabled(false);
  } else {
    txtQueueCat.SetEnabled(true);
    lblQueuecatnumber.SetEnabled(true);
    txtQueueCat.SetText(kDefaultQueue);
  }
}

void frmPTA::BindCheckBoxes() {
  chkOP.onClick = [this] {
    EnableOPText(chkOP.Value());
    if (chkOP.Value()) txtOPText.SetFocus();
  };
  chkBOD.onClick = [this] {
    EnableBODDetails(chkBOD.Value());
    if (txtRMBODInfo.Enabled()) txtRMBODInfo.SetFocus();
  };
}

void frmPTA::EnableOPText(bool enabled) {
  lblOPText.SetEnabled(enabled);
  txtOPText.SetEnabled(enabled);
}

void frmPTA::EnableBODDetails(bool enabled) {
  txtRMBODInfo.SetEnabled(enabled);
  lblRMStar.SetEnabled(enabled);
  chkPasSegAsso.SetEnabled(enabled);
}

void frmPTA::BindButtons() {
  cmdOK.onClick = [this] { OKClicked(); };
  cmdCancel.onClick = [this] { Cancel(); };
}

}  // namespace ui
