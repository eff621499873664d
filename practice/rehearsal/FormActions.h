#pragma once

#include "common/RunTimeError.h"
#include "practice/rehearsal/AgentScript.h"
#include "ui/controls/Form.h"

namespace practice {

/// The form does not let the agent do something, or does not show what the agent expects.
class ActionRefused : public common::RunTimeError {
 public:
  using RunTimeError::RunTimeError;
};

/// What an agent does in a form and reads there, as keys and clicks would do it. Each throws
/// ActionRefused with the reason; what the program itself throws under an action comes through.
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
