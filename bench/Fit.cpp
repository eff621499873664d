#include "bench/Fit.h"

#include <cmath>

namespace bench {

double CostOfTenfold(const std::array<Point, 3>& points) {
  const auto& [first, middle, last] = points;
  const double sought = (last.time - middle.time) / (middle.time - first.time);
  // The quotient of the differences grows with k.
  double low = 0.01;
  double high = 4;
  for (int i = 0; i < 60; ++i) {
    const double k = (low + high) / 2;
    const double quotient = (std::pow(last.work, k) - std::pow(middle.work, k)) /
                            (std::pow(middle.work, k) - std::pow(first.work, k));
    (quotient < sought ? low : high) = k;
  }
  return std::pow(10, low);
}

}  // namespace bench
