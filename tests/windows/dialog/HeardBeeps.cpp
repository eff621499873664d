#include "tests/windows/dialog/HeardBeeps.h"

#include <windows.h>

#include <atomic>

namespace ui {

namespace {

std::atomic<int> heard = 0;

BOOL WINAPI CountAndBeep(UINT kind) {
  ++heard;
  using Beep = BOOL(WINAPI*)(UINT);
  const auto beep = reinterpret_cast<Beep>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), "MessageBeep")));
  return beep != nullptr && beep(kind) != FALSE;
}

}  // namespace

int HeardBeeps() { return heard; }

}  // namespace ui

// The linker takes this one for the import of user32.
extern "C" BOOL(WINAPI* __imp_MessageBeep)(UINT);
BOOL(WINAPI* __imp_MessageBeep)(UINT) = &ui::CountAndBeep;
