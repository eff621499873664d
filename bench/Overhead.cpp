#include "bench/Overhead.h"

#include <cstdio>
#include <functional>

#include "bench/Print.h"

namespace bench {
namespace {

using benchmark::State;

constexpr double kMostOverhead = 1.10;

// What is prepared for a run, and what is left of it, are made and cleared away off the clock; and
// so is the other part before each: neither is repeated in practice, where a processor would know
// its code and its branches by heart.
template <typename Part, typename Other>
void Measure(State& state, Case& measured, Part part, Other other) {
  for (auto _ : state) {
    state.PauseTiming();
    {
      Workplace before = measured.Prepare();
      std::invoke(other, measured, before);
      Workplace place = measured.Prepare();
      state.ResumeTiming();
      std::invoke(part, measured, place);
      state.PauseTiming();
      if (!place.agent.lastBox().empty()) state.SkipWithError("the run had something to report");
    }
    state.ResumeTiming();
  }
}

template <typename Part, typename Other>
void Register(const std::string& name, Case& measured, Part part, Other other) {
  // Short repetitions: something else of the machine's falls into fewer of them.
  constexpr int kRepetitions = 200;
  constexpr double kSeconds = 0.003;
  benchmark::RegisterBenchmark(
      name.c_str(),
      [&measured, part, other](State& state) { Measure(state, measured, part, other); })
      ->Unit(benchmark::kMicrosecond)
      ->MinTime(kSeconds)
      ->Repetitions(kRepetitions);
}

void RegisterBoth(const std::string& name, Case& measured) {
  Register(name + "/run", measured, &Case::Run, &Case::ReplayBare);
  Register(name + "/calls", measured, &Case::ReplayBare, &Case::Run);
}

void PrintOne(const std::map<std::string, double>& times, const std::string& name,
              const std::string& booking) {
  const auto run = times.find(name + "/run");
  const auto calls = times.find(name + "/calls");
  if (run == times.end() || calls == times.end()) return;
  PrintFigure(booking + ", over its library calls alone", run->second / calls->second,
              kMostOverhead);
}

}  // namespace

Overhead::Overhead() {
  RegisterBoth("ordinary", ordinary_);
  RegisterBoth("largest", largest_);
}

void Overhead::Print(const Figures& figures) const {
  std::printf("\nA whole run in CPU time\n");
  const auto times = figures.Times();
  PrintOne(times, "ordinary", "ordinary booking");
  PrintOne(times, "largest", "largest booking");
}

}  // namespace bench
