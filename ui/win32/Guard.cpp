#include "ui/win32/Guard.h"

namespace ui {

void Guard::Keep() noexcept {
  if (!kept_) kept_ = std::current_exception();
  EndMenu();
  PostQuitMessage(0);
}

void Guard::Rethrow() {
  if (!kept_) return;
  // The quit message has done its work once we are here: the next loop must not see it.
  MSG quit;
  while (PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) {
  }
  std::rethrow_exception(std::exchange(kept_, nullptr));
}

}  // namespace ui
