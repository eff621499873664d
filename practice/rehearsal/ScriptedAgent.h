#pragma once

#include <string>
#include <vector>

#include "practice/rehearsal/AgentScript.h"
#include "ui/controls/WindowlessDesktop.h"

namespace practice {

/// The written agent and the run do not agree. No std::exception, so that no error handler of the
/// program takes it for a failure of its own.
struct Disagreement {
  std::wstring words;
};

/// A desktop on which a written agent sits: it reads the forms, presses their keys and answers the
/// boxes, line by line, and throws Disagreement as soon as the run does anything else.
class ScriptedAgent : public ui::WindowlessDesktop {
 public:
  explicit ScriptedAgent(std::vector<AgentLine> script);

  /// What was on the screen and what the agent did, one line each.
  const std::vector<std::wstring>& seen() const { return seen_; }
  /// The run has ended: throws Disagreement when the agent had more to do.
  void Leave() const;

  void Show(ui::Form& form) override;
  void ShowModal(ui::Form& form) override;
  void Beep() override;
  void Run() override;
  int ShowBox(std::wstring_view text, int style, std::wstring_view title) override;
  void FormClosed(ui::Form& form) override;
  void FormGone(ui::Form& form) override { std::erase(visible_, &form); }

 private:
  void Interact(ui::Form& form);
  void Act(ui::Form& form, const AgentLine& line);
  void Appear(ui::Form& form);
  const AgentLine* Next() const;
  [[noreturn]] void Disagree(const std::wstring& words) const;

  std::vector<AgentLine> script_;
  std::size_t at_ = 0;
  std::vector<std::wstring> seen_;
  std::vector<ui::Form*> visible_;
};

}  // namespace practice
