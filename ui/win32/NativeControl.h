#pragma once

#include <windows.h>

#include <memory>

#include "ui/controls/Desktop.h"
#include "ui/win32/Guard.h"

namespace ui {

/// What all windows of one desktop share.
struct Shell {
  Guard& guard;
  const InputGate& gate;
};

/// The native window of one control. Pushes what the program sets, raises what the user does; what
/// it pushes itself raises nothing.
class NativeControl {
 public:
  /// `window` is the control's; the dialog's for a control without a window of its own.
  static std::unique_ptr<NativeControl> Make(Control& control, HWND window, Shell& shell);

  NativeControl(Control& control, HWND window, Shell& shell);
  virtual ~NativeControl();
  NativeControl(const NativeControl&) = delete;
  NativeControl& operator=(const NativeControl&) = delete;

  /// Null for a control without a window of its own.
  HWND window() const { return window_; }

  /// From here on it sees what the user does, and every message of the window, if the control takes
  /// the focus: with the others the user does nothing. What is pushed before is spared that detour,
  /// which takes longer than the rest of binding a control.
  void Listen();
  /// The program has set a property.
  virtual void Push(Property property);
  void PushAll();
  /// The native control notifies its dialog.
  void Notified(WORD notification);
  /// The brush to paint it with, or null for the usual one.
  virtual HBRUSH Brush(HDC) { return nullptr; }
  virtual void Draw(const DRAWITEMSTRUCT&) {}
  /// From here on the control must not be touched any more: it is about to go.
  void Forget();

 protected:
  Control& control() const { return control_; }
  /// The user has changed or clicked it.
  virtual void TakeChange() {}
  /// Sees every message of the native window.
  virtual LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT Default(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                    UINT_PTR id, DWORD_PTR self) noexcept;
  void Enable(bool enabled);

  Control& control_;
  HWND window_;
  Shell& shell_;
  /// The native control notifies of changes of our own making too.
  bool pushing_ = false;
};

/// With its control as what it is.
template <typename Kind>
class NativeOf : public NativeControl {
 public:
  using NativeControl::NativeControl;

 protected:
  Kind& control() const { return static_cast<Kind&>(NativeControl::control()); }
};

}  // namespace ui
