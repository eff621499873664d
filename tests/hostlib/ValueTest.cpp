#include <gtest/gtest.h>

#include "practice/library/ParameterBagObject.h"

namespace hostlib {
namespace {

TEST(Value, AnEmptyValueReadsAsTheEmptyOfEachKind) {
  EXPECT_EQ(Value().Text(), L"");
  EXPECT_FALSE(Value().Flag());
  EXPECT_EQ(Value().Integer(), 0);
  EXPECT_TRUE(TextsOf(Value()).items.empty());
}

TEST(Value, TextAndFlagAreNotConvertedIntoEachOther) {
  EXPECT_THROW(Value(true).Text(), common::TypeMismatch);
  EXPECT_THROW(Value(L"True").Flag(), common::TypeMismatch);
  EXPECT_THROW(Value(Missing{}).Text(), common::TypeMismatch);
}

TEST(Value, ACountMayComeAsAnyNumberOrAsAText) {
  EXPECT_EQ(Value(std::int16_t{7}).Integer(), 7);
  EXPECT_EQ(Value(7).Integer(), 7);
  EXPECT_EQ(Value(2.5).Integer(), 2);
  EXPECT_EQ(Value(L"12").Integer(), 12);
  EXPECT_EQ(Value(L"").Integer(), 0);
  EXPECT_THROW(Value(L"x").Integer(), common::TypeMismatch);
  EXPECT_THROW(Value(true).Integer(), common::TypeMismatch);
}

TEST(Value, ACountPastSixteenBitsIsAnOverflow) {
  EXPECT_EQ(Value(32767).Integer(), 32767);
  EXPECT_THROW(Value(32768).Integer(), common::OverflowError);
}

TEST(Value, TheUpperBoundCountsFromTheLowerBound) {
  EXPECT_EQ(TextArray({{L"a", L"b"}, 1}).UpperBound(), 2);
  EXPECT_EQ(TextArray({{L"a", L"b"}, 0}).UpperBound(), 1);
  EXPECT_EQ(TextArray().UpperBound(), -1);
}

TEST(Value, AListGivesItsArrayThroughItsDefaultMember) {
  const Value list =
      ObjectPtr(std::make_shared<practice::ListObject>(Value(TextArray{{L"", L"AP"}, 0}), nullptr));
  EXPECT_EQ(TextsOf(list).items, (std::vector<std::wstring>{L"", L"AP"}));
}

TEST(Value, AnArrayOfAnotherKindIsAMismatch) {
  EXPECT_THROW(TextsOf(Value(DoubleArray{{1.5}, 0})), common::TypeMismatch);
  EXPECT_THROW(DoublesOf(Value(L"1.5")), common::TypeMismatch);
}

TEST(Value, NoObjectIsAMismatch) {
  EXPECT_THROW(Value(ObjectPtr()).AsObject(), common::TypeMismatch);
  EXPECT_THROW(Value(L"x").AsObject(), common::TypeMismatch);
}

TEST(Value, IsDescribedByItsKindAndContent) {
  EXPECT_EQ(Describe(Value()), L"Empty");
  EXPECT_EQ(Describe(Value(Missing{})), L"missing");
  EXPECT_EQ(Describe(Value(true)), L"True");
  EXPECT_EQ(Describe(Value(L"a")), L"\"a\"");
  EXPECT_EQ(Describe(Value(240.5)), L"240.5");
  EXPECT_EQ(Describe(Value(TextArray{{L"a", L"b"}, 1})), L"[\"a\", \"b\"] from 1");
  EXPECT_EQ(Describe(Value(IntegerArray{{1, 2}, 0})), L"[1, 2]");
  EXPECT_EQ(Describe(Value(DoubleArray{{1.5, 2}, 1})), L"[1.5, 2] from 1");
  EXPECT_EQ(Describe(Value(ObjectPtr())), L"Nothing");
}

TEST(LibraryError, KeepsThePlaceThatTheInnermostGaveIt) {
  LibraryError error(1, L"source", L"text");
  error.Locate(L"ParameterBag", L"GetValue");
  error.Locate(L"PnrReader", L"GetHeader");
  EXPECT_EQ(error.object(), L"ParameterBag");
  EXPECT_EQ(error.operation(), L"GetValue");
}

}  // namespace
}  // namespace hostlib
