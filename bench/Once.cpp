// Does one of the measured things once, for a profiler: pta-bench-once BOOKING run|calls|alone.
// BOOKING is ordinary, largest, or one of those that "pta-bench-once steps" lists; only what
// MeasuredPart does counts. "pta-bench-once growth" reads lines of a count, a tab and such a
// booking, and tells how the count grows.
#include <cstdio>
#include <exception>
#include <functional>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/Case.h"
#include "bench/GrowthSeries.h"

namespace {

[[gnu::noinline]] void MeasuredPart(const std::function<void()>& part) { part(); }

bool DoOnce(bench::Case& measured, const std::string& what) {
  bench::Workplace place = measured.Prepare();
  if (what == "run") {
    MeasuredPart([&] { measured.Run(place); });
  } else if (what == "calls") {
    MeasuredPart([&] { measured.ReplayBare(place); });
  } else if (what == "alone") {
    MeasuredPart([&] { measured.RunAlone(place); });
  } else {
    return false;
  }
  return true;
}

std::optional<bench::Booking> BookingNamed(const std::string& name) {
  if (name == "ordinary") return bench::OrdinaryBooking();
  if (name == "largest") return bench::BookingOf(bench::LargestSize());
  for (const bench::GrowthSeries& series : bench::AllGrowth()) {
    for (const bench::GrowthStep& step : series.steps) {
      if (step.name == name) return step.booking;
    }
  }
  return {};
}

void ListSteps() {
  for (const bench::GrowthSeries& series : bench::AllGrowth()) {
    for (const bench::GrowthStep& step : series.steps) std::printf("%s\n", step.name.c_str());
  }
}

void TellGrowth() {
  bench::StepFigures counts;
  double count = 0;
  std::string step;
  while (std::cin >> count && std::getline(std::cin >> std::ws, step)) counts[step] = count;
  if (!std::cin.eof()) throw std::runtime_error("a line without a count");
  bench::PrintGrowth(counts);
}

/// False when the words ask for nothing that it can do.
bool Do(const std::vector<std::string>& words) {
  if (words == std::vector<std::string>{"steps"}) {
    ListSteps();
  } else if (words == std::vector<std::string>{"growth"}) {
    TellGrowth();
  } else {
    const auto booking = words.size() == 2 ? BookingNamed(words[0]) : std::nullopt;
    if (!booking) return false;
    bench::Case measured(*booking);
    return DoOnce(measured, words[1]);
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    if (Do({argv + 1, argv + argc})) return 0;
    std::fprintf(stderr, "usage: pta-bench-once BOOKING run|calls|alone, steps, or growth\n");
    return 2;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "pta-bench-once: %s\n", error.what());
    return 1;
  }
}
