#pragma once

#include <functional>
#include <set>
#include <vector>

#include "practice/rehearsal/AgentScript.h"
#include "tests/windows/driver/Program.h"

namespace driver {

/// A written agent before the real windows: types, clicks and reads what its lines say, in their
/// order. Throws DriverError as soon as the program shows anything else.
class WindowAgent {
 public:
  /// Is given every window that the agent has before it, with a name for it.
  using Look = std::function<void(HWND window, const std::wstring& name)>;

  WindowAgent(Program& program, std::vector<practice::AgentLine> script);

  /// Does all lines.
  void Work(const Look& look);

 private:
  void Perform(const practice::AgentLine& line);
  void ComeTo(const std::wstring& form);
  void AnswerBox(const practice::AgentLine& line);
  void See(const std::wstring& control, const std::wstring& text);
  void CheckState(const std::wstring& control, std::wstring state);
  bool Is(HWND control, const std::wstring& state) const;
  void GoTo(HWND control);
  void Paste(HWND field, const std::wstring& text);
  void Pick(HWND list, const std::wstring& lines);
  void Tick(const std::wstring& times);
  HWND Control(const std::wstring& name) const;
  std::wstring TextIn(const std::wstring& control) const;
  void LookAtProgress();

  Program& program_;
  std::vector<practice::AgentLine> script_;
  Look look_;
  std::wstring formName_;
  HWND form_ = nullptr;
  std::set<std::wstring> seen_;
};

}  // namespace driver
