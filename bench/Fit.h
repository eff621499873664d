#pragma once

#include <array>

namespace bench {

struct Point {
  double work;
  double time;
};

/// What ten times the work costs, in times of the time: 10^k of the curve a + b * work^k that goes
/// through three points of growing work. Linear is 10; what is done once, however much the work is,
/// does not count.
double CostOfTenfold(const std::array<Point, 3>& points);

}  // namespace bench
