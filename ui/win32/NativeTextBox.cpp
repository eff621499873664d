#include "ui/win32/NativeTextBox.h"

#include "ui/win32/Clipboard.h"
#include "ui/win32/Input.h"

namespace ui {

namespace {

constexpr wchar_t kCtrlA = 1;
constexpr wchar_t kCtrlBackspace = 0x7F;
/// Ctrl with A, C, V, X and Z, as characters: commands to the edit control, nothing is typed.
constexpr std::wstring_view kCommands = L"\x01\x03\x16\x18\x1A";

bool IsDown(int key) { return GetKeyState(key) < 0; }

}  // namespace

void NativeTextBox::Push(Property property) {
  NativeControl::Push(property);
  if (property == Property::kLocked) {
    SendMessageW(window(), EM_SETREADONLY, control().Locked(), 0);
  } else if (property == Property::kBackColor) {
    InvalidateRect(window(), nullptr, TRUE);
  } else if (property == Property::kSelection) {
    const int start = control().SelectionStart();
    Select(start, start + control().SelectionLength());
  }
}

HBRUSH NativeTextBox::Brush(HDC dc) {
  const COLORREF color = control().BackColor();
  // Without a colour of its own a locked or disabled field keeps the look that Windows gives it.
  if (color == kWindowBackground) return nullptr;
  SetBkColor(dc, color);
  // A colour of the form's own is a light one, under which the user's colours for text may vanish.
  SetTextColor(dc, control().Enabled() ? RGB(0, 0, 0) : GetSysColor(COLOR_GRAYTEXT));
  SetDCBrushColor(dc, color);
  return static_cast<HBRUSH>(GetStockObject(DC_BRUSH));
}

void NativeTextBox::TakeChange() {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window())), L'\0');
  GetWindowTextW(window(), text.data(), static_cast<int>(text.size()) + 1);
  control().TextTyped(text);
  TakeSelection();
}

LRESULT NativeTextBox::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  const LRESULT result = Do(message, wParam, lParam);
  if (IsInput(message) || message == WM_LBUTTONUP) TakeSelection();
  return result;
}

LRESULT NativeTextBox::Do(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_CHAR) return Type(wParam, lParam);
  if (message == WM_PASTE && control().onPaste && !control().Locked()) return Paste();
  // Not every edit control makes a message of this key, so the paste handler would not see it.
  if (message == WM_KEYDOWN && wParam == VK_INSERT && IsDown(VK_SHIFT) && !IsDown(VK_CONTROL)) {
    return SendMessageW(window(), WM_PASTE, 0, 0);
  }
  if (message == WM_KEYDOWN && wParam == VK_BACK && IsDown(VK_CONTROL)) {
    if (!control().Locked()) EraseWord();
    return 0;
  }
  const LRESULT result = NativeControl::Handle(message, wParam, lParam);
  // Without this the dialog manager would select the whole text of every field it comes to.
  return message == WM_GETDLGCODE ? result & ~LRESULT{DLGC_HASSETSEL} : result;
}

LRESULT NativeTextBox::Type(WPARAM wParam, LPARAM lParam) {
  const auto typed = static_cast<wchar_t>(wParam);
  if (typed == kCtrlA) Select(0, -1);
  if (typed == kCtrlA || typed == kCtrlBackspace) return 0;
  if (control().Locked() || kCommands.find(typed) != kCommands.npos) {
    return Default(WM_CHAR, wParam, lParam);
  }
  const wchar_t character = control().FilterKey(typed);
  if (character == 0 || window() == nullptr) return 0;
  return Default(WM_CHAR, character, lParam);
}

LRESULT NativeTextBox::Paste() {
  std::wstring text = ClipboardText(window());
  text.erase(std::min(text.find_first_of(L"\r\n"), text.size()));
  if (!text.empty()) Replace(control().onPaste(text));
  return 0;
}

// The edit control knows no such key and would take its character for text.
void NativeTextBox::EraseWord() {
  TakeSelection();
  const int end = control().SelectionStart();
  if (control().SelectionLength() == 0) {
    const auto before = control().Text().substr(0, static_cast<std::size_t>(end));
    const std::size_t last = before.find_last_not_of(L' ');
    const std::size_t blank = last == before.npos ? last : before.find_last_of(L' ', last);
    Select(static_cast<int>(blank + 1), end);
  }
  Replace(L"");
}

void NativeTextBox::Replace(std::wstring_view text) {
  SendMessageW(window(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(std::wstring(text).c_str()));
}

void NativeTextBox::Select(int start, int end) {
  SendMessageW(window(), EM_SETSEL, static_cast<WPARAM>(start), end);
}

void NativeTextBox::TakeSelection() {
  if (window() == nullptr) return;
  DWORD start = 0;
  DWORD end = 0;
  SendMessageW(window(), EM_GETSEL, reinterpret_cast<WPARAM>(&start),
               reinterpret_cast<LPARAM>(&end));
  control().SelectionMoved(static_cast<int>(start), static_cast<int>(end - start));
}

}  // namespace ui
