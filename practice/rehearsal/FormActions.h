#pragma once

#include "practice/rehearsal/AgentScript.h"
#include "ui/controls/Form.h"

namespace practice {

/// What an agent does in a form and reads there, as keys and clicks would do it. Each throws
/// common::RunTimeError with the reason when the form does not let the agent do it, or when it
/// does not show what the agent expects.
class FormActions {
 public:
  explicit FormActions(ui::Form& form) : form_(form) {}

  void Perform(const AgentLine& line);

 private:
  template <typename Kind>
  Kind& Find(const std::wstring& name) const;
  void Focus(ui::Control& control);
  void Type(ui::TextBox& field, const std::wstring& text);
  void Paste(ui::TextBox& field, const std::wstring& text);
  void PressKey(ui::Control& control, const std::wstring& key);
  void Click(ui::Control& control);
  void Pick(ui::ListBox& list, const std::wstring& lines);
  void Tick(ui::Timer& timer, const std::wstring& times);
  void CheckText(const ui::Control& control, const std::wstring& text) const;
  void CheckState(const ui::Control& control, const std::wstring& state) const;

  ui::Form& form_;
};

/// The form's controls as lines: name, text, and what is special about their state.
std::vector<std::wstring> DescribeControls(const ui::Form& form);

}  // namespace practice
