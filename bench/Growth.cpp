#include "bench/Growth.h"

#include <cstdio>

#include "bench/GrowthSeries.h"

namespace bench {

Growth::Growth() {
  for (const GrowthSeries& series : AllGrowth()) {
    for (const GrowthStep& step : series.steps) {
      Register(step.name, cases_.emplace_back(step.booking));
    }
  }
}

void Growth::Register(const std::string& name, const Case& measured) {
  constexpr int kRepetitions = 5000;
  benchmark::RegisterBenchmark(name.c_str(),
                               [this, &measured](benchmark::State& state) {
                                 for (auto _ : state) {
                                   state.PauseTiming();
                                   {
                                     Workplace place = measured.Prepare();
                                     coldStart_.Prepare();
                                     state.ResumeTiming();
                                     measured.RunAlone(place);
                                     state.PauseTiming();
                                     if (!place.agent.lastBox().empty())
                                       state.SkipWithError("the run had something to report");
                                   }
                                   state.ResumeTiming();
                                 }
                               })
      ->Unit(benchmark::kMicrosecond)
      ->Iterations(1)
      ->Repetitions(kRepetitions);
}

void Growth::Print(const Figures& figures) const {
  std::printf("\nTen times the work, in times of the program's own time (linear is 10)\n");
  PrintGrowth(figures.Times());
}

}  // namespace bench
