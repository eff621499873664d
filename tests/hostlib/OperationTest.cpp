#include <gtest/gtest.h>

#include "hostlib/Operations.h"

namespace hostlib {
namespace {

constexpr Operation kOne{L"PnrReader", 2, 7, L"GetSegment", 1};

TEST(Is, KnowsAnOperationWhereverItIsKept) {
  const Operation copy = kOne;
  EXPECT_TRUE(Is(&copy, kOne));
}

TEST(Is, TellsOperationsApartByObjectInterfaceAndSlot) {
  for (const Operation& other :
       {Operation{L"QueueRequest", 2, 7, L"", 1}, Operation{L"PnrReader", 3, 7, L"", 1},
        Operation{L"PnrReader", 2, 8, L"", 1}}) {
    EXPECT_FALSE(Is(&other, kOne));
  }
}

TEST(Is, TakesAnOperationThatTheProgramDoesNotUseForNone) { EXPECT_FALSE(Is(nullptr, kOne)); }

}  // namespace
}  // namespace hostlib
