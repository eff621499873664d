#include "practice/terminal/UsedHeap.h"

#include <windows.h>

#include <array>

namespace practice::terminal {

std::size_t UsedHeap() {
  std::size_t used = 0;
  std::array<HANDLE, 64> heaps{};
  const DWORD count = GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
  for (DWORD i = 0; i < count && i < heaps.size(); ++i) {
    PROCESS_HEAP_ENTRY entry = {};
    HeapLock(heaps[i]);
    while (HeapWalk(heaps[i], &entry) != FALSE) {
      if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) used += entry.cbData;
    }
    HeapUnlock(heaps[i]);
  }
  return used;
}

}  // namespace practice::terminal
