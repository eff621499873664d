#include <gtest/gtest.h>

#include "common/LineFeeds.h"

namespace common {
namespace {

TEST(LineFeeds, StandForEveryKindOfLineEnd) {
  EXPECT_EQ(WithLineFeeds(L"one\rtwo\r\nthree\nfour"), L"one\ntwo\nthree\nfour");
  EXPECT_EQ(WithLineFeeds(L"\r\r\n\n"), L"\n\n\n");
}

}  // namespace
}  // namespace common
