#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "common/Literal.h"

namespace ui {

class Form;

/// What of a control the program has set, for the desktop that shows it.
enum class Property {
  kText,
  kEnabled,
  kLocked,
  kValue,
  kBackColor,
  kSelection,
  kItems,
  kInterval,
};

enum class ControlKind {
  kLabel,
  kListHeading,
  kFrame,
  kTextBox,
  kCheckBox,
  kButton,
  kListBox,
  kStatusBar,
  kTimer
};

/// A control of a form, with no window behind it. The program's own sets go to the desktop that
/// shows the form; what the user does comes from the desktop and raises only the event.
class Control {
 public:
  Control(Form& form, ControlKind kind, common::Literal name, common::Literal caption = {});
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  ControlKind kind() const { return kind_; }
  std::wstring_view name() const { return name_; }
  Form& form() const { return form_; }

  /// The text of a text box or status bar; the caption of everything else. Stands until the next
  /// one is set.
  std::wstring_view Text() const { return text_; }
  virtual void SetText(std::wstring_view text);

  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);

  /// Whether it is there for the user to act on. Labels, frames and the status bar are only looked
  /// at.
  bool TakesFocus() const;
  /// Whether the user can move the focus here now.
  bool CanFocus() const { return TakesFocus() && enabled_; }
  /// Moves the focus here. Nothing happens while the form is not visible or the control is off.
  void SetFocus();
  bool HasFocus() const;

  /// The focus comes here; the form's own OnGotFocus follows.
  std::function<void()> onGotFocus;

 protected:
  void PropertySet(Property property);
  void StoreText(std::wstring_view text);

 private:
  Form& form_;
  ControlKind kind_;
  common::Literal name_;
  std::wstring_view text_;  ///< its caption, until another one is set
  std::wstring set_;
  bool enabled_ = true;
};

}  // namespace ui
