#include <gtest/gtest.h>

#include "tests/windows/forms/AllForms.h"
#include "ui/controls/SelectionRow.h"
#include "ui/win32/resource.h"

namespace ui {

namespace {

/// A canvas of a window's size, in the window's font.
class Canvas {
 public:
  explicit Canvas(HWND window)
      : dc_(CreateCompatibleDC(nullptr)), font_(SendMessageW(window, WM_GETFONT, 0, 0)) {
    GetClientRect(window, &area_);
    BITMAPINFO form = {};
    form.bmiHeader = {
        sizeof form.bmiHeader, area_.right, area_.bottom, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    bitmap_ = CreateDIBSection(dc_, &form, DIB_RGB_COLORS, &bits, nullptr, 0);
    SelectObject(dc_, bitmap_);
    SelectObject(dc_, reinterpret_cast<HFONT>(font_));
  }
  ~Canvas() {
    DeleteDC(dc_);
    DeleteObject(bitmap_);
  }
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;

  HDC dc() const { return dc_; }
  const RECT& area() const { return area_; }

  /// Where something begins behind a gap of this width.
  std::vector<int> Beginnings(int gap) const {
    std::vector<int> beginnings;
    int blank = gap;
    for (int x = 0; x < area_.right; ++x) {
      if (!HasInk(x)) {
        ++blank;
        continue;
      }
      if (blank >= gap) beginnings.push_back(x);
      blank = 0;
    }
    return beginnings;
  }

 private:
  bool HasInk(int x) const {
    for (int y = 0; y < area_.bottom; ++y) {
      if (GetPixel(dc_, x, y) != GetSysColor(COLOR_BTNFACE)) return true;
    }
    return false;
  }

  HDC dc_;
  LRESULT font_;
  RECT area_ = {};
  HBITMAP bitmap_ = nullptr;
};

int CharacterWidth(HWND list) {
  const HDC dc = GetDC(list);
  SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(list, WM_GETFONT, 0, 0)));
  TEXTMETRICW metrics = {};
  GetTextMetricsW(dc, &metrics);
  ReleaseDC(list, dc);
  EXPECT_EQ(metrics.tmPitchAndFamily & TMPF_FIXED_PITCH, 0) << "of a fixed pitch";
  return metrics.tmAveCharWidth;
}

void ExpectWordsOverColumns(Form& form, int headingId, int listId) {
  const OpenForm open(form);
  const HWND heading = open.Item(headingId);
  const HWND list = open.Item(listId);
  const Canvas canvas(heading);
  DRAWITEMSTRUCT item = {};
  item.CtlType = ODT_STATIC;
  item.CtlID = static_cast<UINT>(headingId);
  item.hwndItem = heading;
  item.hDC = canvas.dc();
  item.rcItem = canvas.area();
  SendMessageW(open.handle(), WM_DRAWITEM, item.CtlID, reinterpret_cast<LPARAM>(&item));

  POINT left = {};
  MapWindowPoints(list, heading, &left, 1);
  const int width = CharacterWidth(list);
  const std::vector<int> beginnings = canvas.Beginnings(width);
  const std::span<const int> columns = RowColumns();
  ASSERT_EQ(beginnings.size(), columns.size());
  for (std::size_t i = 0; i < columns.size(); ++i) {
    // Letters have a small margin of their own.
    EXPECT_NEAR(beginnings[i], left.x + columns[i] * width + 2, 2) << "column " << i;
  }
}

TEST(ListHeading, OfTheMCOsHasEveryWordOverItsColumn) {
  Forms forms;
  ExpectWordsOverColumns(forms.selectMCO, ID_lblSelectMCOHeading, ID_lstMCO);
}

TEST(ListHeading, OfTheTSTsHasEveryWordOverItsColumn) {
  Forms forms;
  ExpectWordsOverColumns(forms.selectTST, ID_lblSelectHeading, ID_lstTST);
}

}  // namespace

}  // namespace ui
