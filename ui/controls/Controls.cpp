#include "ui/controls/Controls.h"

#include <algorithm>

namespace ui {

using common::Literal;

Label::Label(Form& form, Literal name, Literal caption)
    : Control(form, ControlKind::kLabel, name, caption) {}

ListHeading::ListHeading(Form& form, Literal name, Literal caption, std::span<const int> columns)
    : Control(form, ControlKind::kListHeading, name, caption), columns_(columns) {}

Frame::Frame(Form& form, Literal name, Literal caption)
    : Control(form, ControlKind::kFrame, name, caption) {}

StatusBar::StatusBar(Form& form, Literal name) : Control(form, ControlKind::kStatusBar, name) {}

TextBox::TextBox(Form& form, Literal name) : Control(form, ControlKind::kTextBox, name) {}

void TextBox::SetText(std::wstring_view text) {
  selectionStart_ = 0;
  selectionLength_ = 0;
  Control::SetText(text);
  if (onChange) onChange();
}

void TextBox::SetLocked(bool locked) {
  locked_ = locked;
  PropertySet(Property::kLocked);
}

void TextBox::SetBackColor(std::uint32_t color) {
  if (backColor_ == color) return;
  backColor_ = color;
  PropertySet(Property::kBackColor);
}

void TextBox::Select(int start, int length) {
  SelectionMoved(start, length);
  PropertySet(Property::kSelection);
}

void TextBox::SelectAll() { Select(0, static_cast<int>(Text().size())); }

void TextBox::TextTyped(std::wstring_view text) {
  StoreText(text);
  SelectionMoved(selectionStart_, 0);
  if (onChange) onChange();
}

void TextBox::SelectionMoved(int start, int length) {
  const int end = static_cast<int>(Text().size());
  selectionStart_ = std::clamp(start, 0, end);
  selectionLength_ = std::clamp(length, 0, end - selectionStart_);
}

wchar_t TextBox::FilterKey(wchar_t character) {
  if (onKeyPress) onKeyPress(character);
  return character;
}

CheckBox::CheckBox(Form& form, Literal name, Literal caption)
    : Control(form, ControlKind::kCheckBox, name, caption) {}

void CheckBox::SetValue(bool value) {
  if (value_ == value) return;
  value_ = value;
  PropertySet(Property::kValue);
  if (onClick) onClick();
}

void CheckBox::Clicked(bool value) {
  value_ = value;
  if (onClick) onClick();
}

Button::Button(Form& form, Literal name, Literal caption)
    : Control(form, ControlKind::kButton, name, caption) {}

void Button::Clicked() {
  if (onClick) onClick();
}

ListBox::ListBox(Form& form, Literal name, Selection selection)
    : Control(form, ControlKind::kListBox, name), selection_(selection) {}

void ListBox::Add(std::wstring text, std::int32_t data) {
  items_.push_back({std::move(text), data, false});
  PropertySet(Property::kItems);
}

void ListBox::Clear() {
  items_.clear();
  PropertySet(Property::kItems);
}

int ListBox::ListIndex() const {
  const auto first =
      std::find_if(items_.begin(), items_.end(), [](const Item& item) { return item.selected; });
  return first == items_.end() ? -1 : static_cast<int>(first - items_.begin());
}

void ListBox::Select(int index) {
  for (std::size_t i = 0; i < items_.size(); ++i) {
    const bool isIt = static_cast<int>(i) == index;
    items_[i].selected = isIt || (selection_ == Selection::kMultiple && items_[i].selected);
  }
  PropertySet(Property::kSelection);
}

void ListBox::SelectionChanged(const std::vector<bool>& selected) {
  for (std::size_t i = 0; i < items_.size(); ++i) {
    items_[i].selected = i < selected.size() && selected[i];
  }
}

Timer::Timer(Form& form, Literal name) : Control(form, ControlKind::kTimer, name) {}

void Timer::SetInterval(int milliseconds) {
  interval_ = milliseconds;
  PropertySet(Property::kInterval);
}

void Timer::Ticked() {
  if (onTimer) onTimer();
}

}  // namespace ui
