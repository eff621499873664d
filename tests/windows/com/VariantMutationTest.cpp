#include <gtest/gtest.h>

#include "hostlib/com/Failures.h"
#include "practice/terminal/UsedHeap.h"
#include "tests/windows/com/RandomVariants.h"

namespace com_tests {
namespace {

using hostlib::LibraryError;
using hostlib::Value;
using hostlib::com::Variant;

constexpr unsigned kSeed = 20261121;
constexpr int kVariants = 200000;

/// Takes the objects of variants in, and counts what it still holds of them.
class Gate : public hostlib::com::ObjectGate {
 public:
  Microsoft::WRL::ComPtr<IDispatch> Outward(const hostlib::ObjectPtr&) override { return nullptr; }
  hostlib::ObjectPtr Inward(Microsoft::WRL::ComPtr<IDispatch>, std::wstring_view) override {
    return nullptr;
  }
};

struct Outcomes {
  int values = 0;
  int errors = 0;
};

/// A value, or a failure in words; whatever else leaves the conversion fails the test.
void Convert(const VARIANT& variant, Outcomes& outcomes) {
  Gate gate;
  try {
    const Value value = hostlib::com::FromVariant(variant, gate, L"ParameterBag");
    ++outcomes.values;
    // What came in can go out again, and comes back as the same. An object is this program's then,
    // and what is no number is like nothing, not even itself.
    if (value.IsObject() || !(value == value)) return;
    const Variant back = hostlib::com::ToVariant(value, gate);
    EXPECT_TRUE(hostlib::com::FromVariant(back.get(), gate, L"") == value);
  } catch (const LibraryError& error) {
    ++outcomes.errors;
    EXPECT_FALSE(error.description().empty());
  }
}

TEST(VariantMutation, EveryVariantIsAValueOrAFailureInWords) {
  RandomVariants random(kSeed);
  Outcomes outcomes;
  for (int i = 0; i < kVariants && !testing::Test::HasFailure(); ++i) {
    SCOPED_TRACE("variant " + std::to_string(i) + " of seed " + std::to_string(kSeed));
    const RandomVariants::Made made = random.Next();
    SCOPED_TRACE("kind " + std::to_string(made.variant().vt));
    Convert(made.variant(), outcomes);
  }
  EXPECT_GT(outcomes.values, kVariants / 10);
  EXPECT_GT(outcomes.errors, kVariants / 10);
  EXPECT_EQ(random.LiveObjects(), 0);
  std::printf("variants converted: %d, of them %d to a value and %d to a failure\n", kVariants,
              outcomes.values, outcomes.errors);
}

TEST(VariantMutation, ConvertingLeavesNoMemoryBehind) {
  Outcomes outcomes;
  const auto pass = [&] {
    RandomVariants random(kSeed);
    for (int i = 0; i < kVariants / 20; ++i) Convert(random.Next().variant(), outcomes);
    return practice::terminal::UsedHeap();
  };
  // The first passes fill what the system keeps for later.
  pass();
  pass();
  const std::size_t before = pass();
  const std::size_t after = pass();
  // One byte a variant would be much more than this.
  EXPECT_LT(after, before + kVariants / 40);
}

}  // namespace
}  // namespace com_tests
