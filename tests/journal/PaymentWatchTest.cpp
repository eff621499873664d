#include <gtest/gtest.h>

#include "journal/PaymentWatch.h"

namespace journal {
namespace {

namespace bag = hostlib::operations::parameter_bag;
using hostlib::Arguments;
using hostlib::CallInfo;
using hostlib::Value;

struct PaymentWatchTest : testing::Test {
  void Before(const hostlib::Operation& operation, const Arguments& arguments) {
    watch.Before(Call(operation, arguments));
  }
  void After(const hostlib::Operation& operation, const Arguments& arguments, const Value& answer) {
    watch.After(Call(operation, arguments), answer);
  }

  Masking masking;
  PaymentWatch watch{masking};

 private:
  static CallInfo Call(const hostlib::Operation& operation, const Arguments& arguments) {
    return {operation.object, operation.interfaceNumber, operation.slot, &operation, arguments};
  }
};

TEST_F(PaymentWatchTest, DeclaresTheValueOfAPaymentsKey) {
  After(bag::kGetValue, {Value(L"strKeyMCOFPElement")}, Value(L"GRANT77"));
  EXPECT_EQ(masking.Masked(L"GRANT77"), L"<payment>");
}

TEST_F(PaymentWatchTest, DeclaresNothingForACallWithoutAKey) {
  After(bag::kGetValue, {}, Value(L"GRANT77"));
  After(bag::kGetValue, {Value(7)}, Value(L"GRANT77"));
  EXPECT_EQ(masking.Masked(L"GRANT77"), L"GRANT77");
}

TEST_F(PaymentWatchTest, DeclaresNothingForAKeyWithoutAValue) {
  Before(bag::kSetValue, {Value(L"strKeyFPElementValue")});
  EXPECT_EQ(masking.Masked(L"strKeyFPElementValue"), L"strKeyFPElementValue");
}

}  // namespace
}  // namespace journal
