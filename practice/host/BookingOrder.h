#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace practice {

/// The names in the order of a menu file, which has one name a line; lines that begin with "#" and
/// blank lines do not count. A name that the file does not have stands behind those that it has,
/// in alphabetical order; a name of the file that is not among `names` is passed over.
std::vector<std::wstring> InMenuOrder(std::vector<std::wstring> names, std::wstring_view menuFile);

/// The names that a menu file has, in its order.
std::vector<std::wstring> MenuNames(std::wstring_view menuFile);

}  // namespace practice
