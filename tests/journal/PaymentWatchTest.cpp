#include <gtest/gtest.h>

#include "journal/PaymentWatch.h"

namespace journal {
namespace {

namespace bag = hostlib::operations::parameter_bag;
using hostlib::Arguments;
using hostlib::CallInfo;
using hostlib::Value;

struct PaymentWatchTest : testing::Test {
  static CallInfo Call(const hostlib::Operation& operation, const Arguments& arguments) {
    return {operation.object, operation.interfaceNumber, operation.slot, &operation, arguments};
  }

  Masking masking;
  PaymentWatch watch{masking};
};

TEST_F(PaymentWatchTest, DeclaresTheValueOfAPaymentsKey) {
  const Arguments arguments{Value(L"strKeyMCOFPElement")};
  watch.After(Call(bag::kGetValue, arguments), Value(L"GRANT77"));
  EXPECT_EQ(masking.Masked(L"GRANT77"), L"<payment>");
}

TEST_F(PaymentWatchTest, DeclaresNothingForACallWithoutAKey) {
  for (const Arguments& arguments : {Arguments{}, Arguments{Value(7)}}) {
    watch.After(Call(bag::kGetValue, arguments), Value(L"GRANT77"));
  }
  EXPECT_EQ(masking.Masked(L"GRANT77"), L"GRANT77");
}

TEST_F(PaymentWatchTest, DeclaresNothingForAKeyWithoutAValue) {
  const Arguments arguments{Value(L"strKeyFPElementValue")};
  watch.Before(Call(bag::kSetValue, arguments));
  EXPECT_EQ(masking.Masked(L"strKeyFPElementValue"), L"strKeyFPElementValue");
}

}  // namespace
}  // namespace journal
