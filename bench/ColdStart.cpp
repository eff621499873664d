#include "bench/ColdStart.h"

#include <benchmark/benchmark.h>

namespace bench {
namespace {

constexpr std::size_t kLine = 64;

// What is not told is as large as that of most.
std::size_t SecondCache() {
  constexpr int kSecond = 2;
  constexpr std::size_t kUsual = 2 << 20;
  for (const auto& cache : benchmark::CPUInfo::Get().caches) {
    if (cache.level == kSecond && cache.size > 0) return static_cast<std::size_t>(cache.size);
  }
  return kUsual;
}

}  // namespace

// Twice as much, since a cache does not give up its oldest first.
ColdStart::ColdStart() : other_(2 * SecondCache()) {}

void ColdStart::Prepare() {
  for (std::size_t i = 0; i < other_.size(); i += kLine) {
    other_[i] = std::byte(std::to_integer<unsigned>(other_[i]) + 1);
  }
  benchmark::ClobberMemory();
}

}  // namespace bench
