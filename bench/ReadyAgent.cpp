#include "bench/ReadyAgent.h"

#include <stdexcept>

#include "common/ConstDefintions.h"

namespace bench {
namespace {

void PressOK(ui::Form& form) {
  ui::Control* const ok = form.Find(L"cmdOK");
  if (ok == nullptr || ok->kind() != ui::ControlKind::kButton || !ok->Enabled()) {
    throw std::logic_error("a form's OK can not be pressed");
  }
  static_cast<ui::Button*>(ok)->Clicked();
}

}  // namespace

void ReadyAgent::Show(ui::Form& form) {
  if (!form.Load()) return;
  form.Shown(*this);
  if (form.name() == L"frmPTA") dialog_ = &form;
}

void ReadyAgent::ShowModal(ui::Form& form) {
  if (!form.Load()) return;
  form.Shown(*this);
  if (auto* list = dynamic_cast<ui::ListBox*>(form.Find(L"lstTST"))) {
    list->SelectionChanged(std::vector<bool>(chosen_, true));
  }
  PressOK(form);
}

void ReadyAgent::Run() {
  if (dialog_ != nullptr) PressOK(*dialog_);
}

int ReadyAgent::ShowBox(std::wstring_view text, int, std::wstring_view) {
  lastBox_ = text;
  return common::kOk;
}

}  // namespace bench
