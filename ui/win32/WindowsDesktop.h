#pragma once

#include <string>

#include "ui/win32/MessageLoop.h"

namespace ui {

/// The real desktop. Knows no form: a form's window is the dialog template of the form's name.
class WindowsDesktop : public Desktop {
 public:
  /// `instance` holds the templates; `defaultTitle` is the title of boxes that have none.
  WindowsDesktop(HINSTANCE instance, std::wstring_view defaultTitle);
  ~WindowsDesktop() override;

  void Show(Form& form) override;
  void ShowModal(Form& form) override;
  void Refresh(Form& form) override;
  void Beep() override;
  void Pause(std::chrono::milliseconds time) override;
  void Run() override;
  int ShowBox(std::wstring_view text, int style, std::wstring_view title) override;

 private:
  FormWindow* Find(const Form& form) const;
  FormWindow& Open(Form& form, HWND owner);
  /// The visible forms' windows, the one shown last at the end.
  std::vector<HWND> OpenWindows() const;
  /// The window that a modal form or a box belongs to; null when no form is visible.
  HWND Owner() const;
  /// Destroys the windows of closed forms, unless one of them may be in the middle of a message.
  void Sweep();

  HINSTANCE instance_;
  std::wstring defaultTitle_;
  Guard guard_;
  Shell shell_;
  MessageLoop::Windows windows_;
  MessageLoop loop_;
};

}  // namespace ui
