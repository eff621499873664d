#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "ui/controls/Control.h"

namespace ui {

class Label : public Control {
 public:
  Label(Form& form, common::Literal name, common::Literal caption = {});
};

/// The heading of the list that follows it: every word of its caption stands over a column of the
/// list, whatever blanks lie between the words.
class ListHeading : public Control {
 public:
  /// `columns` says where the list's columns begin, in characters; they outlast the form.
  ListHeading(Form& form, common::Literal name, common::Literal caption,
              std::span<const int> columns);

  std::span<const int> Columns() const { return columns_; }

 private:
  std::span<const int> columns_;
};

class Frame : public Control {
 public:
  Frame(Form& form, common::Literal name, common::Literal caption);
};

class StatusBar : public Control {
 public:
  StatusBar(Form& form, common::Literal name);
};

/// Background colours: a plain BGR value, or a system colour with the high bit set.
inline constexpr std::uint32_t kYellow = 0x0000FFFF;
inline constexpr std::uint32_t kWindowBackground = 0x80000005;

class TextBox : public Control {
 public:
  TextBox(Form& form, common::Literal name);

  /// Sets the text, unselects, and raises Change, also when the text is the same.
  void SetText(std::wstring_view text) override;

  /// A locked field can be focused, selected and copied, not typed into.
  bool Locked() const { return locked_; }
  void SetLocked(bool locked);

  std::uint32_t BackColor() const { return backColor_; }
  void SetBackColor(std::uint32_t color);

  /// Start counts from 0.
  int SelectionStart() const { return selectionStart_; }
  int SelectionLength() const { return selectionLength_; }
  void Select(int start, int length);
  void SelectAll();

  std::function<void()> onChange;
  /// A character is about to be typed; the handler may change it, or refuse it by 0.
  std::function<void(wchar_t&)> onKeyPress;
  /// What is pasted is changed by this, when it is there, before it goes in.
  std::function<std::wstring(std::wstring_view)> onPaste;

  // For the desktop.
  void TextTyped(std::wstring_view text);
  void SelectionMoved(int start, int length);
  /// The character to type after the handler has seen it; 0 when it is refused.
  wchar_t FilterKey(wchar_t character);

 private:
  bool locked_ = false;
  std::uint32_t backColor_ = kWindowBackground;
  int selectionStart_ = 0;
  int selectionLength_ = 0;
};

class CheckBox : public Control {
 public:
  CheckBox(Form& form, common::Literal name, common::Literal caption);

  bool Value() const { return value_; }
  /// Raises Click when the value changes.
  void SetValue(bool value);

  std::function<void()> onClick;

  /// For the desktop: the user ticked or unticked it.
  void Clicked(bool value);

 private:
  bool value_ = false;
};

class Button : public Control {
 public:
  Button(Form& form, common::Literal name, common::Literal caption);

  std::function<void()> onClick;

  /// For the desktop.
  void Clicked();
};

/// A list box of text lines, each with a number of the program's own. Indexes count from 0.
class ListBox : public Control {
 public:
  enum class Selection { kSingle, kMultiple };
  struct Item {
    std::wstring text;
    std::int32_t data = 0;
    bool selected = false;
  };

  ListBox(Form& form, common::Literal name, Selection selection);

  Selection selection() const { return selection_; }
  const std::vector<Item>& Items() const { return items_; }
  int Count() const { return static_cast<int>(items_.size()); }
  void Add(std::wstring text, std::int32_t data = 0);
  void Clear();

  /// The first selected line, -1 when there is none.
  int ListIndex() const;
  void Select(int index);

  /// For the desktop: the user's selection, one flag a line.
  void SelectionChanged(const std::vector<bool>& selected);

 private:
  Selection selection_;
  std::vector<Item> items_;
};

class Timer : public Control {
 public:
  Timer(Form& form, common::Literal name);

  /// Milliseconds between ticks; 0 is stopped.
  int Interval() const { return interval_; }
  void SetInterval(int milliseconds);

  std::function<void()> onTimer;

  /// For the desktop.
  void Ticked();

 private:
  int interval_ = 0;
};

}  // namespace ui
