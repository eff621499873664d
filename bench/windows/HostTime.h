#pragma once

#include "bench/windows/StartedProgram.h"
#include "hostlib/Object.h"

namespace bench {

/// How long the library calls of a run up to its dialog take by themselves, and how many they are.
/// The fastest of several times.
struct HostTime {
  std::size_t calls = 0;
  Milliseconds time{};
};
HostTime MeasureHostTime(hostlib::Library& library, int times);

}  // namespace bench
