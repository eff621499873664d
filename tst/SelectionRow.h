#pragma once

#include <string>
#include <string_view>

namespace tst {

/// One row of the selection list, in columns: TST number from 1, person numbers from 10, form of
/// payment from 19, segments from 45.
struct SelectionRow {
  std::wstring tstNumber;
  std::wstring persons;
  std::wstring fop;
  std::wstring segment;
};

/// An empty field is padded one blank short of its column, so that the rest of the row moves one
/// to the left; a field wider than its column is a RunTimeError. The segments are not padded.
std::wstring RowText(const SelectionRow& row);

/// What the columns of a row hold, trimmed. Only 6 characters of the segments are read.
SelectionRow ReadRow(std::wstring_view text);

}  // namespace tst
