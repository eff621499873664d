#include "practice/terminal/Waiting.h"

#include <windows.h>

namespace practice::terminal {

void WaitAlive(std::chrono::milliseconds time, const std::function<bool()>& enough) {
  const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(time.count());
  for (;;) {
    MSG message = {};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      if (message.message == WM_QUIT) {
        PostQuitMessage(static_cast<int>(message.wParam));
        return;
      }
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
    const ULONGLONG now = GetTickCount64();
    if (now >= end || enough()) return;
    MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(end - now), QS_ALLINPUT);
  }
}

}  // namespace practice::terminal
