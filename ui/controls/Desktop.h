#pragma once

#include <chrono>

#include "common/MessageBoxes.h"
#include "ui/controls/Form.h"

namespace ui {

/// The one notion of "busy": while the gate is shut, no form takes a click, a key, the close box
/// or a timer tick. Message boxes do.
class InputGate {
 public:
  /// Keeps the gate shut for its lifetime; they may nest.
  class Shut {
   public:
    explicit Shut(InputGate& gate) : gate_(gate) { ++gate_.shut_; }
    ~Shut() { --gate_.shut_; }
    Shut(const Shut&) = delete;
    Shut& operator=(const Shut&) = delete;

   private:
    InputGate& gate_;
  };

  bool IsOpen() const { return shut_ == 0; }

 private:
  int shut_ = 0;
};

/// Where forms, message boxes and the beep appear.
class Desktop : public common::MessageBoxes {
 public:
  Desktop() = default;
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  /// Loads the form and shows it; does not wait.
  virtual void Show(Form& form) = 0;
  /// Loads the form, shows it, and returns when it is hidden or unloaded. A form that unloads
  /// itself while loading is never seen.
  virtual void ShowModal(Form& form) = 0;
  /// Paints now what has been set.
  virtual void Refresh(Form& form) = 0;
  virtual void Beep() = 0;
  /// Lets time pass while windows stay alive.
  virtual void Pause(std::chrono::milliseconds time) = 0;
  /// The program's own message loop: returns when no form is visible any more, or by what a
  /// handler throws.
  virtual void Run() = 0;

  InputGate& input() { return *input_; }

 protected:
  /// A desktop before another one: there is one gate for both.
  explicit Desktop(InputGate& input) : input_(&input) {}

 private:
  InputGate own_;
  InputGate* input_ = &own_;
};

}  // namespace ui
