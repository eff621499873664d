#pragma once

#include "ui/controls/Desktop.h"

namespace ui {

/// Shows nothing: the focus moves at once, and nobody looks at what is set.
class WindowlessView : public FormView {
 public:
  void ControlSet(Control&, Property) override {}
  void FormSet(Form&) override {}
  void FocusAsked(Control& control) override { control.form().FocusMovedTo(&control); }
  void FormClosed(Form&) override {}
};

/// A desktop without a screen, which is its forms' view at once. Whoever sits at it says what
/// becomes of the forms and the boxes.
class WindowlessDesktop : public Desktop, public WindowlessView {
 public:
  void Refresh(Form&) override {}
  void Beep() override {}
  void Pause(std::chrono::milliseconds) override {}
};

}  // namespace ui
