#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "common/Literal.h"
#include "ui/controls/Controls.h"

namespace ui {

enum class MousePointer { kDefault = 0, kHourglass = 11 };

/// The desktop behind a form that it shows. Every call comes from a set that the program made.
class FormView {
 public:
  virtual ~FormView() = default;
  virtual void ControlSet(Control& control, Property property) = 0;
  /// Caption, mouse pointer or key preview.
  virtual void FormSet(Form& form) = 0;
  /// Answered by Form::FocusMovedTo, at once or when the window system has moved it.
  virtual void FocusAsked(Control& control) = 0;
  /// The form is no longer visible (hidden or unloaded). It may be shown again.
  virtual void FormClosed(Form& form) = 0;
  /// The form is destroyed while it is visible; its controls are gone already.
  virtual void FormGone(Form& /*form*/) {}
};

/// A form: its controls as members under their own names, its behaviour in its handlers, no window
/// handle anywhere. A Desktop shows it.
class Form {
 public:
  explicit Form(common::Literal name);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  /// As given to the constructor; it lasts as long as the program.
  std::wstring_view name() const { return name_; }
  /// In the order in which they were made: the tab order.
  const std::vector<Control*>& controls() const { return controls_; }
  /// Null when the form has no control of that name.
  Control* Find(std::wstring_view name) const;

  const std::wstring& Caption() const { return caption_; }
  void SetCaption(std::wstring_view caption);
  MousePointer Pointer() const { return pointer_; }
  void SetPointer(MousePointer pointer);
  /// Kept for the record: nothing reads the flag, and F2, the key it was for, is unbound.
  bool KeyPreview() const { return keyPreview_; }
  void SetKeyPreview(bool preview);

  /// Expires with the form, for whoever looks at it without owning it.
  std::weak_ptr<const void> Life() const { return life_; }

  bool IsLoaded() const { return loaded_; }
  bool IsVisible() const { return visible_; }
  void Hide();
  /// Hides the form, forgets that it was loaded and lets it release what it holds.
  void Unload();

  /// The control that has, or will have, the focus; null when none has.
  Control* ActiveControl() const { return active_; }

  /// The user closes the window by its close box, its menu or Esc.
  virtual void OnCloseBox() {}
  // The focus leaves a control, then comes to one. What differs from control to control is its own.
  virtual void OnLostFocus(Control& /*control*/) {}
  virtual void OnGotFocus(Control& /*control*/) {}
  /// A key goes down on the control; virtual-key code (112 is F1).
  virtual void OnKeyDown(Control& /*control*/, int /*key*/) {}

  // For the desktop.

  /// Loads the form when it is not loaded yet. False when it unloaded itself while loading.
  bool Load();
  /// The form becomes visible in `view`, which stays attached until the next one.
  void Shown(FormView& view);
  void Detach() { view_ = nullptr; }
  FormView* view() const { return view_; }
  /// Raises LostFocus, then GotFocus unless the first moved the focus on, be it to the same control
  /// in the end.
  void FocusMovedTo(Control* control);

 protected:
  virtual void OnLoad() {}
  virtual void OnUnload() {}

 private:
  friend class Control;
  void Add(Control& control) { controls_.push_back(&control); }
  void AskFocus(Control& control);

  common::Literal name_;
  std::wstring caption_;
  std::shared_ptr<const bool> life_ = std::make_shared<const bool>(true);
  std::vector<Control*> controls_;
  MousePointer pointer_ = MousePointer::kDefault;
  bool keyPreview_ = false;
  bool loaded_ = false;
  bool visible_ = false;
  Control* active_ = nullptr;
  unsigned focusMoves_ = 0;
  FormView* view_ = nullptr;
};

}  // namespace ui
