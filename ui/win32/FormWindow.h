#pragma once

#include <map>
#include <optional>

#include "ui/win32/NativeControl.h"
#include "ui/win32/SwitchedOff.h"

namespace ui {

struct WindowDestroyer {
  void operator()(HWND window) const { DestroyWindow(window); }
};
using WindowHandle = std::unique_ptr<std::remove_pointer_t<HWND>, WindowDestroyer>;

/// One shown form: the window made from the dialog template of the form's name, every control tied
/// to the template's control of the same name. Lives until the form is closed.
class FormWindow : public FormView {
 public:
  /// Throws RunTimeError when the template, or a control in it, is missing.
  FormWindow(Form& form, HINSTANCE instance, HWND owner, Shell& shell);
  ~FormWindow() override;
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;

  HWND handle() const { return window_.get(); }
  bool IsOpen() const { return form_ != nullptr; }
  bool Shows(const Form& form) const { return form_ == &form; }

  /// Makes the form visible and gives it the focus.
  void Appear();
  /// Switches these windows off for as long as the form is shown.
  void SwitchOff(const std::vector<HWND>& others) { switchedOff_.emplace(others); }

  void ControlSet(Control& control, Property property) override;
  void FormSet(Form& form) override;
  void FocusAsked(Control& control) override;
  void FormClosed(Form& form) override;
  void FormGone(Form& form) override;

 private:
  static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam,
                                    LPARAM lParam) noexcept;
  INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);
  void Bind(Control& control);
  void UseProgramIcon(HINSTANCE instance);
  void Close();
  void AskToClose();
  bool SetPointer(LPARAM lParam);
  // Null when there is none.
  NativeControl* Find(const Control* control) const;
  NativeControl* FindOf(HWND window) const;

  Form* form_;  ///< null once closed
  Shell& shell_;
  WindowHandle window_;
  std::map<const Control*, std::unique_ptr<NativeControl>> controls_;
  std::optional<SwitchedOff> switchedOff_;
};

}  // namespace ui
