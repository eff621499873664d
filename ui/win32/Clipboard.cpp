#include "ui/win32/Clipboard.h"

namespace ui {

std::wstring ClipboardText(HWND window) {
  std::wstring text;
  if (!OpenClipboard(window)) return text;
  if (const HANDLE data = GetClipboardData(CF_UNICODETEXT)) {
    if (const auto* characters = static_cast<const wchar_t*>(GlobalLock(data))) {
      text = characters;
      GlobalUnlock(data);
    }
  }
  CloseClipboard();
  return text;
}

}  // namespace ui
