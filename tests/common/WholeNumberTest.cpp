#include <gtest/gtest.h>

#include "common/WholeNumber.h"

using common::WholeNumber;

TEST(WholeNumber, TakesAsManyBitsAsItsHighestOneStands) {
  EXPECT_EQ(WholeNumber().Bits(), 0);
  EXPECT_EQ(WholeNumber(1).Bits(), 1);
  EXPECT_EQ(WholeNumber(std::uint64_t{1} << 40).Bits(), 41);
}

TEST(WholeNumber, GivesTheRestAndKeepsTheQuotient) {
  WholeNumber number(1);
  for (int i = 0; i < 3; ++i) number.MultiplyAdd(1000000000, 7);
  EXPECT_EQ(number.DivideBy(1000000000), 7U);
  EXPECT_EQ(number.DivideBy(1000000000), 7U);
  EXPECT_EQ(number.DivideBy(1000000000), 7U);
  EXPECT_EQ(number.DivideBy(2), 1U);
  EXPECT_TRUE(number.IsZero());
}
