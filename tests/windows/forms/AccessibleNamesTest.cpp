#include <gtest/gtest.h>
#include <oleacc.h>

#include "tests/windows/driver/Driver.h"
#include "tests/windows/forms/AllForms.h"

namespace ui {

namespace {

/// COM for this thread, while it stands.
class Com {
 public:
  Com() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
  ~Com() { CoUninitialize(); }
  Com(const Com&) = delete;
  Com& operator=(const Com&) = delete;
};

/// What a screen reader calls this window.
std::wstring AccessibleName(HWND window) {
  IAccessible* accessible = nullptr;
  AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                             reinterpret_cast<void**>(&accessible));
  if (accessible == nullptr) return L"(not accessible)";
  VARIANT self = {};
  self.vt = VT_I4;
  self.lVal = CHILDID_SELF;
  BSTR name = nullptr;
  accessible->get_accName(self, &name);
  accessible->Release();
  const std::wstring text = name == nullptr ? std::wstring() : std::wstring(name);
  SysFreeString(name);
  return text;
}

using Names = std::vector<std::pair<std::wstring, std::wstring>>;

Names NamesOf(Form& form, ControlKind kind) {
  const Com com;
  const OpenForm open(form);
  Names names;
  for (const Control* control : form.controls()) {
    if (control->kind() != kind) continue;
    names.emplace_back(control->name(), AccessibleName(open.Item(control->name())));
  }
  return names;
}

TEST(AccessibleNames, EveryFieldOfTheDialogHasOneOfItsOwn) {
  Forms forms;
  EXPECT_EQ(NamesOf(forms.pta, ControlKind::kTextBox),
            (Names{{L"txtOPText", L"Text:"},
                   {L"txtRMBODInfo", L"RM* Info:"},
                   {L"txtFormOfPayment", L"Form of Payment:"},
                   {L"txtAirlinePrefix", L"MCO Number, airline prefix:"},
                   {L"txtMCONumber", L"MCO Number:"},
                   {L"txtCarrier", L"Airline:"},
                   {L"txtCommission", L"Commission:"},
                   {L"txtCityCode", L"City Code:"},
                   {L"txtIATANumber", L"IATA Number:"},
                   {L"txtMCOFee", L"MCO Fee:"},
                   {L"txtPWCT", L"PWCT:"},
                   {L"txtPTA", L"PTA Total:"},
                   {L"txtQueueingOfficeID", L"Office ID:"},
                   {L"txtQueueCat", L"Number/Category:"}}));
}

TEST(AccessibleNames, TheDialogsBoxesButtonsAndFramesAreCalledWhatTheySay) {
  Forms forms;
  for (const ControlKind kind :
       {ControlKind::kCheckBox, ControlKind::kButton, ControlKind::kFrame}) {
    for (const auto& [control, name] : NamesOf(forms.pta, kind)) {
      EXPECT_EQ(name, forms.pta.Find(control)->Text());
    }
  }
}

}  // namespace

}  // namespace ui
