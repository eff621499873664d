#pragma once

#include <memory>

#include "bench/Answers.h"
#include "bench/Workplace.h"

namespace bench {

/// A booking with a recorded run on it, to be run and replayed any number of times. The parts to be
/// measured are apart from their preparation.
class Case {
 public:
  /// Records a run. Throws std::logic_error unless it wrote its PTA without any box, and a replay
  /// leaves the same PNR.
  explicit Case(const Booking& booking);

  Workplace Prepare() const { return before_; }

  /// The whole program against the practice library.
  void Run(Workplace& place) const;
  /// The library calls of such a run, and nothing else.
  void ReplayBare(Workplace& place);
  /// The whole program against recorded answers.
  void RunAlone(Workplace& place) const;

  const Recording& recording() const { return replay_->recording(); }
  const std::wstring& pnrAfter() const { return pnrAfter_; }

 private:
  Workplace before_;
  std::unique_ptr<Replay> replay_;
  std::unique_ptr<Answers> answers_;
  std::wstring pnrAfter_;
};

}  // namespace bench
