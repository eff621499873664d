#include "practice/host/BookingOrder.h"

#include <algorithm>

#include "common/Text.h"
#include "practice/host/Syntax.h"

namespace practice {

std::vector<std::wstring> MenuNames(std::wstring_view menuFile) {
  if (menuFile.starts_with(L'\xFEFF')) menuFile.remove_prefix(1);
  std::vector<std::wstring> names;
  for (const std::wstring& line : syntax::Split(menuFile, L'\n')) {
    const std::wstring name = common::Trim(common::Replace(line, L"\r", L""));
    if (!name.empty() && name.front() != L'#') names.push_back(name);
  }
  return names;
}

std::vector<std::wstring> InMenuOrder(std::vector<std::wstring> names, std::wstring_view menuFile) {
  const std::vector<std::wstring> order = MenuNames(menuFile);
  std::sort(names.begin(), names.end());
  std::stable_sort(names.begin(), names.end(), [&](const auto& one, const auto& other) {
    return std::find(order.begin(), order.end(), one) <
           std::find(order.begin(), order.end(), other);
  });
  return names;
}

}  // namespace practice
