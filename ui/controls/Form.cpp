#include "ui/controls/Form.h"

namespace ui {

namespace {

/// No form has more.
constexpr std::size_t kMostControls = 64;

}  // namespace

Form::Form(common::Literal name) : name_(name) { controls_.reserve(kMostControls); }

Form::~Form() {
  if (visible_ && view_ != nullptr) view_->FormGone(*this);
}

Control* Form::Find(std::wstring_view name) const {
  for (Control* control : controls_) {
    if (control->name() == name) return control;
  }
  return nullptr;
}

void Form::SetCaption(std::wstring_view caption) {
  caption_ = caption;
  if (view_ != nullptr) view_->FormSet(*this);
}

void Form::SetPointer(MousePointer pointer) {
  pointer_ = pointer;
  if (view_ != nullptr) view_->FormSet(*this);
}

void Form::SetKeyPreview(bool preview) {
  keyPreview_ = preview;
  if (view_ != nullptr) view_->FormSet(*this);
}

void Form::Hide() {
  if (!visible_) return;
  visible_ = false;
  if (view_ != nullptr) view_->FormClosed(*this);
}

void Form::Unload() {
  if (!loaded_) return;
  loaded_ = false;
  Hide();
  active_ = nullptr;
  OnUnload();
}

bool Form::Load() {
  if (!loaded_) {
    loaded_ = true;
    OnLoad();
  }
  return loaded_;
}

void Form::Shown(FormView& view) {
  view_ = &view;
  visible_ = true;
}

void Form::FocusMovedTo(Control* control) {
  if (control == active_) return;
  Control* const left = active_;
  active_ = control;
  const unsigned move = ++focusMoves_;
  if (left != nullptr) OnLostFocus(*left);
  // Without a further move the active control may still be another: unloading leaves none.
  const auto stands = [&] { return move == focusMoves_ && active_ == control; };
  if (control == nullptr || !stands()) return;
  if (control->onGotFocus) control->onGotFocus();
  if (stands()) OnGotFocus(*control);
}

void Form::AskFocus(Control& control) {
  if (visible_ && view_ != nullptr) view_->FocusAsked(control);
}

}  // namespace ui
