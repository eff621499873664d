#pragma once

#include <cstdint>
#include <functional>
#include <utility>

namespace hostlib::com {

/// What to do when the terminal does not take a call because it is busy: wait and try again
/// quietly; after a while, ask the agent, and again after as long when the agent wants to wait.
/// Works on the millisecond clock of the system, which wraps around.
class BusyPolicy {
 public:
  using Clock = std::function<std::uint32_t()>;
  /// Asks the agent: true to try again, false to give the call up.
  using Question = std::function<bool()>;

  static constexpr std::uint32_t kPatience = 8000;
  static constexpr std::int32_t kPause = 250;
  static constexpr std::int32_t kGiveUp = -1;

  BusyPolicy(Clock clock, Question tryAgain)
      : clock_(std::move(clock)), tryAgain_(std::move(tryAgain)) {}

  /// A call was not taken, `sinceItsStart` milliseconds after it was first made. Gives the
  /// milliseconds until the next try, or kGiveUp.
  std::int32_t AfterRejection(std::uint32_t sinceItsStart) {
    const std::uint32_t now = clock_();
    const std::uint32_t start = now - sinceItsStart;
    if (IsAnotherCall(start)) waitingSince_ = start;
    std::int32_t answer = kPause;
    if (now - waitingSince_ >= kPatience) {
      answer = tryAgain_() ? kPause : kGiveUp;
      waitingSince_ = clock_();
    }
    isWaiting_ = answer != kGiveUp;
    lastAnswer_ = clock_();
    return answer;
  }

 private:
  // A call that was made after the last answer can't be the one that the answer was about.
  bool IsAnotherCall(std::uint32_t start) const {
    return !isWaiting_ || static_cast<std::int32_t>(start - lastAnswer_) > 0;
  }

  Clock clock_;
  Question tryAgain_;
  bool isWaiting_ = false;
  std::uint32_t waitingSince_ = 0;
  std::uint32_t lastAnswer_ = 0;
};

}  // namespace hostlib::com
