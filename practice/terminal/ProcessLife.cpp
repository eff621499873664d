#include "practice/terminal/ProcessLife.h"

namespace practice::terminal {
namespace {

constexpr UINT kForTheFirst = 30'000;
constexpr UINT kForTheNext = 2'000;

}  // namespace

ProcessLife::ProcessLife() { Wait(kForTheFirst); }

ProcessLife::~ProcessLife() { Wait(0); }

void ProcessLife::Hold() {
  if (holders_++ == 0) Wait(0);
}

void ProcessLife::LetGo() {
  if (--holders_ == 0) Wait(kForTheNext);
}

bool ProcessLife::IsEnd(const MSG& message) const {
  return message.hwnd == nullptr && message.message == WM_TIMER && timer_ != 0 &&
         message.wParam == timer_;
}

void ProcessLife::Wait(UINT milliseconds) {
  if (timer_ != 0) KillTimer(nullptr, timer_);
  timer_ = milliseconds == 0 ? 0 : SetTimer(nullptr, 0, milliseconds, nullptr);
}

}  // namespace practice::terminal
