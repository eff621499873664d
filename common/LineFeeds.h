#pragma once

#include <string>
#include <string_view>

namespace common {

/// Every line end, be it "\r\n", "\r" or "\n", as "\n".
std::wstring WithLineFeeds(std::wstring_view text);

}  // namespace common
