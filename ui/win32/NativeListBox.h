#pragma once

#include <memory>
#include <type_traits>

#include "ui/win32/NativeControl.h"

namespace ui {

struct FontDeleter {
  void operator()(HFONT font) const { DeleteObject(font); }
};
using FontHandle = std::unique_ptr<std::remove_pointer_t<HFONT>, FontDeleter>;

/// A list of lines in columns, and therefore in a fixed-pitch font.
class NativeListBox : public NativeControl {
 public:
  NativeListBox(ListBox& list, HWND window, Shell& shell);

  void Push(Property property) override;
  void Notified(WORD notification) override;

 protected:
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void UseFixedPitch();
  void PushItems();
  void PushSelection();
  void TakeSelection();

  ListBox& list_;
  FontHandle font_;
  int characterWidth_ = 0;
};

/// The heading of a list: every word of its caption stands over its column of the list box that
/// follows it in the dialog, whatever blanks lie between the words.
class ListHeading : public NativeControl {
 public:
  using NativeControl::NativeControl;

  void Push(Property property) override;
  void Draw(const DRAWITEMSTRUCT& item) override;

 private:
  /// The left edges of the list's columns, in the label's coordinates.
  std::vector<int> ColumnEdges() const;
};

}  // namespace ui
