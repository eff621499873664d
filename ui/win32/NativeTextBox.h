#pragma once

#include "ui/win32/NativeControl.h"

namespace ui {

class NativeTextBox : public NativeControl {
 public:
  NativeTextBox(TextBox& box, HWND window, Shell& shell);

  void Push(Property property) override;
  void Notified(WORD notification) override;
  HBRUSH Brush(HDC dc) override;

 protected:
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  LRESULT Type(WPARAM wParam, LPARAM lParam);
  void EraseWord();
  LRESULT Paste();
  void TakeSelection();
  std::wstring NativeText() const;

  TextBox& box_;
};

}  // namespace ui
