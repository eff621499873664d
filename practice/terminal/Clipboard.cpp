#include "practice/terminal/Clipboard.h"

#include <cstring>

namespace practice::terminal {

void PutOnClipboard(HWND window, const std::wstring& text) {
  if (!OpenClipboard(window)) return;
  EmptyClipboard();
  const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
  if (memory != nullptr) {
    std::memcpy(GlobalLock(memory), text.c_str(), bytes);
    GlobalUnlock(memory);
    // Once it lies there the memory belongs to the clipboard.
    if (SetClipboardData(CF_UNICODETEXT, memory) == nullptr) GlobalFree(memory);
  }
  CloseClipboard();
}

}  // namespace practice::terminal
