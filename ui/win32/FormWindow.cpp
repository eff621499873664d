#include "ui/win32/FormWindow.h"

#include <algorithm>

#include "common/RunTimeError.h"
#include "ui/win32/ControlIds.h"

namespace ui {

namespace {

/// The icon that Windows itself takes for the program's: the first one.
constexpr int kProgramIcon = 1;

}  // namespace

FormWindow::FormWindow(Form& form, HINSTANCE instance, HWND owner, Shell& shell)
    : form_(&form),
      shell_(shell),
      window_(CreateDialogParamW(instance, form.name().c_str(), owner, &Procedure, 0)) {
  if (window_ == nullptr) {
    throw common::RunTimeError(L"The window of " + form.name() + L" can not be made");
  }
  PutUpFrame();
  UseProgramIcon(instance);
  for (Control* control : form.controls()) Bind(*control);
  SetWindowLongPtrW(handle(), DWLP_USER, reinterpret_cast<LONG_PTR>(this));
}

FormWindow::~FormWindow() {
  if (form_ != nullptr) form_->Detach();
  SetWindowLongPtrW(handle(), DWLP_USER, 0);
}

void FormWindow::Bind(Control& control) {
  HWND native = nullptr;
  if (control.kind() != ControlKind::kTimer) {
    native = GetDlgItem(handle(), ControlId(control.name()));
    if (native == nullptr) {
      throw common::RunTimeError(form_->name() + L" has no " + control.name());
    }
  }
  controls_.push_back(NativeControl::Make(control, handle(), native, shell_));
  // Items before their selection, everything else in any order.
  for (const Property property :
       {Property::kText, Property::kEnabled, Property::kLocked, Property::kValue,
        Property::kBackColor, Property::kItems, Property::kSelection, Property::kInterval}) {
    controls_.back()->Push(property);
  }
}

void FormWindow::PutUpFrame() { SetWindowTextW(handle(), form_->Caption().c_str()); }

void FormWindow::UseProgramIcon(HINSTANCE instance) {
  const auto load = [&](int width, int height) {
    return LoadImageW(instance, MAKEINTRESOURCEW(kProgramIcon), IMAGE_ICON, GetSystemMetrics(width),
                      GetSystemMetrics(height), LR_SHARED);
  };
  SendMessageW(handle(), WM_SETICON, ICON_SMALL,
               reinterpret_cast<LPARAM>(load(SM_CXSMICON, SM_CYSMICON)));
  SendMessageW(handle(), WM_SETICON, ICON_BIG,
               reinterpret_cast<LPARAM>(load(SM_CXICON, SM_CYICON)));
}

void FormWindow::Appear() {
  form_->Shown(*this);
  ShowWindow(handle(), SW_SHOW);
  Control* const active = form_->ActiveControl();
  if (active != nullptr) {
    FocusAsked(*active);
  } else if (!IsChild(handle(), GetFocus())) {
    SendMessageW(handle(), WM_NEXTDLGCTL,
                 reinterpret_cast<WPARAM>(GetNextDlgTabItem(handle(), nullptr, FALSE)), TRUE);
  }
  shell_.guard.Rethrow();
}

void FormWindow::SwitchOff(const std::vector<HWND>& others) {
  for (const HWND other : others) {
    if (IsWindowEnabled(other)) switchedOff_.push_back(other);
  }
  for (const HWND other : switchedOff_) EnableWindow(other, FALSE);
}

void FormWindow::Enter(HWND focus) {
  HWND button = focus;
  constexpr LRESULT kPushButton = DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON;
  if ((SendMessageW(focus, WM_GETDLGCODE, 0, 0) & kPushButton) == 0) {
    const LRESULT standard = SendMessageW(handle(), DM_GETDEFID, 0, 0);
    button = HIWORD(standard) == DC_HASDEFID ? GetDlgItem(handle(), LOWORD(standard)) : nullptr;
  }
  if (button == nullptr || !IsWindowEnabled(button)) return;
  SendMessageW(handle(), WM_COMMAND,
               MAKEWPARAM(static_cast<WORD>(GetDlgCtrlID(button)), BN_CLICKED),
               reinterpret_cast<LPARAM>(button));
}

void FormWindow::ControlSet(Control& control, Property property) {
  if (form_ == nullptr) return;
  if (NativeControl* const native = Find(control)) native->Push(property);
}

void FormWindow::FormSet(Form&) {
  if (form_ == nullptr) return;
  PutUpFrame();
  // The pointer changes when it next moves; when it is over this window, now.
  POINT at = {};
  GetCursorPos(&at);
  const HWND under = WindowFromPoint(at);
  if (under == handle() || IsChild(handle(), under)) {
    SendMessageW(under, WM_SETCURSOR, reinterpret_cast<WPARAM>(under),
                 MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
  }
}

void FormWindow::FocusAsked(Control& control) {
  NativeControl* const native = Find(control);
  if (form_ == nullptr || native == nullptr) return;
  SendMessageW(handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(native->window()), TRUE);
  shell_.guard.Rethrow();
}

void FormWindow::FormClosed(Form&) { Close(); }

void FormWindow::FormGone(Form&) {
  for (const auto& control : controls_) control->Forget();
  Close();
}

void FormWindow::Close() {
  if (form_ == nullptr) return;
  form_->Detach();
  form_ = nullptr;
  // While its owner is still off, hiding the window would hand the focus to another program.
  for (const HWND other : switchedOff_) EnableWindow(other, TRUE);
  switchedOff_.clear();
  ShowWindow(handle(), SW_HIDE);
  // The loop that waits for this form to close may be waiting for a message.
  PostMessageW(nullptr, WM_NULL, 0, 0);
}

INT_PTR CALLBACK FormWindow::Procedure(HWND window, UINT message, WPARAM wParam,
                                       LPARAM lParam) noexcept {
  auto* const self = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(window, DWLP_USER));
  if (self == nullptr || self->form_ == nullptr) return FALSE;
  return self->shell_.guard.Run(FALSE, [&] { return self->Handle(message, wParam, lParam); });
}

INT_PTR FormWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      return HandleCommand(wParam, lParam);
    case WM_CLOSE:
      AskToClose();
      return TRUE;
    case WM_TIMER:
      for (const auto& control : controls_) {
        if (reinterpret_cast<WPARAM>(control.get()) == wParam) {
          control->Notified(0);
          return TRUE;
        }
      }
      return FALSE;
    case WM_SETCURSOR:
      return SetPointer(lParam);
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORSTATIC:
      if (NativeControl* const native = Find(reinterpret_cast<HWND>(lParam))) {
        return reinterpret_cast<INT_PTR>(native->Brush(reinterpret_cast<HDC>(wParam)));
      }
      return FALSE;
    case WM_DRAWITEM: {
      const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
      if (NativeControl* const native = Find(item.hwndItem)) native->Draw(item);
      return TRUE;
    }
    default:
      return FALSE;
  }
}

