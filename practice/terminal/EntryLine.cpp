#include "practice/terminal/EntryLine.h"

// The order matters.
// clang-format off
#include <windows.h>
#include <commctrl.h>
// clang-format on

namespace practice::terminal {
namespace {

std::wstring TextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(
      static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return text;
}

void Put(HWND window, const std::wstring& text) {
  SetWindowTextW(window, text.c_str());
  SendMessageW(window, EM_SETSEL, text.size(), static_cast<LPARAM>(text.size()));
}

}  // namespace

HWND EntryLine::Create(HWND parent, int id) {
  const HWND window = CreateWindowExW(
      WS_EX_CLIENTEDGE, L"EDIT", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL, 0, 0, 0,
      0, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
  SetWindowSubclass(window, Filter, 1, reinterpret_cast<DWORD_PTR>(this));
  return window;
}

LRESULT CALLBACK EntryLine::Filter(HWND window, UINT message, WPARAM wide, LPARAM further, UINT_PTR,
                                   DWORD_PTR self) noexcept {
  auto& line = *reinterpret_cast<EntryLine*>(self);
  if (message == WM_KEYDOWN && line.KeyDown(window, wide)) return 0;
  // A single-line box would beep at Enter.
  if (message == WM_CHAR && wide == L'\r') return 0;
  return DefSubclassProc(window, message, wide, further);
}

bool EntryLine::KeyDown(HWND window, WPARAM key) {
  if (key == VK_UP) {
    Put(window, history_.Earlier());
  } else if (key == VK_DOWN) {
    Put(window, history_.Later());
  } else if (key == VK_RETURN) {
    const std::wstring entry = TextOf(window);
    if (entry.empty()) return true;
    history_.Add(entry);
    Put(window, L"");
    send_(entry);
  } else {
    return false;
  }
  return true;
}

}  // namespace practice::terminal
