#pragma once

#include <vector>

#include "bench/Recording.h"
#include "bench/windows/StartedProgram.h"

namespace bench {

/// How long the library calls of a run up to its dialog take by themselves, in a process that has
/// long been attached.
class HostCalls {
 public:
  /// Records such a run. The terminal has the booking open, then and whenever they are measured.
  explicit HostCalls(hostlib::Library& library);

  /// Makes the calls once more, and notes how long they took.
  Milliseconds Measure();
  /// Of what was measured so far, at least once.
  Milliseconds Median() const;

 private:
  hostlib::Library& library_;
  Replay replay_;
  std::vector<Milliseconds> times_;
};

}  // namespace bench
