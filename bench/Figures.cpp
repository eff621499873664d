#include "bench/Figures.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>

namespace bench {
namespace {

double LowestTenth(std::vector<double> times) {
  const auto tenth = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 10);
  std::ranges::nth_element(times, tenth);
  return *tenth;
}

}  // namespace

void Figures::ReportRuns(const std::vector<Run>& runs) {
  constexpr double kMicroseconds = 1e6;
  for (const Run& run : runs) {
    if (run.error_occurred) throw std::runtime_error(run.error_message);
    if (run.run_type != Run::RT_Iteration) continue;
    times_[run.run_name.function_name].push_back(kMicroseconds * run.cpu_accumulated_time /
                                                 static_cast<double>(run.iterations));
  }
}

std::map<std::string, double> Figures::Times() const {
  std::map<std::string, double> counted;
  for (const auto& [name, times] : times_) counted[name] = LowestTenth(times);
  return counted;
}

void Figures::Print() const {
  std::printf("\nCPU time in microseconds that a tenth of the repetitions beats\n");
  for (const auto& [name, time] : Times()) std::printf("  %-52s %10.1f\n", name.c_str(), time);
}

}  // namespace bench
