#include "ui/win32/MessageLoop.h"

#include "ui/win32/Input.h"

namespace ui {

namespace {

/// Enter is held: it has closed one box, and may not press a button of the window below, too.
bool IsHeldEnter(const MSG& message) {
  return message.message == WM_KEYDOWN && message.wParam == VK_RETURN &&
         (HIWORD(message.lParam) & KF_REPEAT) != 0;
}

}  // namespace

bool MessageLoop::Turn() {
  MSG message = {};
  const BOOL got = GetMessageW(&message, nullptr, 0, 0);
  // What other programs send is handled within GetMessage.
  shell_.guard.Rethrow();
  if (got <= 0) {
    PostQuitMessage(0);  // the loops around this one have to know it too
    return false;
  }
  Handle(message);
  return true;
}

void MessageLoop::TurnFor(std::chrono::milliseconds time) {
  const auto end = std::chrono::steady_clock::now() + time;
  for (;;) {
    MSG message = {};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      if (message.message == WM_QUIT) {
        shell_.guard.Rethrow();
        PostQuitMessage(0);
        return;
      }
      Handle(message);
    }
    shell_.guard.Rethrow();
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
        end - std::chrono::steady_clock::now());
    if (left.count() <= 0) return;
    MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(left.count()), QS_ALLINPUT);
  }
}

void MessageLoop::Paint() {
  MSG message = {};
  while (PeekMessageW(&message, nullptr, WM_PAINT, WM_PAINT, PM_REMOVE)) Handle(message);
  shell_.guard.Rethrow();
}

void MessageLoop::Handle(MSG& message) {
  FormWindow* const form = FormOf(message.hwnd);
  const bool isTaken = !IsHeldEnter(message) && (shell_.gate.IsOpen() || !IsInput(message.message));
  if (form != nullptr && !isTaken) return;
  if (form == nullptr || !IsDialogMessageW(form->handle(), &message)) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  shell_.guard.Rethrow();
}

FormWindow* MessageLoop::FormOf(HWND window) const {
  if (window == nullptr) return nullptr;
  const HWND root = GetAncestor(window, GA_ROOT);
  for (const auto& entry : windows_) {
    if (entry->handle() == root && entry->IsOpen()) return entry.get();
  }
  return nullptr;
}

}  // namespace ui
