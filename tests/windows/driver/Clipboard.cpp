#include "tests/windows/driver/Clipboard.h"

#include <windows.h>

#include <cstring>

#include "tests/windows/driver/Driver.h"

namespace driver {

namespace {

/// "" when there is no text on it, or another program has it open.
std::wstring TextOnClipboard() {
  std::wstring text;
  if (!OpenClipboard(nullptr)) return text;
  if (const HANDLE data = GetClipboardData(CF_UNICODETEXT)) {
    if (const auto* characters = static_cast<const wchar_t*>(GlobalLock(data))) {
      text = characters;
      GlobalUnlock(data);
    }
  }
  CloseClipboard();
  return text;
}

}  // namespace

void PutOnClipboard(const std::wstring& text) {
  const SIZE_T bytes = (text.size() + 1) * sizeof(wchar_t);
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
  std::memcpy(GlobalLock(memory), text.c_str(), bytes);
  GlobalUnlock(memory);
  WaitUntil(L"the clipboard is free", [] { return OpenClipboard(nullptr) != FALSE; });
  EmptyClipboard();
  SetClipboardData(CF_UNICODETEXT, memory);
  CloseClipboard();
}

void WaitForCopied(const std::wstring& text, const std::function<void()>& copies) {
  const DWORD before = GetClipboardSequenceNumber();
  copies();
  WaitUntil(L"something is copied", [&] { return GetClipboardSequenceNumber() != before; });
  WaitUntil(L"\"" + text + L"\" is copied", [&] { return TextOnClipboard() == text; });
}

}  // namespace driver
