#include "ui/win32/NativeListBox.h"

#include <algorithm>

namespace ui {

namespace {

HFONT FontOf(HWND window) {
  return reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
}

TEXTMETRICW MetricsOf(HWND window, HFONT font) {
  const HDC dc = GetDC(window);
  const HGDIOBJ before = SelectObject(dc, font);
  TEXTMETRICW metrics = {};
  GetTextMetricsW(dc, &metrics);
  SelectObject(dc, before);
  ReleaseDC(window, dc);
  return metrics;
}

/// A tab for every run of blanks.
std::wstring WithTabs(std::wstring_view caption) {
  std::wstring text;
  for (const wchar_t c : caption) {
    if (c != L' ') {
      text += c;
    } else if (!text.empty() && text.back() != L'\t') {
      text += L'\t';
    }
  }
  return text;
}

int CharacterWidth(HWND list) { return MetricsOf(list, FontOf(list)).tmAveCharWidth; }

}  // namespace

NativeListBox::NativeListBox(Control& list, HWND window, Shell& shell)
    : NativeOf(list, window, shell) {
  UseFixedPitch();
}

void NativeListBox::UseFixedPitch() {
  LOGFONTW wanted = {};
  GetObjectW(FontOf(GetParent(window())), sizeof wanted, &wanted);
  wanted.lfWidth = 0;
  wanted.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
  lstrcpyW(wanted.lfFaceName, L"Courier New");
  FontHandle font(CreateFontIndirectW(&wanted));
  SendMessageW(window(), WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), TRUE);
  font_ = std::move(font);
}

LRESULT NativeListBox::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  const LRESULT result = NativeControl::Handle(message, wParam, lParam);
  // The dialog has just given all its controls its own font in the new size.
  if (message == WM_DPICHANGED_AFTERPARENT) UseFixedPitch();
  // Not every list box notifies of a line that the space key has picked.
  if ((message == WM_KEYDOWN || message == WM_CHAR) && window() != nullptr) TakeChange();
  return result;
}

void NativeListBox::Push(Property property) {
  NativeControl::Push(property);
  if (property == Property::kItems) PushItems();
  if (property == Property::kSelection) PushSelection();
}

void NativeListBox::PushItems() {
  const std::vector<ListBox::Item>& items = control().Items();
  // Lines are only ever added at the end, or all removed.
  if (items.empty()) SendMessageW(window(), LB_RESETCONTENT, 0, 0);
  std::size_t longest = 0;
  auto shown = static_cast<std::size_t>(SendMessageW(window(), LB_GETCOUNT, 0, 0));
  for (; shown < items.size(); ++shown) {
    SendMessageW(window(), LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(items[shown].text.c_str()));
  }
  for (const ListBox::Item& item : items) longest = std::max(longest, item.text.size() + 1);
  SendMessageW(window(), LB_SETHORIZONTALEXTENT,
               longest * static_cast<std::size_t>(CharacterWidth(window())), 0);
}

void NativeListBox::PushSelection() {
  if (control().selection() == ListBox::Selection::kSingle) {
    SendMessageW(window(), LB_SETCURSEL, static_cast<WPARAM>(control().ListIndex()), 0);
    return;
  }
  for (int i = 0; i < control().Count(); ++i) {
    SendMessageW(window(), LB_SETSEL, control().Items()[static_cast<std::size_t>(i)].selected, i);
  }
}

void NativeListBox::TakeChange() {
  std::vector<bool> selected(control().Items().size());
  for (std::size_t i = 0; i < selected.size(); ++i) {
    selected[i] = SendMessageW(window(), LB_GETSEL, i, 0) > 0;
  }
  control().SelectionChanged(selected);
}

void NativeListHeading::Draw(const DRAWITEMSTRUCT& item) {
  const HWND list = GetWindow(window(), GW_HWNDNEXT);
  constexpr int kListMargin = 1;
  POINT inner = {kListMargin, 0};
  MapWindowPoints(list, window(), &inner, 1);
  std::vector<int> edges;
  for (const int column : control().Columns()) edges.push_back(column * CharacterWidth(list));
  const std::wstring words = WithTabs(control().Text());
  FillRect(item.hDC, &item.rcItem, GetSysColorBrush(COLOR_BTNFACE));
  SetBkMode(item.hDC, TRANSPARENT);
  SetTextColor(item.hDC, GetSysColor(COLOR_BTNTEXT));
  // A tab leads to the next edge to the right; the first column needs none.
  TabbedTextOutW(item.hDC, inner.x, item.rcItem.top, words.c_str(), static_cast<int>(words.size()),
                 static_cast<int>(edges.size()) - 1, edges.data() + 1, inner.x);
}

}  // namespace ui
