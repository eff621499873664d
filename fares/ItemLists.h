#pragma once

#include <string>
#include <string_view>
#include <vector>

// Lists inside one text, joined with ";".
namespace fares {

/// Every piece, the empty ones too: joining them again gives the same text.
std::vector<std::wstring> SplitItems(std::wstring_view list);
/// The pieces before the first empty one.
std::vector<std::wstring> LeadingItems(std::wstring_view list);
std::wstring JoinItems(const std::vector<std::wstring>& items);

}  // namespace fares
