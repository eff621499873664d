#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace faults {

/// The functions that the source calls with a format that may not be the product's own: those that
/// take one, except the few that the product uses, where their format is a literal.
std::vector<std::wstring> ForeignFormats(std::wstring_view code);

}  // namespace faults
