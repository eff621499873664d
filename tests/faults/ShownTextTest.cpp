#include <gtest/gtest.h>

#include "tests/faults/ShownText.h"

namespace faults {
namespace {

TEST(ShownText, IsTheTextLineByLine) {
  EXPECT_TRUE(IsShown(L"RT\n", L"RT"));
  EXPECT_TRUE(IsShown(L"1\n2\n3\n", L"1\r\n2\r3\n"));
  EXPECT_FALSE(IsShown(L"RT\n", L"RT1"));
  EXPECT_FALSE(IsShown(L"RT1\n", L"RT"));
  EXPECT_FALSE(IsShown(L"", L"RT"));
}

TEST(ShownText, HasAnAsteriskForADigitAndForItself) {
  EXPECT_TRUE(IsShown(L"CC ************1111\n", L"CC 4111111111111111"));
  EXPECT_TRUE(IsShown(L"RM *PTA\n", L"RM *PTA"));
  EXPECT_FALSE(IsShown(L"RM *PTA\n", L"RM PTA"));
  EXPECT_FALSE(IsShown(L"RM *TA\n", L"RM PTA"));
  EXPECT_FALSE(IsShown(L"CC ************1112\n", L"CC 4111111111111111"));
}

TEST(ShownText, HasTheReplacementCharacterForWhatCannotBePrinted) {
  EXPECT_TRUE(IsShown(L"A\uFFFDB\uFFFD\n",
                      L"A\x01"
                      L"B\x85"));
  EXPECT_FALSE(IsShown(L"A\uFFFD\n", L"AB"));
  EXPECT_FALSE(IsShown(L"A\uFFFD\n", L"A\t"));
}

TEST(ShownText, HasAPaymentForSomething) {
  EXPECT_TRUE(IsShown(L"FP <payment>\n", L"FP CASH"));
  EXPECT_TRUE(IsShown(L"FP <payment>/SEK1 [P<payment>]\n", L"FP CA/SEK2/SEK1 [P1,2]"));
  EXPECT_FALSE(IsShown(L"FP <payment>\n", L"FP "));
  EXPECT_FALSE(IsShown(L"FP <payment>\n", L"FM CASH"));
  EXPECT_FALSE(IsShown(L"FP <payment> [P1]\n", L"FP CASH [P2]"));
  EXPECT_FALSE(IsShown(L"FP <payment>", L"FP CASH"));
}

TEST(ShownText, HasAPaymentWithDigitsForOneThatHoldsThem) {
  EXPECT_TRUE(IsShown(L"FP <payment 1111>\n", L"FP CCVI4111111111111111/0907"));
  EXPECT_FALSE(IsShown(L"FP <payment 1112>\n", L"FP CCVI4111111111111111/0907"));
  EXPECT_FALSE(IsShown(L"FP <payment 12345>\n", L"FP CCVI4111111112345"));
}

TEST(ShownText, IsNotWithheldAsAWhole) { EXPECT_FALSE(IsShown(L"<withheld>\n", L"RT")); }

}  // namespace
}  // namespace faults
