#pragma once

#include <string>
#include <string_view>

namespace fares {

/// One XF item cut at its amount: the first run of digits and "." after the first three
/// characters. Without any digit there, everything is `before`.
struct XFItem {
  std::wstring before;
  std::wstring amount;
  std::wstring after;
};

XFItem CutXFItem(std::wstring_view item);

}  // namespace fares
