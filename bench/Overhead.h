#pragma once

#include "bench/Case.h"
#include "bench/Figures.h"

namespace bench {

/// A whole run over its library calls alone, with the ordinary and with the largest booking.
class Overhead {
 public:
  /// Registers the benchmarks; must outlive them.
  Overhead();
  void Print(const Figures& figures) const;

 private:
  Case ordinary_{OrdinaryBooking()};
  Case largest_{BookingOf(LargestSize())};
};

}  // namespace bench
