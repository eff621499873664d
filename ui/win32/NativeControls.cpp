#include "ui/win32/NativeListBox.h"
#include "ui/win32/NativeTextBox.h"

namespace ui {

namespace {

class NativeCheckBox : public NativeOf<CheckBox> {
 public:
  using NativeOf::NativeOf;

  void Push(Property property) override {
    NativeControl::Push(property);
    if (property != Property::kValue) return;
    SendMessageW(window(), BM_SETCHECK, control().Value() ? BST_CHECKED : BST_UNCHECKED, 0);
  }

 protected:
  void TakeChange() override {
    control().Clicked(SendMessageW(window(), BM_GETCHECK, 0, 0) == BST_CHECKED);
  }
};

class NativeButton : public NativeOf<Button> {
 public:
  using NativeOf::NativeOf;

 protected:
  void TakeChange() override { control().Clicked(); }
};

/// A timer has no window: it ticks through the dialog's.
class NativeTimer : public NativeOf<Timer> {
 public:
  NativeTimer(Control& timer, HWND dialog, Shell& shell)
      : NativeOf(timer, nullptr, shell), dialog_(dialog) {}
  ~NativeTimer() override { KillTimer(dialog_, Id()); }

  void Push(Property property) override {
    if (property != Property::kInterval) return;
    KillTimer(dialog_, Id());
    const auto interval = static_cast<UINT>(control().Interval());
    if (interval > 0) SetTimer(dialog_, Id(), interval, nullptr);
  }

 protected:
  void TakeChange() override {
    if (control().Interval() > 0) control().Ticked();
  }

 private:
  UINT_PTR Id() const { return reinterpret_cast<UINT_PTR>(&NativeControl::control()); }

  HWND dialog_;
};

template <typename Native>
std::unique_ptr<NativeControl> New(Control& control, HWND window, Shell& shell) {
  return std::make_unique<Native>(control, window, shell);
}

}  // namespace

std::unique_ptr<NativeControl> NativeControl::Make(Control& control, HWND window, Shell& shell) {
  switch (control.kind()) {
    case ControlKind::kTextBox:
      return New<NativeTextBox>(control, window, shell);
    case ControlKind::kCheckBox:
      return New<NativeCheckBox>(control, window, shell);
    case ControlKind::kButton:
      return New<NativeButton>(control, window, shell);
    case ControlKind::kListBox:
      return New<NativeListBox>(control, window, shell);
    case ControlKind::kListHeading:
      return New<NativeListHeading>(control, window, shell);
    case ControlKind::kTimer:
      return New<NativeTimer>(control, window, shell);
    case ControlKind::kLabel:
    case ControlKind::kFrame:
    case ControlKind::kStatusBar:
      break;
  }
  return New<NativeControl>(control, window, shell);
}

}  // namespace ui
