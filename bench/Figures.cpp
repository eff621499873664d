#include "bench/Figures.h"

#include <cstdio>
#include <stdexcept>

namespace bench {

void Figures::ReportRuns(const std::vector<Run>& runs) {
  constexpr double kMicroseconds = 1e6;
  for (const Run& run : runs) {
    if (run.error_occurred) throw std::runtime_error(run.error_message);
    if (run.run_type != Run::RT_Iteration) continue;
    const double time =
        kMicroseconds * run.cpu_accumulated_time / static_cast<double>(run.iterations);
    const auto [held, isNew] = fastest_.try_emplace(run.run_name.function_name, time);
    if (!isNew && time < held->second) held->second = time;
  }
}

void Figures::Print() const {
  std::printf("\nFastest repetition, CPU time in microseconds\n");
  for (const auto& [name, time] : fastest_) std::printf("  %-40s %10.1f\n", name.c_str(), time);
}

}  // namespace bench
