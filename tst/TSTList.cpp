#include "tst/TSTList.h"

#include "common/Numbers.h"
#include "common/RunTimeError.h"

namespace tst {
namespace {

constexpr common::Literal kSegments = L"strKeyTSTSegment()";

std::int16_t CountIn(const std::wstring& text) {
  return text.empty() ? std::int16_t{0} : common::ToInteger(text);
}

// An array is read anew for each of its rows, as the library's bag hands it out.
void AppendRow(const hostlib::ParameterBag& answer, common::Literal key, int row,
               hostlib::TextArray& rows) {
  rows.items.push_back(RowOf(hostlib::TextsOf(answer.GetValue(key)), row));
}

}  // namespace

TSTList ReadTSTListAnswer(hostlib::ScriptGlobal& global, const hostlib::ParameterBag& answer) {
  TSTList list;
  list.found = global.FlagIn(answer, L"blnKeyTST");
  list.isList = global.FlagIn(answer, L"blnKeyTSTList");
  list.count = CountIn(global.TextIn(answer, L"intKeyNoOfTST"));
  list.tstNumber = global.TextIn(answer, L"strKeyTSTNum");
  const int rows = hostlib::TextsOf(answer.GetValue(kSegments)).UpperBound();
  for (int row = 1; row <= rows; ++row) {
    AppendRow(answer, kSegments, row, list.segments);
    AppendRow(answer, L"strKeyPersonNbrArray()", row, list.persons);
    AppendRow(answer, L"strKeyTSTNumArray()", row, list.tstNumbers);
    AppendRow(answer, L"strKeyFOPArray()", row, list.fops);
  }
  return list;
}

const std::wstring& RowOf(const hostlib::TextArray& array, int index) {
  if (index < array.lowerBound || index > array.UpperBound()) {
    throw common::RunTimeError(L"Subscript out of range");
  }
  return array.items[static_cast<std::size_t>(index - array.lowerBound)];
}

}  // namespace tst
