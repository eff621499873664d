#include "tests/windows/dialog/DialogStage.h"

#include "common/ConstDefintions.h"
#include "tests/ui/FilledDialog.h"
#include "tests/windows/driver/Driver.h"
#include "ui/win32/ControlIds.h"

namespace ui {

DialogStage::DialogStage() : desktop(GetModuleHandleW(nullptr), common::kTitle) {
  form.SetActions(actions);
  general.strFirstFlightNo = L"SK1234";
  mco.strCommission = L"10";
  mco.dblMCOFee = 250.5;
}

DialogStage::~DialogStage() { form.Hide(); }

void DialogStage::UnloadForms() { form.Unload(); }

void DialogStage::EndScript() {
  UnloadForms();
  throw common::EndOfRun();
}

void DialogStage::EndAtOnce() { throw common::EndOfRun(); }

void DialogStage::Run(const std::function<void()>& fill, const std::function<void()>& acts) {
  person_.Run(
      [&] {
        form.Form_Init();
        fill();
        form.LockDocumentFields();
        form.Form_Display(mco, general, tsts, L",");
        desktop.Run();
      },
      acts);
}

void DialogStage::RunFilled(const std::function<void()>& acts) {
  Run([this] { FillDialog(form); }, acts);
}

void DialogStage::RunWithEverythingOn(const std::function<void()>& acts) {
  const auto fill = [this] {
    FillDialog(form);
    form.chkOP.SetValue(true);
    form.chkBOD.SetValue(true);
  };
  Run(fill, acts);
}

void DialogStage::AddTST(const std::wstring& fv, const std::wstring& fm) {
  tst::TSTInfo tst;
  tst.strTSTNum = L"1";
  tst.strFVElementValue = fv;
  tst.strFMElementValue = fm;
  tsts.Add(tst);
}

HWND DialogStage::window() const {
  return driver::WindowNamed(L"  PTA Script - Prepaid Ticket Advice");
}

HWND DialogStage::Item(int id) const { return driver::Item(window(), id); }

HWND DialogStage::Item(std::wstring_view name) const { return Item(ControlId(name)); }

std::wstring DialogStage::Text(int id) const { return driver::TextOf(Item(id)); }

std::wstring DialogStage::Status() const { return driver::StatusText(Item(ID_staStatusText)); }

void DialogStage::GoTo(HWND control) const {
  driver::WaitForFocusWithin(window());
  SendMessageW(window(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
  driver::WaitForFocus(control);
}

void DialogStage::Type(int id, std::wstring_view keys) const {
  GoTo(id);
  driver::Type(Item(id), keys);
}

}  // namespace ui
