#include "tests/windows/driver/Input.h"

#include "tests/windows/driver/Driver.h"

namespace driver {

namespace {

/// The thread of a window, which stands still as long as this lives. It may have any lock of the
/// process: whoever holds it still may not so much as ask for memory.
class StillThread {
 public:
  explicit StillThread(HWND window) : thread_(OtherThreadOf(window)) {
    isStill_ = thread_ != nullptr && SuspendThread(thread_) != static_cast<DWORD>(-1);
  }
  ~StillThread() {
    if (isStill_) ResumeThread(thread_);
    if (thread_ != nullptr) CloseHandle(thread_);
  }
  StillThread(const StillThread&) = delete;
  StillThread& operator=(const StillThread&) = delete;

 private:
  /// Null for the thread that asks, and for one that has ended.
  static HANDLE OtherThreadOf(HWND window) {
    const DWORD thread = GetWindowThreadProcessId(window, nullptr);
    if (thread == GetCurrentThreadId()) return nullptr;
    return OpenThread(THREAD_SUSPEND_RESUME, FALSE, thread);
  }

  HANDLE thread_;
  bool isStill_;
};

std::size_t Sent(const std::vector<INPUT>& inputs) {
  return SendInput(static_cast<UINT>(inputs.size()), const_cast<INPUT*>(inputs.data()),
                   sizeof(INPUT));
}

void ExpectAll(std::size_t sent, const std::vector<INPUT>& inputs) {
  if (sent != inputs.size()) throw DriverError(L"SendInput took not every key");
}

}  // namespace

void SendInputs(const std::vector<INPUT>& inputs) { ExpectAll(Sent(inputs), inputs); }

void SendInputsAsOne(HWND window, const std::vector<INPUT>& inputs) {
  std::size_t sent = 0;
  {
    const StillThread still(window);
    sent = Sent(inputs);
  }
  ExpectAll(sent, inputs);
}

}  // namespace driver
