#pragma once

#include <deque>

#include "bench/Case.h"
#include "bench/Figures.h"

namespace bench {

/// How the program's own time grows with the booking: names, TSTs and remarks, each alone.
class Growth {
 public:
  /// Registers the benchmarks; must outlive them.
  Growth();
  void Print(const Figures& figures) const;

 private:
  struct Step {
    double work;
    std::string name;
    Case measured;
  };
  struct Series {
    std::string what;
    bool isLinear;  ///< by the rules
    std::deque<Step> steps;
  };
  void AddNames(int most);
  void AddTSTs(int most);
  void AddRemarks(int most);
  void Begin(const std::string& what, bool isLinear = true);
  void Add(int work, const Booking& booking);
  static void PrintOne(const Series& series, const Figures& figures);

  std::deque<Series> series_;
};

}  // namespace bench
