#include <gtest/gtest.h>

#include "common/RunTimeError.h"
#include "common/Text.h"
#include "ui/controls/SelectionRow.h"

namespace ui {
namespace {

using common::Space;

TEST(SelectionRow, TheColumnsBeginAt1And10And19And45) {
  const std::wstring text = RowText({L"1", L"2,3", L"CASH", L"2-3"});
  EXPECT_EQ(text, L"1" + Space(8) + L"2,3" + Space(6) + L"CASH" + Space(22) + L"2-3");
  EXPECT_EQ(text.find(L"2,3"), 9U);
  EXPECT_EQ(text.find(L"CASH"), 18U);
  EXPECT_EQ(text.find(L"2-3"), 44U);
}

TEST(SelectionRow, SaysWhereItsColumnsBegin) {
  const std::wstring text = RowText({L"N", L"P", L"F", L"S"});
  std::wstring found;
  for (const int column : RowColumns()) found += text.at(static_cast<std::size_t>(column));
  EXPECT_EQ(found, L"NPFS");
}

TEST(SelectionRow, AFieldAsWideAsItsColumnHasNoBlankBehindIt) {
  const std::wstring nine(9, L'N');
  const std::wstring persons(9, L'P');
  const std::wstring fop(26, L'F');
  EXPECT_EQ(RowText({nine, persons, fop, L"2"}), nine + persons + fop + L"2");
}

TEST(SelectionRow, AnEmptyNumberMovesTheRestOneToTheLeft) {
  EXPECT_EQ(RowText({L"", L"2", L"CASH", L"2-3"}),
            Space(8) + L"2" + Space(8) + L"CASH" + Space(22) + L"2-3");
}

TEST(SelectionRow, AnEmptyPersonsFieldMovesTheRestOneToTheLeft) {
  EXPECT_EQ(RowText({L"1", L"", L"CASH", L"2-3"}),
            L"1" + Space(8) + Space(8) + L"CASH" + Space(22) + L"2-3");
}

TEST(SelectionRow, AnEmptyFormOfPaymentIsPaddedTo25) {
  EXPECT_EQ(RowText({L"1", L"2", L"", L"2-3"}),
            L"1" + Space(8) + L"2" + Space(8) + Space(25) + L"2-3");
}

TEST(SelectionRow, ANumberLongerThanItsColumnIsAFailure) {
  EXPECT_THROW(RowText({std::wstring(10, L'1'), L"1", L"CASH", L"2-3"}), common::RunTimeError);
}

TEST(SelectionRow, PersonsLongerThanTheirColumnAreAFailure) {
  EXPECT_THROW(RowText({L"1", std::wstring(10, L'1'), L"CASH", L"2-3"}), common::RunTimeError);
}

TEST(SelectionRow, AFormOfPaymentLongerThanItsColumnIsAFailure) {
  EXPECT_THROW(RowText({L"1", L"1", std::wstring(27, L'C'), L"2-3"}), common::RunTimeError);
}

TEST(SelectionRow, TheSegmentsAreShownWhole) {
  const std::wstring segments(200, L'S');
  EXPECT_EQ(RowText({L"1", L"1", L"CASH", segments}).substr(44), segments);
}

TEST(SelectionRow, TheSegmentsAreReadToTheirEndOrToTheWidthAskedFor) {
  const std::wstring text = RowText({L"1", L"1", L"CASH", L"2-3,5-7"});
  EXPECT_EQ(ReadRow(text).segments, L"2-3,5-7");
  EXPECT_EQ(ReadRow(text, 6).segments, L"2-3,5-");
}

TEST(SelectionRow, FieldsThatFillTheirColumnsAreReadBackWhole) {
  const std::wstring nine(9, L'N');
  const std::wstring persons(9, L'P');
  const std::wstring fop(26, L'F');
  const SelectionRow row = ReadRow(RowText({nine, persons, fop, L"2"}));
  EXPECT_EQ(row.number, nine);
  EXPECT_EQ(row.persons, persons);
  EXPECT_EQ(row.fop, fop);
  EXPECT_EQ(row.segments, L"2");
}

TEST(SelectionRow, TheFieldsAreReadBackTrimmed) {
  const SelectionRow row = ReadRow(RowText({L" 1", L" 2 ", L"CC VI ", L" 2-3"}));
  EXPECT_EQ(row.number, L"1");
  EXPECT_EQ(row.persons, L"2");
  EXPECT_EQ(row.fop, L"CC VI");
  EXPECT_EQ(row.segments, L"2-3");
}

TEST(SelectionRow, ARowWithAnEmptyFieldIsReadBackMoved) {
  const SelectionRow row = ReadRow(RowText({L"1", L"", L"CASH", L"2-3"}));
  EXPECT_EQ(row.number, L"1");
  EXPECT_EQ(row.persons, L"C");
  EXPECT_EQ(row.fop, L"ASH" + Space(22) + L"2");
  EXPECT_EQ(row.segments, L"-3");
}

}  // namespace
}  // namespace ui
