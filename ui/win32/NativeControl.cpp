#include "ui/win32/NativeControl.h"

#include "ui/win32/CommonControls.h"
#include "ui/win32/Input.h"

namespace ui {

namespace {

constexpr UINT_PTR kSubclass = 1;

/// What tells that the user has changed or clicked a control of this kind.
WORD ChangeOf(ControlKind kind) {
  if (kind == ControlKind::kTextBox) return EN_CHANGE;
  return kind == ControlKind::kListBox ? LBN_SELCHANGE : BN_CLICKED;
}

}  // namespace

NativeControl::NativeControl(Control& control, HWND window, Shell& shell)
    : control_(control), window_(window), shell_(shell) {}

NativeControl::~NativeControl() { Forget(); }

void NativeControl::Listen() {
  if (!control_.TakesFocus()) return;
  SetWindowSubclass(window_, &Procedure, kSubclass, reinterpret_cast<DWORD_PTR>(this));
}

void NativeControl::Forget() {
  if (window_ == nullptr) return;
  RemoveWindowSubclass(window_, &Procedure, kSubclass);
  window_ = nullptr;
}

void NativeControl::Push(Property property) {
  if (property == Property::kEnabled) Enable(control_.Enabled());
  if (property != Property::kText) return;
  pushing_ = true;
  SetWindowTextW(window_, std::wstring(control_.Text()).c_str());
  pushing_ = false;
}

void NativeControl::PushAll() {
  // Items before their selection, everything else in any order. The colour is asked for when the
  // control is painted, and the user cannot change it.
  for (const Property property :
       {Property::kText, Property::kEnabled, Property::kLocked, Property::kValue, Property::kItems,
        Property::kSelection, Property::kInterval}) {
    Push(property);
  }
}

void NativeControl::Enable(bool enabled) {
  // Windows leaves the focus on a window that is switched off, where no key can move it on.
  const bool leave = !enabled && GetFocus() == window_;
  if (leave) SendMessageW(GetParent(window_), WM_NEXTDLGCTL, 0, FALSE);
  EnableWindow(window_, enabled);
  if (leave) shell_.guard.Rethrow();
}

void NativeControl::Notified(WORD notification) {
  if (pushing_ || notification != ChangeOf(control_.kind())) return;
  if (shell_.gate.IsOpen()) {
    TakeChange();
  } else {
    PushAll();  // as it was
  }
}

LRESULT NativeControl::Default(UINT message, WPARAM wParam, LPARAM lParam) {
  return DefSubclassProc(window_, message, wParam, lParam);
}

LRESULT NativeControl::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_KEYDOWN) control_.form().OnKeyDown(control_, static_cast<int>(wParam));
  if (window_ == nullptr) return 0;  // the handler has let the form go
  const LRESULT result = Default(message, wParam, lParam);
  if (message == WM_SETFOCUS && window_ != nullptr && control_.form().IsVisible()) {
    control_.form().FocusMovedTo(&control_);
  }
  return result;
}

LRESULT CALLBACK NativeControl::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                          UINT_PTR, DWORD_PTR self) noexcept {
  NativeControl& native = *reinterpret_cast<NativeControl*>(self);
  if (message == WM_NCDESTROY) {
    native.Forget();
    return DefSubclassProc(window, message, wParam, lParam);
  }
  if (IsInput(message) && !native.shell_.gate.IsOpen()) return 0;
  return native.shell_.guard.Run(0, [&] { return native.Handle(message, wParam, lParam); });
}

}  // namespace ui
