#pragma once

#include <array>
#include <map>
#include <string>
#include <vector>

#include "bench/Booking.h"

namespace bench {

struct GrowthStep {
  double work = 0;   ///< how many of what grows
  std::string name;  ///< the series' own, a slash and the work
  Booking booking;
};

/// The same booking in three sizes, the smallest first.
struct GrowthSeries {
  std::string what;
  bool isLinear;  ///< by the rules
  std::array<GrowthStep, 3> steps;
};

/// What was measured of the steps, by their names.
using StepFigures = std::map<std::string, double>;

/// Names, TSTs, taxes and remarks, each alone.
std::vector<GrowthSeries> AllGrowth();

/// What ten times the work costs, with its goal. A series with a step that has no figure is left
/// out.
void PrintGrowth(const StepFigures& figures);

}  // namespace bench
