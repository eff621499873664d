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

double Figures::FastestOf(const std::string& name) const {
  return std::ranges::min(times_.at(name));
}

std::map<std::string, double> Figures::LowestTenths() const {
  std::map<std::string, double> tenths;
  for (const auto& [name, times] : times_) tenths[name] = LowestTenth(times);
  return tenths;
}

void Figures::Print() const {
  std::printf(
      "\nCPU time in microseconds: the fastest repetition, and what a tenth of them beats\n");
  for (const auto& [name, tenth] : LowestTenths()) {
    std::printf("  %-52s %10.1f %10.1f\n", name.c_str(), FastestOf(name), tenth);
  }
}

}  // namespace bench
