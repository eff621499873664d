#include "bench/GrowthSeries.h"

#include <algorithm>
#include <cstdio>

#include "bench/Fit.h"
#include "bench/Print.h"

namespace bench {
namespace {

/// Linear is 10.
constexpr double kMostForTenfold = 10.5;

/// More of them, each with a tax of its own, and the remark of the total is longer than the host
/// takes as one entry.
constexpr int kMostOwnTaxes = 90;

template <typename BookingFor>
GrowthSeries Series(const std::string& what, bool isLinear, const std::array<int, 3>& works,
                    const BookingFor& bookingFor) {
  GrowthSeries series{what, isLinear, {}};
  std::ranges::transform(works, series.steps.begin(), [&](int work) {
    return GrowthStep{static_cast<double>(work), what + "/" + std::to_string(work),
                      bookingFor(work)};
  });
  return series;
}

GrowthSeries ChosenTSTs(const std::string& what, const Size& size) {
  return Series(what, true, {1, 10, size.tsts}, [&size](int count) {
    Booking booking = BookingOf(size);
    booking.chosen = count;
    return booking;
  });
}

bool IsWhole(const GrowthSeries& series, const StepFigures& figures) {
  return std::ranges::all_of(series.steps,
                             [&](const GrowthStep& step) { return figures.contains(step.name); });
}

Point PointOf(const GrowthStep& step, const StepFigures& figures) {
  return {step.work, figures.at(step.name)};
}

void PrintOne(const GrowthSeries& series, const StepFigures& figures) {
  const auto& steps = series.steps;
  const double cost = CostOfTenfold(
      {PointOf(steps[0], figures), PointOf(steps[1], figures), PointOf(steps[2], figures)});
  if (series.isLinear) return PrintFigure(series.what, cost, kMostForTenfold);
  std::printf("  %-52s %7.2f  (not linear by the rules)\n", series.what.c_str(), cost);
}

}  // namespace

std::vector<GrowthSeries> AllGrowth() {
  const Size largest = LargestSize();
  // As many as the host takes beside the lines that the run needs: 999 elements altogether.
  const int mostRemarks = largest.remarks + largest.names - 1;
  return {
      Series("names", true, {1, 10, largest.names},
             [](int count) { return BookingOf({.names = count}); }),
      // Of ten names in turn: the TSTs of one name alone would list it more often than a remark
      // holds.
      ChosenTSTs("TSTs chosen of " + std::to_string(largest.tsts),
                 {.names = 10, .tsts = largest.tsts, .tstEachName = true}),
      // Of all names in turn: listed twice they would leave a remark little room. By the rules each
      // tax is looked for among those before it, but that is little beside what else a TST takes.
      ChosenTSTs(
          "TSTs chosen, each with a tax of its own",
          {.names = largest.names, .tsts = kMostOwnTaxes, .tstEachName = true, .taxEachTST = true}),
      // The list's columns are to be read anew for each of its rows.
      Series(
          "TSTs of the PNR, all chosen", false, {1, 10, largest.tsts},
          [](int count) { return BookingOf({.names = 10, .tsts = count, .tstEachName = true}); }),
      Series("remarks", true, {10, 100, mostRemarks},
             [](int count) { return BookingOf({.remarks = count}); }),
  };
}

void PrintGrowth(const StepFigures& figures) {
  for (const GrowthSeries& series : AllGrowth()) {
    if (IsWhole(series, figures)) PrintOne(series, figures);
  }
}

}  // namespace bench
