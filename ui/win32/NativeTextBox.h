#pragma once

#include "ui/win32/NativeControl.h"

namespace ui {

class NativeTextBox : public NativeOf<TextBox> {
 public:
  using NativeOf::NativeOf;

  void Push(Property property) override;
  HBRUSH Brush(HDC dc) override;

 protected:
  void TakeChange() override;
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  LRESULT Do(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT Type(WPARAM wParam, LPARAM lParam);
  LRESULT Paste();
  void EraseWord();
  void Replace(std::wstring_view text);
  void Select(int start, int end);
  void TakeSelection();
};

}  // namespace ui
