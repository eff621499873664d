#pragma once

#include <deque>

#include "bench/Case.h"
#include "bench/ColdStart.h"
#include "bench/Figures.h"

namespace bench {

/// How the program's own time grows with the booking.
class Growth {
 public:
  /// Registers the benchmarks, runs against recorded answers; must outlive them.
  Growth();
  void Print(const Figures& figures) const;

 private:
  void Register(const std::string& name, const Case& measured);

  std::deque<Case> cases_;
  ColdStart coldStart_;
};

}  // namespace bench
