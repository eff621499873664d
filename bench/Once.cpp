// Does one of the measured things once, for a profiler: pta-bench-once ordinary|largest
// run|calls|alone. Only what MeasuredPart does counts.
#include <cstdio>
#include <cstring>
#include <exception>
#include <functional>

#include "bench/Case.h"

namespace {

[[gnu::noinline]] void MeasuredPart(const std::function<void()>& part) { part(); }

bool DoOnce(bench::Case& measured, const char* what) {
  bench::Workplace place = measured.Prepare();
  if (std::strcmp(what, "run") == 0) {
    MeasuredPart([&] { measured.Run(place); });
  } else if (std::strcmp(what, "calls") == 0) {
    MeasuredPart([&] { measured.ReplayBare(place); });
  } else if (std::strcmp(what, "alone") == 0) {
    bench::AnsweringLibrary answers = measured.PrepareAnswers();
    MeasuredPart([&] { measured.RunAlone(place, answers); });
  } else {
    return false;
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    const bool known = argc == 3 && (std::strcmp(argv[1], "ordinary") == 0 ||
                                     std::strcmp(argv[1], "largest") == 0);
    if (known) {
      bench::Case measured(std::strcmp(argv[1], "ordinary") == 0
                               ? bench::OrdinaryBooking()
                               : bench::BookingOf(bench::LargestSize()));
      if (DoOnce(measured, argv[2])) return 0;
    }
    std::fprintf(stderr, "usage: pta-bench-once ordinary|largest run|calls|alone\n");
    return 2;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "pta-bench-once: %s\n", error.what());
    return 1;
  }
}
