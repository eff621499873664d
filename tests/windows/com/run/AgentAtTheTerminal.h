#pragma once

#include <atomic>
#include <string>
#include <thread>
#include <vector>

namespace com_run {

/// A box as it stands on the screen.
struct SeenBox {
  bool hasIcon;  ///< which one can not be seen from another process
  std::wstring title;
  std::wstring text;
};

/// Answers the boxes of a terminal with OK, beside the test: one that is started anew, for its
/// objects alone, shows the reports of a program that has not got its reporter before.
class AgentAtTheTerminal {
 public:
  AgentAtTheTerminal() : thread_([this] { Work(); }) {}
  ~AgentAtTheTerminal() { Leave(); }
  AgentAtTheTerminal(const AgentAtTheTerminal&) = delete;
  AgentAtTheTerminal& operator=(const AgentAtTheTerminal&) = delete;

  /// Ends the work, and gives what was seen.
  const std::vector<SeenBox>& Leave();

 private:
  void Work();

  std::atomic<bool> leaving_ = false;
  std::vector<SeenBox> seen_;
  std::thread thread_;
};

}  // namespace com_run
