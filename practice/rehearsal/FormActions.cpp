#include "practice/rehearsal/FormActions.h"

#include <functional>
#include <map>

#include "common/Numbers.h"
#include "common/Text.h"

namespace practice {
namespace {

constexpr int kF1 = 112;

[[noreturn]] void Fail(const ui::Control& control, const std::wstring& reason) {
  throw ActionRefused(std::wstring(control.name()) + L" " + reason);
}

int NumberIn(const ui::Control& control, const std::wstring& words) {
  try {
    return common::ToInteger(words);
  } catch (const common::RunTimeError&) {
    Fail(control, L"is not told a number but \"" + words + L"\"");
  }
}

// A key replaces the selection and leaves the caret behind it.
void Insert(ui::TextBox& field, std::wstring_view typed) {
  std::wstring text(field.Text());
  const auto start = static_cast<std::size_t>(field.SelectionStart());
  text.replace(start, static_cast<std::size_t>(field.SelectionLength()), typed);
  field.TextTyped(text);
  field.SelectionMoved(static_cast<int>(start + typed.size()), 0);
}

template <typename Kind>
const Kind* As(const ui::Control& control) {
  return dynamic_cast<const Kind*>(&control);
}

std::wstring StateWords(const ui::Control& control) {
  std::wstring words;
  if (!control.Enabled()) words += L" off";
  if (control.HasFocus()) words += L" focused";
  if (const auto* box = As<ui::CheckBox>(control); box != nullptr && box->Value()) {
    words += L" ticked";
  }
  if (const auto* field = As<ui::TextBox>(control)) {
    if (field->Locked()) words += L" locked";
    if (field->BackColor() == ui::kYellow) words += L" yellow";
  }
  return words;
}

}  // namespace

template <typename Kind>
Kind& FormActions::Find(const std::wstring& name) const {
  ui::Control* control = form_.Find(name);
  if (control == nullptr) {
    throw ActionRefused(common::Joined({form_.name(), L" has no control ", name}));
  }
  auto* wanted = dynamic_cast<Kind*>(control);
  if (wanted == nullptr) Fail(*control, L"is another kind of control");
  return *wanted;
}

void FormActions::Perform(const AgentLine& line) {
  using Action = std::function<void()>;
  const std::wstring name = line.Word(0);
  const std::wstring argument = line.Word(1);
  const std::map<std::wstring, Action> actions = {
      {L"see", [&] { CheckText(Find<ui::Control>(name), argument); }},
      {L"state", [&] { CheckState(Find<ui::Control>(name), argument); }},
      {L"focus", [&] { Focus(Find<ui::Control>(name)); }},
      {L"type", [&] { Type(Find<ui::TextBox>(name), argument); }},
      {L"paste", [&] { Paste(Find<ui::TextBox>(name), argument); }},
      {L"key", [&] { PressKey(Find<ui::Control>(name), argument); }},
      {L"click", [&] { Click(Find<ui::Control>(name)); }},
      {L"pick", [&] { Pick(Find<ui::ListBox>(name), argument); }},
      {L"tick", [&] { Tick(Find<ui::Timer>(name), argument); }},
      {L"close", [&] { form_.OnCloseBox(); }}};
  const auto found = actions.find(line.verb);
  if (found == actions.end()) {
    throw ActionRefused(
        common::Joined({L"\"", line.verb, L"\" is nothing to do in ", form_.name()}));
  }
  found->second();
}

void FormActions::Focus(ui::Control& control) {
  if (!control.CanFocus()) Fail(control, L"does not take the focus");
  form_.FocusMovedTo(&control);
}

void FormActions::Type(ui::TextBox& field, const std::wstring& text) {
  Focus(field);
  if (field.Locked()) Fail(field, L"is locked");
  field.SelectAll();
  if (text.empty()) Insert(field, L"");
  for (const wchar_t typed : text) {
    const wchar_t taken = field.FilterKey(typed);
    if (taken != 0) Insert(field, std::wstring_view(&taken, 1));
  }
}

void FormActions::Paste(ui::TextBox& field, const std::wstring& text) {
  Focus(field);
  if (field.Locked()) Fail(field, L"is locked");
  field.SelectAll();
  Insert(field, field.onPaste ? field.onPaste(text) : text);
}

void FormActions::PressKey(ui::Control& control, const std::wstring& key) {
  if (key != L"F1") Fail(control, L"knows no key " + key);
  Focus(control);
  control.form().OnKeyDown(control, kF1);
}

void FormActions::Click(ui::Control& control) {
  Focus(control);
  if (auto* button = dynamic_cast<ui::Button*>(&control)) {
    button->Clicked();
  } else if (auto* box = dynamic_cast<ui::CheckBox*>(&control)) {
    box->Clicked(!box->Value());
  } else {
    Fail(control, L"is nothing to click");
  }
}

void FormActions::Pick(ui::ListBox& list, const std::wstring& lines) {
  Focus(list);
  std::vector<bool> selected(list.Items().size());
  for (std::size_t from = 0; from < lines.size();) {
    const std::size_t end = std::min(lines.find(L',', from), lines.size());
    const int number = NumberIn(list, lines.substr(from, end - from));
    if (number < 1 || number > list.Count()) Fail(list, L"has no line " + std::to_wstring(number));
    selected[static_cast<std::size_t>(number) - 1] = true;
    from = end + 1;
  }
  list.SelectionChanged(selected);
}

void FormActions::Tick(ui::Timer& timer, const std::wstring& times) {
  for (int left = times.empty() ? 1 : NumberIn(timer, times); left > 0; --left) {
    if (timer.Interval() == 0 || !form_.IsVisible()) Fail(timer, L"does not run");
    timer.Ticked();
  }
}

void FormActions::CheckText(const ui::Control& control, const std::wstring& text) const {
  if (control.Text() != text) {
    Fail(control, L"shows \"" + std::wstring(control.Text()) + L"\" instead of \"" + text + L"\"");
  }
}

void FormActions::CheckState(const ui::Control& control, const std::wstring& state) const {
  const std::wstring words = StateWords(control) + L" ";
  const bool negated = state.starts_with(L"not-");
  const std::wstring plain = negated ? common::Mid(state, 5) : state;
  if (common::Contains(words, L" " + plain + L" ") == negated) {
    Fail(control, L"is not " + state + L" but" + (words == L" " ? L" as usual" : words));
  }
}

std::vector<std::wstring> DescribeControls(const ui::Form& form) {
  std::vector<std::wstring> lines;
  for (const ui::Control* control : form.controls()) {
    lines.push_back(L"  " + std::wstring(control->name()) + L" \"" + std::wstring(control->Text()) +
                    L"\"" + StateWords(*control));
    if (const auto* list = As<ui::ListBox>(*control)) {
      for (const ui::ListBox::Item& item : list->Items()) {
        lines.push_back(L"    " + std::wstring(item.selected ? L"*" : L" ") + item.text);
      }
    }
  }
  return lines;
}

}  // namespace practice
