#pragma once

#include <cstdint>
#include <vector>

namespace common {

/// A whole number of any size, for what has to be exact in both the powers of two and of ten.
class WholeNumber {
 public:
  explicit WholeNumber(std::uint64_t number = 0);

  /// Neither `factor` nor `divisor` is 0.
  void MultiplyAdd(std::uint32_t factor, std::uint32_t addend);
  /// Leaves the quotient and gives the rest.
  std::uint32_t DivideBy(std::uint32_t divisor);

  bool IsZero() const { return parts_.empty(); }
  /// How many bits it takes; 0 takes none.
  int Bits() const;
  /// Its 64 highest bits, the lowest of them set when any bit below is. It must have so many.
  std::uint64_t HighestBits() const;

 private:
  std::vector<std::uint32_t> parts_;  // the lowest first, the highest never 0
};

}  // namespace common
