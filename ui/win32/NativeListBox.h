#pragma once

#include <type_traits>

#include "ui/win32/NativeControl.h"

namespace ui {

struct FontDeleter {
  void operator()(HFONT font) const { DeleteObject(font); }
};
using FontHandle = std::unique_ptr<std::remove_pointer_t<HFONT>, FontDeleter>;

/// A list of lines in columns, and therefore in a fixed-pitch font.
class NativeListBox : public NativeOf<ListBox> {
 public:
  NativeListBox(Control& list, HWND window, Shell& shell);

  void Push(Property property) override;

 protected:
  void TakeChange() override;
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void UseFixedPitch();
  void PushItems();
  void PushSelection();

  FontHandle font_;
};

/// Stands over the list box that follows it in the dialog, in an owner-drawn label.
class NativeListHeading : public NativeOf<ListHeading> {
 public:
  using NativeOf::NativeOf;

  void Draw(const DRAWITEMSTRUCT& item) override;
};

}  // namespace ui
