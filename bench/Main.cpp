// Measures the program's own work: how much it adds to the library calls of a run, how it grows
// with the booking, and how many library calls it makes.
#include <cstdio>
#include <exception>

#include "bench/Calls.h"
#include "bench/Growth.h"
#include "bench/Overhead.h"

int main(int argc, char** argv) {
  try {
    bench::Figures figures;
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    bench::Overhead overhead;
    benchmark::RunSpecifiedBenchmarks(&figures);
    // Apart: these start cold, and what is measured in between would feel it.
    benchmark::ClearRegisteredBenchmarks();
    bench::Growth growth;
    benchmark::RunSpecifiedBenchmarks(&figures);
    figures.Print();
    overhead.Print(figures);
    growth.Print(figures);
    bench::PrintCalls();
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "pta-bench: %s\n", error.what());
    return 1;
  }
}