INT_PTR FormWindow::HandleCommand(WPARAM wParam, LPARAM lParam) {
  if (LOWORD(wParam) == IDCANCEL) {  // Esc
    AskToClose();
    return TRUE;
  }
  if (NativeControl* const native = Find(reinterpret_cast<HWND>(lParam))) {
    native->Notified(HIWORD(wParam));
  }
  return TRUE;
}

void FormWindow::AskToClose() {
  if (shell_.gate.IsOpen()) form_->OnCloseBox();
}

bool FormWindow::SetPointer(LPARAM lParam) {
  const bool waits = form_->Pointer() == MousePointer::kHourglass || !shell_.gate.IsOpen();
  if (LOWORD(lParam) != HTCLIENT || !waits) return false;
  SetCursor(LoadCursorW(nullptr, IDC_WAIT));
  SetWindowLongPtrW(handle(), DWLP_MSGRESULT, TRUE);
  return true;
}

NativeControl* FormWindow::Find(const Control& control) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [&](const auto& entry) { return &entry->control() == &control; });
  return found == controls_.end() ? nullptr : found->get();
}

NativeControl* FormWindow::Find(HWND window) const {
  if (window == nullptr) return nullptr;
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [&](const auto& entry) { return entry->window() == window; });
  return found == controls_.end() ? nullptr : found->get();
}

}  // namespace ui
