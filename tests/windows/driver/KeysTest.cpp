#include <gtest/gtest.h>

#include <atomic>

#include "tests/windows/driver/Driver.h"
#include "tests/windows/driver/Person.h"

namespace driver {
namespace {

/// A hook of one kind, for one thread or, where the kind wants that, for all.
class Hook {
 public:
  Hook(int kind, HOOKPROC see, DWORD thread)
      : hook_(SetWindowsHookExW(kind, see, GetModuleHandleW(nullptr), thread)) {}
  ~Hook() { UnhookWindowsHookEx(hook_); }
  Hook(const Hook&) = delete;
  Hook& operator=(const Hook&) = delete;

 private:
  HHOOK hook_;
};

/// Whether this thread has got Ctrl.
std::atomic<bool> hasCtrl = false;
/// Whether the key beside it was seen on its way.
std::atomic<bool> sawKey = false;
/// Whether it had it before the key beside it was sent, however long that took.
std::atomic<bool> hadCtrlAlone = false;

LRESULT CALLBACK SeeGot(int code, WPARAM removed, LPARAM further) {
  const MSG& message = *reinterpret_cast<const MSG*>(further);
  if (code >= 0 && removed == PM_REMOVE && message.message == WM_KEYDOWN &&
      message.wParam == VK_CONTROL) {
    hasCtrl = true;
  }
  return CallNextHookEx(nullptr, code, removed, further);
}

LRESULT CALLBACK DelaySent(int code, WPARAM message, LPARAM further) {
  const auto& key = *reinterpret_cast<const KBDLLHOOKSTRUCT*>(further);
  if (code >= 0 && message == WM_KEYDOWN && key.vkCode == 'A') {
    sawKey = true;
    hadCtrlAlone = Holds([] { return hasCtrl.load(); }, std::chrono::milliseconds(200));
  }
  return CallNextHookEx(nullptr, code, message, further);
}

TEST(AKeyWithAModifier, IsThereAsSoonAsTheModifierIs) {
  const Hook got(WH_GETMESSAGE, &SeeGot, GetCurrentThreadId());
  const HWND field = CreateWindowW(L"EDIT", L"some text", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                                   300, 100, nullptr, nullptr, nullptr, nullptr);
  const auto turnTheLoop = [] {
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  };
  Person().Run(turnTheLoop, [&] {
    const Hook sent(WH_KEYBOARD_LL, &DelaySent, 0);
    Press(field, 'A', kControl);
    WaitUntil(L"the keys have come", [] { return hasCtrl.load(); });
  });
  DestroyWindow(field);
  EXPECT_TRUE(sawKey);
  EXPECT_FALSE(hadCtrlAlone);
}

}  // namespace
}  // namespace driver
