#include <gtest/gtest.h>

#include "common/RunTimeError.h"

namespace common {
namespace {

TEST(RunTimeError, HasWordsForWhoeverKnowsOnlyTheStandardsFailures) {
  const OverflowError error;
  const std::exception& failure = error;
  EXPECT_STREQ(failure.what(), "run-time error");
}

}  // namespace
}  // namespace common
