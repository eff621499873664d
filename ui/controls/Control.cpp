#include "ui/controls/Control.h"

#include "ui/controls/Form.h"

namespace ui {

Control::Control(Form& form, ControlKind kind, common::Literal name, common::Literal caption)
    : form_(form), kind_(kind), name_(name), text_(caption) {
  form_.Add(*this);
}

void Control::SetText(std::wstring_view text) {
  StoreText(text);
  PropertySet(Property::kText);
}

void Control::StoreText(std::wstring_view text) {
  set_ = text;
  text_ = set_;
}

void Control::SetEnabled(bool enabled) {
  enabled_ = enabled;
  PropertySet(Property::kEnabled);
}

bool Control::TakesFocus() const {
  return kind_ == ControlKind::kTextBox || kind_ == ControlKind::kCheckBox ||
         kind_ == ControlKind::kButton || kind_ == ControlKind::kListBox;
}

void Control::SetFocus() {
  if (CanFocus()) form_.AskFocus(*this);
}

bool Control::HasFocus() const { return form_.ActiveControl() == this; }

void Control::PropertySet(Property property) {
  if (form_.view() != nullptr) form_.view()->ControlSet(*this, property);
}

}  // namespace ui
