#pragma once

#include <algorithm>
#include <vector>

namespace bench {

/// The figure in the middle, of an even number the upper one of two. There must be at least one.
template <typename Figure>
Figure MedianOf(std::vector<Figure> figures) {
  const auto middle = figures.begin() + static_cast<std::ptrdiff_t>(figures.size() / 2);
  std::ranges::nth_element(figures, middle);
  return *middle;
}

}  // namespace bench
