#include <gtest/gtest.h>

#include "journal/EntryTable.h"

namespace journal {
namespace {

constexpr hostlib::Operation kOne{L"PnrReader", 2, 7, L"GetSegment", 1};

TEST(Is, KnowsAnOperationWhereverItIsKept) {
  const hostlib::Operation copy = kOne;
  EXPECT_TRUE(Is(&copy, kOne));
}

TEST(Is, TellsOperationsApartByObjectInterfaceAndSlot) {
  for (const hostlib::Operation& other : {hostlib::Operation{L"QueueRequest", 2, 7, L"", 1},
                                          hostlib::Operation{L"PnrReader", 3, 7, L"", 1},
                                          hostlib::Operation{L"PnrReader", 2, 8, L"", 1}}) {
    EXPECT_FALSE(Is(&other, kOne));
  }
}

TEST(Is, TakesAnOperationThatTheProgramDoesNotUseForNone) { EXPECT_FALSE(Is(nullptr, kOne)); }

}  // namespace
}  // namespace journal
