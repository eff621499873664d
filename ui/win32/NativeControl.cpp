#include "ui/win32/NativeControl.h"

#include "ui/win32/CommonControls.h"

namespace ui {

namespace {

constexpr UINT_PTR kSubclass = 1;

bool StartsInput(UINT message) {
  return message == WM_KEYDOWN || message == WM_CHAR || message == WM_SYSKEYDOWN ||
         message == WM_PASTE || message == WM_CUT || message == WM_CLEAR || message == WM_UNDO ||
         message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK || message == WM_RBUTTONDOWN ||
         message == WM_RBUTTONUP || message == WM_CONTEXTMENU || message == WM_MOUSEWHEEL;
}

}  // namespace

NativeControl::NativeControl(Control& control, HWND window, Shell& shell)
    : control_(control), window_(window), shell_(shell) {
  if (window_ == nullptr) return;
  SetWindowSubclass(window_, &Procedure, kSubclass, reinterpret_cast<DWORD_PTR>(this));
}

NativeControl::~NativeControl() { Forget(); }

void NativeControl::Forget() {
  if (window_ != nullptr) RemoveWindowSubclass(window_, &Procedure, kSubclass);
  window_ = nullptr;
}

void NativeControl::Push(Property property) {
  if (property == Property::kText) PushCaption();
  if (property == Property::kEnabled) EnableNative();
}

void NativeControl::PushCaption() {
  pushing_ = true;
  SetWindowTextW(window_, control_.Text().c_str());
  pushing_ = false;
}

void NativeControl::EnableNative() {
  // Windows leaves the focus on a window that is switched off, where no key can move it on.
  const bool leave = !control_.Enabled() && GetFocus() == window_;
  if (leave) SendMessageW(GetParent(window_), WM_NEXTDLGCTL, 0, FALSE);
  EnableWindow(window_, control_.Enabled());
  if (leave) shell_.guard.Rethrow();
}

LRESULT NativeControl::Default(UINT message, WPARAM wParam, LPARAM lParam) {
  return DefSubclassProc(window_, message, wParam, lParam);
}

LRESULT NativeControl::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_KEYDOWN && control_.onKeyDown) control_.onKeyDown(static_cast<int>(wParam));
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
  if (StartsInput(message) && !native.TakesInput()) return 0;
  return native.shell_.guard.Run(0, [&] { return native.Handle(message, wParam, lParam); });
}

}  // namespace ui
