#pragma once

#include <cstddef>

namespace practice::terminal {

/// The bytes in use on this process's heaps.
std::size_t UsedHeap();

}  // namespace practice::terminal
