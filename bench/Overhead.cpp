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

void Register(const std::string& name, Case& measured) {
  benchmark::RegisterBenchmark((name + "/run").c_str(), [&measured](State& state) {
    Measure(state, measured, &Case::Run, &Case::ReplayBare);
  })->Unit(benchmark::kMicrosecond);
  benchmark::RegisterBenchmark((name + "/calls").c_str(), [&measured](State& state) {
    Measure(state, measured, &Case::ReplayBare, &Case::Run);
  })->Unit(benchmark::kMicrosecond);
  RegisterAlone(name + "/alone", measured);
}

void PrintOne(const Figures& figures, const std::string& name, const std::string& booking) {
  if (!figures.Has(name + "/run") || !figures.Has(name + "/calls")) return;
  PrintFigure(booking + ", over its library calls alone",
              figures.Of(name + "/run") / figures.Of(name + "/calls"), kMostOverhead);
}

}  // namespace

void RegisterAlone(const std::string& name, const Case& measured) {
  benchmark::RegisterBenchmark(name.c_str(), [&measured](State& state) {
    for (auto _ : state) {
      state.PauseTiming();
      {
        Workplace place = measured.Prepare();
        AnsweringLibrary answers = measured.PrepareAnswers();
        state.ResumeTiming();
        measured.RunAlone(place, answers);
        state.PauseTiming();
        if (!place.agent.lastBox().empty()) state.SkipWithError("the run had something to report");
      }
      state.ResumeTiming();
    }
  })->Unit(benchmark::kMicrosecond);
}

Overhead::Overhead() {
  Register("ordinary", ordinary_);
  Register("largest", largest_);
}

void Overhead::Print(const Figures& figures) const {
  std::printf("\nA whole run in CPU time\n");
  PrintOne(figures, "ordinary", "ordinary booking");
  PrintOne(figures, "largest", "largest booking");
}

}  // namespace bench
