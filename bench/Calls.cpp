#include "bench/Calls.h"

#include <cstdio>

#include "bench/Case.h"

namespace bench {
namespace {

std::size_t CallsOf(const Booking& booking) { return Case(booking).recording().CountCalls(); }
std::size_t CallsWith(const Size& size) { return CallsOf(BookingOf(size)); }

void PrintCount(const char* what, std::size_t calls) { std::printf("  %-52s %7zu\n", what, calls); }

}  // namespace

void PrintCalls() {
  std::printf("\nLibrary calls of a run\n");
  PrintCount("ordinary booking", CallsOf(OrdinaryBooking()));
  PrintCount("largest booking", CallsOf(BookingOf(LargestSize())));
  PrintCount("each further remark", CallsWith({.remarks = 11}) - CallsWith({.remarks = 10}));
  PrintCount("each further name of a TST", CallsWith({.names = 11}) - CallsWith({.names = 10}));
  const std::size_t ofTwo = CallsWith({.names = 10, .tsts = 2, .tstEachName = true});
  const std::size_t ofThree = CallsWith({.names = 10, .tsts = 3, .tstEachName = true});
  PrintCount("each further TST, of a PNR with ten names", ofThree - ofTwo);
}

}  // namespace bench
