#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>

namespace bench {

/// The CPU time of every benchmark's fastest repetition: what other processes take away of a core's
/// speed only ever adds to it.
class Figures : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override;

  bool Has(const std::string& name) const { return fastest_.contains(name); }
  /// Microseconds; throws std::out_of_range for a benchmark that has not run.
  double Of(const std::string& name) const { return fastest_.at(name); }
  /// All of them, by the names of the benchmarks.
  const std::map<std::string, double>& fastest() const { return fastest_; }
  void Print() const;

 private:
  std::map<std::string, double> fastest_;
};

}  // namespace bench
