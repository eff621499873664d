#include "fares/ItemLists.h"

#include <algorithm>

namespace fares {
namespace {

constexpr wchar_t kSeparator = L';';

}  // namespace

std::vector<std::wstring> SplitItems(std::wstring_view list) {
  std::vector<std::wstring> items;
  items.reserve(static_cast<std::size_t>(std::ranges::count(list, kSeparator)) + 1);
  for (std::size_t from = 0; from <= list.size();) {
    const std::size_t end = std::min(list.find(kSeparator, from), list.size());
    items.emplace_back(list.substr(from, end - from));
    from = end + 1;
  }
  return items;
}

std::vector<std::wstring> LeadingItems(std::wstring_view list) {
  std::vector<std::wstring> items = SplitItems(list);
  items.erase(std::find(items.begin(), items.end(), std::wstring()), items.end());
  return items;
}

std::wstring JoinItems(const std::vector<std::wstring>& items) {
  std::wstring list;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (i > 0) list += kSeparator;
    list += items[i];
  }
  return list;
}

}  // namespace fares
