
#include "ui/win32/CommonControls.h"
#include "ui/win32/NativeListBox.h"
#include "ui/win32/NativeTextBox.h"

namespace ui {

namespace {

class NativeCheckBox : public NativeControl {
 public:
  NativeCheckBox(CheckBox& box, HWND window, Shell& shell)
      : NativeControl(box, window, shell), box_(box) {}

  void Push(Property property) override {
    NativeControl::Push(property);
    if (property == Property::kValue) PushValue();
  }
  void Notified(WORD notification) override {
    if (notification != BN_CLICKED) return;
    if (TakesInput()) {
      box_.Clicked(SendMessageW(window(), BM_GETCHECK, 0, 0) == BST_CHECKED);
    } else {
      PushValue();
    }
  }

 private:
  void PushValue() {
    SendMessageW(window(), BM_SETCHECK, box_.Value() ? BST_CHECKED : BST_UNCHECKED, 0);
  }

  CheckBox& box_;
};

class NativeButton : public NativeControl {
 public:
  NativeButton(Button& button, HWND window, Shell& shell)
      : NativeControl(button, window, shell), button_(button) {}

  void Notified(WORD notification) override {
    if (notification == BN_CLICKED && TakesInput()) button_.Clicked();
  }

 private:
  Button& button_;
};

/// One panel, as wide as the window.
class NativeStatusBar : public NativeControl {
 public:
  NativeStatusBar(StatusBar& bar, HWND window, Shell& shell) : NativeControl(bar, window, shell) {
    const int toTheEdge = -1;
    SendMessageW(window, SB_SETPARTS, 1, reinterpret_cast<LPARAM>(&toTheEdge));
  }

  void Push(Property property) override {
    if (property != Property::kText) return;
    SendMessageW(window(), SB_SETTEXTW, 0, reinterpret_cast<LPARAM>(control().Text().c_str()));
  }
};

/// A timer has no window: it ticks through the dialog's.
class NativeTimer : public NativeControl {
 public:
  NativeTimer(Timer& timer, HWND dialog, Shell& shell)
      : NativeControl(timer, nullptr, shell), timer_(timer), dialog_(dialog) {}
  ~NativeTimer() override { KillTimer(dialog_, Id()); }

  void Push(Property property) override {
    if (property != Property::kInterval) return;
    if (timer_.Interval() > 0) {
      SetTimer(dialog_, Id(), static_cast<UINT>(timer_.Interval()), nullptr);
    } else {
      KillTimer(dialog_, Id());
    }
  }
  void Notified(WORD) override {
    if (timer_.Interval() > 0 && TakesInput()) timer_.Ticked();
  }

 private:
  UINT_PTR Id() const { return reinterpret_cast<UINT_PTR>(this); }

  Timer& timer_;
  HWND dialog_;
};

bool IsOwnerDrawn(HWND window) {
  return (GetWindowLongW(window, GWL_STYLE) & SS_TYPEMASK) == SS_OWNERDRAW;
}

}  // namespace

std::unique_ptr<NativeControl> NativeControl::Make(Control& control, HWND dialog, HWND window,
                                                   Shell& shell) {
  switch (control.kind()) {
    case ControlKind::kTextBox:
      return std::make_unique<NativeTextBox>(static_cast<TextBox&>(control), window, shell);
    case ControlKind::kCheckBox:
      return std::make_unique<NativeCheckBox>(static_cast<CheckBox&>(control), window, shell);
    case ControlKind::kButton:
      return std::make_unique<NativeButton>(static_cast<Button&>(control), window, shell);
    case ControlKind::kListBox:
      return std::make_unique<NativeListBox>(static_cast<ListBox&>(control), window, shell);
    case ControlKind::kStatusBar:
      return std::make_unique<NativeStatusBar>(static_cast<StatusBar&>(control), window, shell);
    case ControlKind::kTimer:
      return std::make_unique<NativeTimer>(static_cast<Timer&>(control), dialog, shell);
    case ControlKind::kLabel:
      if (IsOwnerDrawn(window)) return std::make_unique<ListHeading>(control, window, shell);
      [[fallthrough]];
    case ControlKind::kFrame:
      break;
  }
  return std::make_unique<NativeControl>(control, window, shell);
}

}  // namespace ui
