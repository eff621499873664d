#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace bench {

/// The CPU time of every benchmark's repetitions, in microseconds. What other processes take away
/// of a core's speed only ever adds to it.
class Figures : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override;

  bool Has(const std::string& name) const { return times_.contains(name); }
  /// Throws std::out_of_range for a benchmark that has not run.
  double FastestOf(const std::string& name) const;
  /// Of all of them, by the names of the benchmarks: the time that a tenth of the repetitions
  /// beats.
  std::map<std::string, double> LowestTenths() const;
  void Print() const;

 private:
  std::map<std::string, std::vector<double>> times_;
};

}  // namespace bench
