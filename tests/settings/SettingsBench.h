#pragma once

#include <map>

#include "hostlib/Requests.h"
#include "settings/SettingsFile.h"
#include "tests/support/RoomBench.h"

namespace settings {

/// A form with the controls of the settings, without the dialog's behaviour.
class SettingsForm : public ui::Form {
 public:
  SettingsForm() : Form(L"frmSettings") {}

  ui::TextBox txtIATANumber{*this, L"txtIATANumber"};
  ui::TextBox txtCityCode{*this, L"txtCityCode"};
  ui::CheckBox chkPrintPNR{*this, L"chkPrintPNR", L""};
  ui::CheckBox chkOP{*this, L"chkOP", L""};
  ui::TextBox txtOPText{*this, L"txtOPText"};
  ui::CheckBox chkPanelMode{*this, L"chkPanelMode", L""};
  ui::CheckBox chkBOD{*this, L"chkBOD", L""};
  ui::CheckBox chkPasSegAsso{*this, L"chkPasSegAsso", L""};
  ui::CheckBox chkTKNoUpdate{*this, L"chkTKNoUpdate", L""};
};

/// A settings file of the test's own between the record and the controls.
struct SettingsBench : support::RoomBench {
  using Place = std::pair<std::wstring, std::wstring>;

  SettingsBench() {
    using namespace hostlib::operations::profile_store;
    scripted.On(kReadValue, [this](const hostlib::Arguments& a) {
      const auto found = values.find({a[1].Text(), a[2].Text()});
      return hostlib::Value(found == values.end() ? std::wstring() : found->second);
    });
    scripted.On(kWriteValue, [this](const hostlib::Arguments& a) {
      values[{a[1].Text(), a[2].Text()}] = a[3].Text();
      return hostlib::Value();
    });
  }

  std::map<Place, std::wstring> values;
  IniFile ini{L"C:\\PTA\\PTA_QX.ini", L"ARNAG2100"};
  OfficeProfile profile{library, ini};
  SettingsForm form;
  Settings record;
  SettingsFile file{profile, errors, ini, ControlsOf(form), record};
};

}  // namespace settings
