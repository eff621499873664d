#include "ui/win32/FormWindow.h"

#include <algorithm>

#include "common/RunTimeError.h"
#include "common/Text.h"
#include "ui/win32/ControlIds.h"

namespace ui {

namespace {

/// The icon that Windows itself takes for the program's: the first one.
constexpr int kProgramIcon = 1;

}  // namespace

FormWindow::FormWindow(Form& form, HINSTANCE instance, HWND owner, Shell& shell)
    : form_(&form),
      shell_(shell),
      window_(
          CreateDialogParamW(instance, std::wstring(form.name()).c_str(), owner, &Procedure, 0)) {
  if (window_ == nullptr) {
    throw common::RunTimeError(
        common::Joined({L"The window of ", form.name(), L" can not be made"}));
  }
  SetWindowTextW(handle(), form.Caption().c_str());
  UseProgramIcon(instance);
  for (Control* control : form.controls()) Bind(*control);
  SetWindowLongPtrW(handle(), DWLP_USER, reinterpret_cast<LONG_PTR>(this));
}

FormWindow::~FormWindow() {
  if (form_ != nullptr) form_->Detach();
  SetWindowLongPtrW(handle(), DWLP_USER, 0);
}

void FormWindow::Bind(Control& control) {
  const HWND native = control.kind() == ControlKind::kTimer
                          ? handle()
                          : GetDlgItem(handle(), ControlId(control.name()));
  if (native == nullptr) {
    throw common::RunTimeError(common::Joined({form_->name(), L" has no ", control.name()}));
  }
  auto& bound = controls_[&control] = NativeControl::Make(control, native, shell_);
  bound->PushAll();
  bound->Listen();
}

void FormWindow::UseProgramIcon(HINSTANCE instance) {
  const auto use = [&](WPARAM which, int width, int height) {
    const HANDLE icon = LoadImageW(instance, MAKEINTRESOURCEW(kProgramIcon), IMAGE_ICON,
                                   GetSystemMetrics(width), GetSystemMetrics(height), LR_SHARED);
    SendMessageW(handle(), WM_SETICON, which, reinterpret_cast<LPARAM>(icon));
  };
  use(ICON_SMALL, SM_CXSMICON, SM_CYSMICON);
  use(ICON_BIG, SM_CXICON, SM_CYICON);
}

void FormWindow::Appear() {
  form_->Shown(*this);
  ShowWindow(handle(), SW_SHOW);
  if (Control* const active = form_->ActiveControl()) {
    FocusAsked(*active);
  } else if (!IsChild(handle(), GetFocus())) {
    SendMessageW(handle(), WM_NEXTDLGCTL,
                 reinterpret_cast<WPARAM>(GetNextDlgTabItem(handle(), nullptr, FALSE)), TRUE);
  }
  shell_.guard.Rethrow();
}

void FormWindow::ControlSet(Control& control, Property property) {
  if (form_ == nullptr) return;
  if (NativeControl* const native = Find(&control)) native->Push(property);
}

void FormWindow::FormSet(Form& form) {
  if (form_ == nullptr) return;
  SetWindowTextW(handle(), form.Caption().c_str());
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
  NativeControl* const native = Find(&control);
  if (form_ == nullptr || native == nullptr) return;
  SendMessageW(handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(native->window()), TRUE);
  shell_.guard.Rethrow();
}

void FormWindow::FormClosed(Form&) { Close(); }

void FormWindow::FormGone(Form&) { Close(); }

void FormWindow::Close() {
  if (form_ == nullptr) return;
  // The form may go before this window does.
  for (const auto& [control, native] : controls_) native->Forget();
  form_->Detach();
  form_ = nullptr;
  // While its owner is still off, hiding the window would hand the focus to another program.
  switchedOff_.reset();
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
  const auto sender = [&] { return FindOf(reinterpret_cast<HWND>(lParam)); };
  switch (message) {
    case WM_COMMAND:
      if (LOWORD(wParam) == IDCANCEL) {  // Esc
        AskToClose();
      } else if (NativeControl* const native = sender()) {
        native->Notified(HIWORD(wParam));
      }
      return TRUE;
    case WM_CLOSE:
      AskToClose();
      return TRUE;
    case WM_TIMER: {
      NativeControl* const timer = Find(reinterpret_cast<const Control*>(wParam));
      if (timer != nullptr) timer->Notified(BN_CLICKED);
      return timer != nullptr;
    }
    case WM_SETCURSOR:
      return SetPointer(lParam);
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORSTATIC: {
      NativeControl* const native = sender();
      return native == nullptr
                 ? FALSE
                 : reinterpret_cast<INT_PTR>(native->Brush(reinterpret_cast<HDC>(wParam)));
    }
    case WM_DRAWITEM: {
      const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
      if (NativeControl* const native = FindOf(item.hwndItem)) native->Draw(item);
      return TRUE;
    }
    default:
      return FALSE;
  }
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

NativeControl* FormWindow::Find(const Control* control) const {
  const auto found = controls_.find(control);
  return found == controls_.end() ? nullptr : found->second.get();
}

NativeControl* FormWindow::FindOf(HWND window) const {
  if (window == nullptr) return nullptr;
  const auto found = std::find_if(controls_.begin(), controls_.end(), [window](const auto& entry) {
    return entry.second->window() == window;
  });
  return found == controls_.end() ? nullptr : found->second.get();
}

}  // namespace ui
