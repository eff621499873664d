#include "ui/win32/NativeTextBox.h"

#include "ui/win32/Clipboard.h"

namespace ui {

namespace {

constexpr WPARAM kCtrlA = 1;
constexpr WPARAM kCtrlBackspace = 0x7F;
constexpr COLORREF kBlack = RGB(0, 0, 0);

/// What the edit control's own shortcuts send as characters. They are commands, nothing is typed.
bool IsCommand(WPARAM character) {
  constexpr WPARAM kCtrlC = 3;
  constexpr WPARAM kCtrlV = 0x16;
  constexpr WPARAM kCtrlX = 0x18;
  constexpr WPARAM kCtrlZ = 0x1A;
  return character == kCtrlA || character == kCtrlC || character == kCtrlV || character == kCtrlX ||
         character == kCtrlZ;
}

/// Not every edit control makes a message of this key, so the paste handler would not see it.
bool IsShiftInsert(UINT message, WPARAM key) {
  return message == WM_KEYDOWN && key == VK_INSERT && GetKeyState(VK_SHIFT) < 0 &&
         GetKeyState(VK_CONTROL) >= 0;
}

bool IsCtrlBackspace(UINT message, WPARAM key) {
  return message == WM_KEYDOWN && key == VK_BACK && GetKeyState(VK_CONTROL) < 0;
}

bool MovesSelection(UINT message) {
  return message == WM_KEYDOWN || message == WM_CHAR || message == WM_LBUTTONDOWN ||
         message == WM_LBUTTONUP || message == WM_LBUTTONDBLCLK || message == WM_PASTE ||
         message == WM_CUT || message == WM_CLEAR || message == WM_UNDO;
}

}  // namespace

NativeTextBox::NativeTextBox(TextBox& box, HWND window, Shell& shell)
    : NativeControl(box, window, shell), box_(box) {}

void NativeTextBox::Push(Property property) {
  NativeControl::Push(property);
  switch (property) {
    case Property::kLocked:
      SendMessageW(window(), EM_SETREADONLY, box_.Locked(), 0);
      break;
    case Property::kBackColor:
      InvalidateRect(window(), nullptr, TRUE);
      break;
    case Property::kSelection:
      SendMessageW(window(), EM_SETSEL, static_cast<WPARAM>(box_.SelectionStart()),
                   box_.SelectionStart() + box_.SelectionLength());
      break;
    default:
      break;
  }
}

void NativeTextBox::Notified(WORD notification) {
  if (notification != EN_CHANGE || pushing_) return;
  if (!TakesInput()) {
    PushCaption();
    return;
  }
  box_.TextTyped(NativeText());
  TakeSelection();
}

HBRUSH NativeTextBox::Brush(HDC dc) {
  const std::uint32_t color = box_.BackColor();
  // A locked or disabled field without a colour of its own keeps the look that Windows gives it.
  if (color == kWindowBackground) return nullptr;
  constexpr std::uint32_t kSystemColor = 0x80000000;
  if ((color & kSystemColor) != 0) {
    const int index = static_cast<int>(color & ~kSystemColor);
    SetBkColor(dc, GetSysColor(index));
    return GetSysColorBrush(index);
  }
  SetBkColor(dc, color);
  // A colour of the form's own is a light one, under which the user's colours for text may vanish.
  SetTextColor(dc, box_.Enabled() ? kBlack : GetSysColor(COLOR_GRAYTEXT));
  SetDCBrushColor(dc, color);
  return static_cast<HBRUSH>(GetStockObject(DC_BRUSH));
}

LRESULT NativeTextBox::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  LRESULT result = 0;
  if (message == WM_CHAR) {
    result = Type(wParam, lParam);
  } else if (message == WM_PASTE && !box_.Locked()) {
    result = Paste();
  } else if (IsShiftInsert(message, wParam)) {
    result = SendMessageW(window(), WM_PASTE, 0, 0);
  } else if (IsCtrlBackspace(message, wParam)) {
    if (!box_.Locked()) EraseWord();
  } else {
    result = NativeControl::Handle(message, wParam, lParam);
  }
  // Without this the dialog manager would select the whole text of every field it comes to.
  if (message == WM_GETDLGCODE) result &= ~static_cast<LRESULT>(DLGC_HASSETSEL);
  if (MovesSelection(message)) TakeSelection();
  return result;
}

LRESULT NativeTextBox::Type(WPARAM wParam, LPARAM lParam) {
  if (wParam == kCtrlA) return SendMessageW(window(), EM_SETSEL, 0, -1);
  if (wParam == kCtrlBackspace) return 0;  // has been seen to when the key went down
  if (box_.Locked() || IsCommand(wParam)) return Default(WM_CHAR, wParam, lParam);
  const wchar_t character = box_.FilterKey(static_cast<wchar_t>(wParam));
  if (character == 0 || window() == nullptr) return 0;
  return Default(WM_CHAR, character, lParam);
}

// The edit control knows no such key and would take its character for text.
void NativeTextBox::EraseWord() {
  TakeSelection();
  const std::wstring text = NativeText();
  const auto end = static_cast<std::size_t>(box_.SelectionStart());
  if (box_.SelectionLength() == 0) {
    const std::size_t last = text.substr(0, end).find_last_not_of(L' ');
    const std::size_t before = last == text.npos ? last : text.find_last_of(L' ', last);
    SendMessageW(window(), EM_SETSEL, before == text.npos ? 0 : before + 1,
                 static_cast<LPARAM>(end));
  }
  SendMessageW(window(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L""));
}

LRESULT NativeTextBox::Paste() {
  if (!box_.onPaste) return Default(WM_PASTE, 0, 0);
  std::wstring text = ClipboardText(window());
  text.erase(std::min(text.find_first_of(L"\r\n"), text.size()));
  if (!text.empty()) {
    SendMessageW(window(), EM_REPLACESEL, TRUE,
                 reinterpret_cast<LPARAM>(box_.onPaste(text).c_str()));
  }
  return 0;
}

void NativeTextBox::TakeSelection() {
  if (window() == nullptr) return;
  DWORD start = 0;
  DWORD end = 0;
  SendMessageW(window(), EM_GETSEL, reinterpret_cast<WPARAM>(&start),
               reinterpret_cast<LPARAM>(&end));
  box_.SelectionMoved(static_cast<int>(start), static_cast<int>(end - start));
}

std::wstring NativeTextBox::NativeText() const {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window())) + 1, L'\0');
  text.resize(static_cast<std::size_t>(
      GetWindowTextW(window(), text.data(), static_cast<int>(text.size()))));
  return text;
}

}  // namespace ui
