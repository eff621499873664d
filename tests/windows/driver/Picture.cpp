#include "tests/windows/driver/Picture.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <vector>

#include "tests/windows/driver/Driver.h"

namespace driver {

namespace {

struct Pixels {
  int width;
  int height;
  std::vector<std::uint32_t> rows;  ///< from the top
};

BITMAPINFOHEADER HeaderOf(int width, int height) {
  BITMAPINFOHEADER header = {};
  header.biSize = sizeof header;
  header.biWidth = width;
  header.biHeight = -height;
  header.biPlanes = 1;
  header.biBitCount = 32;
  header.biCompression = BI_RGB;
  return header;
}

Pixels TakeFromScreen(const RECT& area) {
  Pixels pixels{area.right - area.left, area.bottom - area.top, {}};
  pixels.rows.resize(static_cast<std::size_t>(pixels.width) *
                     static_cast<std::size_t>(pixels.height));
  const HDC screen = GetDC(nullptr);
  const HDC memory = CreateCompatibleDC(screen);
  const HBITMAP bitmap = CreateCompatibleBitmap(screen, pixels.width, pixels.height);
  const HGDIOBJ before = SelectObject(memory, bitmap);
  BitBlt(memory, 0, 0, pixels.width, pixels.height, screen, area.left, area.top, SRCCOPY);
  SelectObject(memory, before);
  BITMAPINFO info = {};
  info.bmiHeader = HeaderOf(pixels.width, pixels.height);
  GetDIBits(screen, bitmap, 0, static_cast<UINT>(pixels.height), pixels.rows.data(), &info,
            DIB_RGB_COLORS);
  // What a screen has in the fourth byte is nobody's, but readers take it for transparency.
  for (std::uint32_t& pixel : pixels.rows) pixel |= 0xFF000000;
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);
  return pixels;
}

/// As the screen shows a window that has not been painted at all.
bool IsOneColour(const Pixels& pixels) {
  return std::adjacent_find(pixels.rows.begin(), pixels.rows.end(), std::not_equal_to<>()) ==
         pixels.rows.end();
}

/// Painting comes after everything else: takes pictures until they have stayed the same for a
/// while, which is shorter than the caret's blinking.
Pixels TakeWhenPainted(const RECT& area) {
  constexpr int kSameInARow = 6;
  Pixels last = TakeFromScreen(area);
  int same = 0;
  Holds(
      [&] {
        Pixels next = TakeFromScreen(area);
        same = next.rows == last.rows ? same + 1 : 0;
        last = std::move(next);
        return same >= kSameInARow && !IsOneColour(last);
      },
      std::chrono::seconds(10), std::chrono::milliseconds(40));
  return last;
}

void SaveArea(const RECT& area, const std::wstring& path) {
  const Pixels pixels = TakeWhenPainted(area);
  const BITMAPINFOHEADER header = HeaderOf(pixels.width, pixels.height);
  const auto bytes = static_cast<DWORD>(pixels.rows.size() * sizeof pixels.rows[0]);
  BITMAPFILEHEADER file = {};
  file.bfType = 0x4D42;
  file.bfOffBits = sizeof file + sizeof header;
  file.bfSize = file.bfOffBits + bytes;
  std::FILE* const out = _wfopen(path.c_str(), L"wb");
  if (out == nullptr) throw DriverError(L"Cannot write " + path);
  std::fwrite(&file, sizeof file, 1, out);
  std::fwrite(&header, sizeof header, 1, out);
  std::fwrite(pixels.rows.data(), 1, bytes, out);
  std::fclose(out);
}

RECT AreaOf(HWND window) {
  RECT area = {};
  GetWindowRect(window, &area);
  return area;
}

}  // namespace

void SavePicture(HWND window, const std::wstring& path) { SaveArea(AreaOf(window), path); }

void SavePicture(HWND one, HWND other, const std::wstring& path) {
  const RECT first = AreaOf(one);
  const RECT second = AreaOf(other);
  RECT both = {};
  UnionRect(&both, &first, &second);
  SaveArea(both, path);
}

COLORREF ColorAt(HWND window, int x, int y) {
  POINT at = {x, y};
  ClientToScreen(window, &at);
  const Pixels pixel = TakeFromScreen({at.x, at.y, at.x + 1, at.y + 1});
  const std::uint32_t color = pixel.rows[0];
  return RGB((color >> 16) & 0xFF, (color >> 8) & 0xFF, color & 0xFF);
}

}  // namespace driver
