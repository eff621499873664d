#include "tst/SelectionRow.h"

#include "common/Text.h"

namespace tst {
namespace {

constexpr int kNumberWidth = 9;
constexpr int kPersonsWidth = 9;
constexpr int kFOPWidth = 26;
constexpr int kSegmentRead = 6;

// The store of blanks is one shorter than the column: enough for any field but an empty one.
std::wstring Padded(std::wstring_view field, int width) {
  return std::wstring(field) +
         common::Mid(common::Space(width - 1), 1, width - common::Length(field));
}

}  // namespace

std::wstring RowText(const SelectionRow& row) {
  return Padded(row.tstNumber, kNumberWidth) + Padded(row.persons, kPersonsWidth) +
         Padded(row.fop, kFOPWidth) + row.segment;
}

SelectionRow ReadRow(std::wstring_view text) {
  int start = 1;
  const auto next = [&](int width) {
    const std::wstring field = common::Trim(common::Mid(text, start, width));
    start += width;
    return field;
  };
  SelectionRow row;
  row.tstNumber = next(kNumberWidth);
  row.persons = next(kPersonsWidth);
  row.fop = next(kFOPWidth);
  row.segment = next(kSegmentRead);
  return row;
}

}  // namespace tst
