#pragma once

#include "mco/frmSelectMCO.h"
#include "tests/mco/WaitBench.h"
#include "tst/frmSelectTST.h"
#include "ui/frmPTA.h"
#include "ui/frmWorking.h"
#include "ui/win32/ControlIds.h"
#include "ui/win32/FormWindow.h"

namespace ui {

/// All forms of the product, with what they are made of.
struct Forms {
  mco::WaitBench bench;
  frmWorking working;
  frmPTA pta{bench.desktop, bench.errors, bench.runEnd};
  mco::frmSelectMCO selectMCO;
  tst::frmSelectTST selectTST{bench.desktop, bench.runEnd};
  std::vector<Form*> all{&working, &pta, &selectMCO, &bench.form, &selectTST};
};

/// A form in its own window, which is not shown.
class OpenForm {
 public:
  explicit OpenForm(Form& form) : window_(form, GetModuleHandleW(nullptr), nullptr, shell_) {}

  HWND handle() const { return window_.handle(); }
  HWND Item(int id) const { return GetDlgItem(handle(), id); }
  HWND Item(std::wstring_view name) const { return Item(ControlId(name)); }

 private:
  Guard guard_;
  InputGate gate_;
  Shell shell_{guard_, gate_};
  FormWindow window_;
};

}  // namespace ui
