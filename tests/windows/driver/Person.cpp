#include "tests/windows/driver/Person.h"

#include <exception>
#include <future>

#include "tests/windows/driver/Driver.h"

namespace driver {

namespace {

class QuitAtEnd {
 public:
  explicit QuitAtEnd(DWORD thread) : thread_(thread) {}
  ~QuitAtEnd() { PostThreadMessageW(thread_, WM_QUIT, 0, 0); }
  QuitAtEnd(const QuitAtEnd&) = delete;
  QuitAtEnd& operator=(const QuitAtEnd&) = delete;

 private:
  DWORD thread_;
};

void ForgetQuit() {
  MSG quit;
  while (PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) {
  }
}

}  // namespace

void Person::Run(const std::function<void()>& program, const std::function<void()>& acts) {
  ended_ = false;
  auto acting = std::async(std::launch::async, [&acts, thread = GetCurrentThreadId()] {
    const QuitAtEnd quit(thread);
    acts();
  });
  std::exception_ptr thrown;
  try {
    program();
  } catch (...) {
    thrown = std::current_exception();
  }
  ended_ = true;
  acting.wait();
  ForgetQuit();
  acting.get();
  if (thrown) std::rethrow_exception(thrown);
}

void Person::WaitForTheEnd() const {
  WaitUntil(L"the loop has ended", [this] { return ended_.load(); });
}

}  // namespace driver
