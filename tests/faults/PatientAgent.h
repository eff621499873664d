#pragma once

#include <deque>
#include <map>
#include <string>
#include <vector>

#include "practice/rehearsal/AgentScript.h"
#include "tests/faults/FaultInjector.h"
#include "tests/faults/Timeline.h"
#include "ui/controls/WindowlessDesktop.h"

namespace faults {

/// Where the agent cancels instead of going on.
struct Cancelling {
  enum class By { kButton, kCloseBox };
  /// The forms and the OK/Cancel boxes are counted together, from 1; 0: nowhere.
  int question = 0;
  By by = By::kButton;
  bool late = false;  ///< in a form: only after everything was filled in
};

/// A form cannot be left, or the program takes no input: the agent is stuck. No std::exception,
/// so that the program does not take it for a failure of its own.
struct AgentStuck {
  std::wstring where;
};

/// An agent who keeps to a written one as far as that is possible, answers every box, and cancels
/// a form in which nothing more can be done. Whatever happens goes into the timeline.
class PatientAgent : public ui::WindowlessDesktop {
 public:
  PatientAgent(std::wstring_view script, Cancelling cancelling, Timeline& timeline);

  /// Knows when the fault came and which boxes show the last error.
  void Watch(const FaultInjector& injector) { injector_ = &injector; }
  int Questions() const { return questions_; }

  void Show(ui::Form& form) override;
  void ShowModal(ui::Form& form) override;
  void Run() override;
  int ShowBox(std::wstring_view text, int style, std::wstring_view title) override;
  void FormClosed(ui::Form& form) override;
  void FormGone(ui::Form& form) override { std::erase(visible_, &form); }

 private:
  using Lines = std::vector<practice::AgentLine>;

  void Appear(ui::Form& form);
  void Interact(ui::Form& form);
  void Follow(ui::Form& form, const Lines& lines);
  void Cancel(ui::Form& form, Cancelling::By by);
  Lines NextSection(std::wstring_view form);
  bool CancelsHere();
  bool AfterFault() const { return injector_ != nullptr && injector_->HasStruck(); }

  std::map<std::wstring, std::deque<Lines>> sections_;  ///< by form, in their order
  Cancelling cancelling_;
  Timeline& timeline_;
  const FaultInjector* injector_ = nullptr;
  std::vector<ui::Form*> visible_;
  int questions_ = 0;
};

}  // namespace faults
