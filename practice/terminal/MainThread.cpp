#include "practice/terminal/MainThread.h"

#include "common/RunTimeError.h"

namespace practice::terminal {
namespace {

constexpr wchar_t kClass[] = L"VantelPracticeMainThread";
constexpr UINT kRun = WM_APP;

LRESULT CALLBACK Receive(HWND window, UINT message, WPARAM wide, LPARAM work) noexcept {
  if (message != kRun) return DefWindowProcW(window, message, wide, work);
  (*reinterpret_cast<const std::function<void()>*>(work))();
  return 1;
}

HWND NewWindow() {
  WNDCLASSW description = {};
  description.lpfnWndProc = Receive;
  description.hInstance = GetModuleHandleW(nullptr);
  description.lpszClassName = kClass;
  RegisterClassW(&description);
  return CreateWindowExW(0, kClass, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                         description.hInstance, nullptr);
}

}  // namespace

MainThread::MainThread() : window_(NewWindow()) {
  if (window_ == nullptr) throw common::RunTimeError(L"No window can be made");
}

MainThread::~MainThread() { DestroyWindow(window_); }

bool MainThread::Run(const std::function<void()>& work) const {
  return SendMessageW(window_, kRun, 0, reinterpret_cast<LPARAM>(&work)) != 0;
}

}  // namespace practice::terminal
