#include "ui/win32/NativeListBox.h"

#include <array>

namespace ui {

namespace {

/// Where the selection lists' columns begin, in characters.
constexpr std::array kColumns = {0, 9, 18, 44};

TEXTMETRICW MetricsOf(HWND window, HFONT font) {
  const HDC dc = GetDC(window);
  const HGDIOBJ before = SelectObject(dc, font);
  TEXTMETRICW metrics = {};
  GetTextMetricsW(dc, &metrics);
  SelectObject(dc, before);
  ReleaseDC(window, dc);
  return metrics;
}

int LineHeight(HWND window, HFONT font) { return MetricsOf(window, font).tmHeight; }
int CharacterWidth(HWND window, HFONT font) { return MetricsOf(window, font).tmAveCharWidth; }

FontHandle FontNamed(const wchar_t* name, LOGFONTW font) {
  lstrcpyW(font.lfFaceName, name);
  return FontHandle(CreateFontIndirectW(&font));
}

HFONT FontOf(HWND window) {
  return reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
}

}  // namespace

NativeListBox::NativeListBox(ListBox& list, HWND window, Shell& shell)
    : NativeControl(list, window, shell), list_(list) {
  UseFixedPitch();
}

void NativeListBox::UseFixedPitch() {
  const HFONT around = FontOf(GetParent(window()));
  LOGFONTW wanted = {};
  GetObjectW(around, sizeof wanted, &wanted);
  wanted.lfHeight = LineHeight(window(), around);
  wanted.lfWidth = 0;
  wanted.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
  FontHandle font = FontNamed(L"Courier", wanted);
  // Courier comes in few sizes; far above the largest one its scalable twin takes over.
  if (LineHeight(window(), font.get()) * 5 < wanted.lfHeight * 4) {
    font = FontNamed(L"Courier New", wanted);
  }
  SendMessageW(window(), WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), TRUE);
  font_ = std::move(font);
  characterWidth_ = CharacterWidth(window(), font_.get());
  SendMessageW(window(), LB_SETITEMHEIGHT, 0, LineHeight(window(), font_.get()));
}

LRESULT NativeListBox::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  const LRESULT result = NativeControl::Handle(message, wParam, lParam);
  // The dialog has just given all its controls its own font in the new size.
  if (message == WM_DPICHANGED_AFTERPARENT) UseFixedPitch();
  // Not every list box notifies of a line that the space key has picked.
  if (message == WM_KEYDOWN || message == WM_CHAR) TakeSelection();
  return result;
}

void NativeListBox::Push(Property property) {
  if (property == Property::kText) return;  // a list box has no caption
  NativeControl::Push(property);
  if (property == Property::kItems) PushItems();
  if (property == Property::kSelection) PushSelection();
}

void NativeListBox::PushItems() {
  const std::vector<ListBox::Item>& items = list_.Items();
  auto shown = static_cast<std::size_t>(SendMessageW(window(), LB_GETCOUNT, 0, 0));
  // Lines are only ever added at the end, or all removed.
  if (items.size() < shown) {
    SendMessageW(window(), LB_RESETCONTENT, 0, 0);
    shown = 0;
  }
  std::size_t longest = 0;
  for (std::size_t i = 0; i < items.size(); ++i) {
    longest = std::max(longest, items[i].text.size());
    if (i < shown) continue;
    SendMessageW(window(), LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(items[i].text.c_str()));
  }
  SendMessageW(window(), LB_SETHORIZONTALEXTENT,
               (longest + 1) * static_cast<std::size_t>(characterWidth_), 0);
}

void NativeListBox::PushSelection() {
  if (list_.selection() == ListBox::Selection::kSingle) {
    SendMessageW(window(), LB_SETCURSEL, static_cast<WPARAM>(list_.ListIndex()), 0);
    return;
  }
  for (int i = 0; i < list_.Count(); ++i) {
    const bool selected = list_.Items()[static_cast<std::size_t>(i)].selected;
    SendMessageW(window(), LB_SETSEL, selected, i);
  }
}

void NativeListBox::Notified(WORD notification) {
  if (notification != LBN_SELCHANGE) return;
  if (!TakesInput()) {
    PushSelection();
    return;
  }
  TakeSelection();
}

void NativeListBox::TakeSelection() {
  if (window() == nullptr) return;
  std::vector<bool> selected(list_.Items().size());
  for (std::size_t i = 0; i < selected.size(); ++i) {
    selected[i] = SendMessageW(window(), LB_GETSEL, i, 0) > 0;
  }
  list_.SelectionChanged(selected);
}

void ListHeading::Push(Property property) {
  NativeControl::Push(property);
  InvalidateRect(window(), nullptr, TRUE);
}

void ListHeading::Draw(const DRAWITEMSTRUCT& item) {
  FillRect(item.hDC, &item.rcItem, GetSysColorBrush(COLOR_BTNFACE));
  SetBkMode(item.hDC, TRANSPARENT);
  SetTextColor(item.hDC, GetSysColor(COLOR_BTNTEXT));
  std::wstring_view rest = control().Text();
  for (const int edge : ColumnEdges()) {
    rest.remove_prefix(std::min(rest.find_first_not_of(L' '), rest.size()));
    const std::wstring_view word = rest.substr(0, rest.find(L' '));
    TextOutW(item.hDC, item.rcItem.left + edge, item.rcItem.top, word.data(),
             static_cast<int>(word.size()));
    rest.remove_prefix(word.size());
  }
}

std::vector<int> ListHeading::ColumnEdges() const {
  const HWND list = GetWindow(window(), GW_HWNDNEXT);
  POINT inner = {};
  MapWindowPoints(list, window(), &inner, 1);
  constexpr int kListMargin = 1;
  const int width = CharacterWidth(list, FontOf(list));
  std::vector<int> edges;
  for (const int column : kColumns) edges.push_back(inner.x + kListMargin + column * width);
  return edges;
}

}  // namespace ui
