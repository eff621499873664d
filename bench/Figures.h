#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace bench {

/// The CPU time of every benchmark's repetitions, of which the one counts that a tenth of them
/// beats: what other processes take away of a core's speed only ever adds to it, and the very
/// fastest finds more than usual in the processor's memories.
class Figures : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override;

  /// Microseconds, by the names of the benchmarks that have run.
  std::map<std::string, double> Times() const;
  void Print() const;

 private:
  std::map<std::string, std::vector<double>> times_;
};

}  // namespace bench
