#include "bench/Growth.h"

#include <cstdio>

#include "bench/Fit.h"
#include "bench/Overhead.h"

namespace bench {
namespace {

/// Linear is 10.
constexpr double kMostForTenfold = 10.5;

}  // namespace

Growth::Growth() {
  const Size largest = LargestSize();
  AddNames(largest.names);
  AddTSTs(largest.tsts);
  // As many as the host takes beside the lines that the run needs: 999 elements altogether.
  AddRemarks(largest.remarks + largest.names - 1);
}

void Growth::AddNames(int most) {
  Begin("names");
  for (const int count : {1, 10, most}) Add(count, BookingOf({.names = count}));
}

// Of ten names in turn: the TSTs of one name alone would list it more often than a remark holds.
void Growth::AddTSTs(int most) {
  Begin("TSTs chosen of " + std::to_string(most));
  for (const int count : {1, 10, most}) {
    Booking booking = BookingOf({.names = 10, .tsts = most, .tstEachName = true});
    booking.chosen = count;
    Add(count, booking);
  }
  // The list's columns are to be read anew for each of its rows.
  Begin("TSTs of the PNR, all chosen", false);
  for (const int count : {1, 10, most}) {
    Add(count, BookingOf({.names = 10, .tsts = count, .tstEachName = true}));
  }
}

void Growth::AddRemarks(int most) {
  Begin("remarks");
  for (const int count : {10, 100, most}) Add(count, BookingOf({.remarks = count}));
}

void Growth::Begin(const std::string& what, bool isLinear) {
  series_.push_back(Series{what, isLinear, {}});
}

void Growth::Add(int work, const Booking& booking) {
  Series& series = series_.back();
  Step& step = series.steps.emplace_back(
      Step{static_cast<double>(work), series.what + "/" + std::to_string(work), Case(booking)});
  RegisterAlone(step.name, step.measured);
}

void Growth::Print(const Figures& figures) const {
  std::printf("\nTen times the work, in times of the program's own time (linear is 10)\n");
  for (const Series& series : series_) PrintOne(series, figures);
}

void Growth::PrintOne(const Series& series, const Figures& figures) {
  std::array<Point, 3> points{};
  for (std::size_t i = 0; i < points.size(); ++i) {
    const Step& step = series.steps[i];
    if (!figures.Has(step.name)) return;
    points[i] = {step.work, figures.Of(step.name)};
  }
  const double cost = CostOfTenfold(points);
  if (series.isLinear) {
    PrintFigure(series.what, cost, kMostForTenfold);
  } else {
    std::printf("  %-52s %7.2f  (not linear by the rules)\n", series.what.c_str(), cost);
  }
}

}  // namespace bench
