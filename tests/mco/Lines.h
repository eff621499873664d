#pragma once

#include <algorithm>
#include <string>
#include <vector>

namespace mco {

using Lines = std::vector<std::wstring>;

/// The last lines, or all when there are fewer.
inline Lines Last(const Lines& lines, std::ptrdiff_t count) {
  return {lines.end() - std::min(count, std::ssize(lines)), lines.end()};
}

}  // namespace mco
