#include "fares/XFItems.h"

#include <algorithm>

#include "common/Text.h"

namespace fares {
namespace {

constexpr std::size_t kBeforeAnyAmount = 3;

bool IsOfAmount(wchar_t character) { return common::IsDigit(character) || character == L'.'; }

}  // namespace

XFItem CutXFItem(std::wstring_view item) {
  const auto start =
      item.begin() + static_cast<std::ptrdiff_t>(std::min(kBeforeAnyAmount, item.size()));
  if (std::none_of(start, item.end(), common::IsDigit)) return {std::wstring(item), {}, {}};
  const auto first = std::find_if(start, item.end(), IsOfAmount);
  const auto last = std::find_if_not(first, item.end(), IsOfAmount);
  return {{item.begin(), first}, {first, last}, {last, item.end()}};
}

}  // namespace fares
