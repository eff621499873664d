#include "common/WholeNumber.h"

#include <algorithm>
#include <bit>

namespace common {
namespace {

constexpr int kPartBits = 32;
constexpr std::size_t kUsualParts = 8;  // those of an amount

}  // namespace

WholeNumber::WholeNumber(std::uint64_t number) {
  parts_.reserve(kUsualParts);
  for (; number != 0; number >>= kPartBits) parts_.push_back(static_cast<std::uint32_t>(number));
}

void WholeNumber::MultiplyAdd(std::uint32_t factor, std::uint32_t addend) {
  std::uint64_t carry = addend;
  for (std::uint32_t& part : parts_) {
    carry += std::uint64_t{part} * factor;
    part = static_cast<std::uint32_t>(carry);
    carry >>= kPartBits;
  }
  if (carry != 0) parts_.push_back(static_cast<std::uint32_t>(carry));
}

std::uint32_t WholeNumber::DivideBy(std::uint32_t divisor) {
  std::uint64_t rest = 0;
  for (auto part = parts_.rbegin(); part != parts_.rend(); ++part) {
    rest = rest << kPartBits | *part;
    *part = static_cast<std::uint32_t>(rest / divisor);
    rest %= divisor;
  }
  while (!parts_.empty() && parts_.back() == 0) parts_.pop_back();
  return static_cast<std::uint32_t>(rest);
}

int WholeNumber::Bits() const {
  if (parts_.empty()) return 0;
  return static_cast<int>(parts_.size()) * kPartBits - std::countl_zero(parts_.back());
}

std::uint64_t WholeNumber::HighestBits() const {
  const auto size = parts_.size();
  std::uint64_t highest = std::uint64_t{parts_[size - 1]} << kPartBits | parts_[size - 2];
  const int missing = std::countl_zero(highest);
  bool anyBelow = false;
  if (size > 2) {
    const std::uint64_t next = std::uint64_t{parts_[size - 3]} << missing;
    highest = highest << missing | next >> kPartBits;
    anyBelow =
        static_cast<std::uint32_t>(next) != 0 ||
        std::any_of(parts_.begin(), parts_.end() - 3, [](std::uint32_t p) { return p != 0; });
  }
  return highest | (anyBelow ? 1 : 0);
}

}  // namespace common
