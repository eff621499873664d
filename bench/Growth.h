#pragma once

#include <deque>

#include "bench/Case.h"
#include "bench/Figures.h"

namespace bench {

/// How the program's own time grows with the booking.
class Growth {
 public:
  /// Registers the benchmarks; must outlive them.
  Growth();
  void Print(const Figures& figures) const;

 private:
  std::deque<Case> cases_;
};

}  // namespace bench
