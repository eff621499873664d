#include "ui/controls/SelectionRow.h"

#include "common/Text.h"

namespace ui {
namespace {

constexpr int kNumberWidth = 9;
constexpr int kPersonsWidth = 9;
constexpr int kFOPWidth = 26;

// The store of blanks is one shorter than the column: enough for any field but an empty one.
std::wstring Padded(std::wstring_view field, int width) {
  return std::wstring(field) +
         common::Mid(common::Space(width - 1), 1, width - common::Length(field));
}

}  // namespace

std::wstring RowText(const SelectionRow& row) {
  return Padded(row.number, kNumberWidth) + Padded(row.persons, kPersonsWidth) +
         Padded(row.fop, kFOPWidth) + row.segments;
}

SelectionRow ReadRow(std::wstring_view text, int segmentWidth) {
  int start = 1;
  const auto next = [&](int width) {
    std::wstring field = common::Trim(common::Mid(text, start, width));
    start += width;
    return field;
  };
  SelectionRow row;
  row.number = next(kNumberWidth);
  row.persons = next(kPersonsWidth);
  row.fop = next(kFOPWidth);
  row.segments = next(segmentWidth);
  return row;
}

SelectionRow ReadRow(std::wstring_view text) { return ReadRow(text, common::Length(text)); }

std::span<const int> RowColumns() {
  constexpr int kFOPStart = kNumberWidth + kPersonsWidth;
  static constexpr int kColumns[] = {0, kNumberWidth, kFOPStart, kFOPStart + kFOPWidth};
  return kColumns;
}

}  // namespace ui
