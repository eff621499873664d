#pragma once

#include <span>
#include <string>
#include <string_view>

namespace ui {

/// One row of a selection list, in columns: number from 1, persons from 10, form of payment from
/// 19, segments from 45.
struct SelectionRow {
  std::wstring number;
  std::wstring persons;
  std::wstring fop;
  std::wstring segments;
};

/// An empty field is padded one blank short of its column, so that the rest of the row moves one
/// to the left; a field wider than its column is a RunTimeError. The segments are not padded.
std::wstring RowText(const SelectionRow& row);

/// What the columns of a row hold, trimmed. Of the segments at most `segmentWidth` characters are
/// read.
SelectionRow ReadRow(std::wstring_view text, int segmentWidth);
/// The same with the segments to their end.
SelectionRow ReadRow(std::wstring_view text);

/// Where the columns of a row begin, counted from 0.
std::span<const int> RowColumns();

}  // namespace ui
