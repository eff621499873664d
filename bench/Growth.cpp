#include "bench/Growth.h"

#include <cstdio>

#include "bench/GrowthSeries.h"
#include "bench/Overhead.h"

namespace bench {

Growth::Growth() {
  for (const GrowthSeries& series : AllGrowth()) {
    for (const GrowthStep& step : series.steps) {
      RegisterAlone(step.name, cases_.emplace_back(step.booking));
    }
  }
}

void Growth::Print(const Figures& figures) const {
  std::printf("\nTen times the work, in times of the program's own time (linear is 10)\n");
  PrintGrowth(figures.fastest());
}

}  // namespace bench
