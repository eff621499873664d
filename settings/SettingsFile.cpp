#include "settings/SettingsFile.h"

namespace settings {
namespace {

constexpr std::wstring_view kDefaultSection = L"Settings";
constexpr std::wstring_view kYes = L"Yes";
constexpr std::wstring_view kNo = L"No";

}  // namespace

SettingsFile::SettingsFile(const OfficeProfile& profile, errors::ErrorHandler& errors,
                           const IniFile& file, const SettingsControls& controls,
                           Settings& settings)
    : profile_(profile),
      errors_(errors),
      file_(file),
      settings_(settings),
      entries_(EntriesOf(controls)) {}

// In the order of reading, which is that of writing, too.
SettingsFile::Entries SettingsFile::EntriesOf(const SettingsControls& controls) {
  const auto text = [](common::Literal key, std::wstring Settings::*field,
                       ui::TextBox* box = nullptr) {
    return Entry{key, field, box};
  };
  const auto flag = [](common::Literal key, bool Settings::*field, ui::CheckBox* check = nullptr) {
    return Entry{key, nullptr, nullptr, field, check};
  };
  return {text(L"IATANumber", &Settings::strIATANumber, &controls.txtIATANumber),
          text(L"CityCode", &Settings::strCityCode, &controls.txtCityCode),
          flag(L"PrintPNR", &Settings::blnPrintPNR, &controls.chkPrintPNR),
          flag(L"OPElement", &Settings::blnAddOP, &controls.chkOP),
          text(L"OPText", &Settings::strOPText, &controls.txtOPText),
          flag(L"PanelMode", &Settings::blnPanelMode, &controls.chkPanelMode),
          flag(L"B.O.D.", &Settings::blnSendBOD, &controls.chkBOD),
          flag(L"IncludeRMinBOD", &Settings::blnAddRMTotalinBOD),
          flag(L"PassengerSegmentAsso", &Settings::blnAddPasSegAsso, &controls.chkPasSegAsso),
          flag(L"NoTKUpdate", &Settings::blnTKNoUpdate, &controls.chkTKNoUpdate),
          text(L"MandatoryElements", &Settings::strMandatoryElements),
          text(L"COUNTRY", &Settings::strCountryCode)};
}

void SettingsFile::ReadSettings() {
  errors_.Run(errors::procedures::kReadSettings, [&] {
    for (const Entry& entry : entries_) Read(entry);
  });
}

void SettingsFile::Read(const Entry& entry) {
  std::wstring value = profile_.Read(entry.key, kDefaultSection, entry.key);
  if (entry.text != nullptr) {
    settings_.*entry.text = std::move(value);
    if (entry.box != nullptr) entry.box->SetText(settings_.*entry.text);
  } else {
    settings_.*entry.flag = value == kYes;
    if (entry.check != nullptr) entry.check->SetValue(value == kYes);
  }
}

void SettingsFile::WriteSettings() {
  errors_.Run(errors::procedures::kWriteSettings, [&] {
    for (const Entry& entry : entries_) {
      if (!Differs(entry)) continue;
      if (!file_.officeSection.empty()) Write(entry);
      FollowScreen(entry);
    }
  });
  // The file may refuse; the update that follows must still do what the agent sees.
  for (const Entry& entry : entries_) {
    if (Differs(entry)) FollowScreen(entry);
  }
}

bool SettingsFile::Differs(const Entry& entry) const {
  if (entry.check != nullptr) return entry.check->Value() != settings_.*entry.flag;
  // Only the text of the follow-up is ever switched off; it is then not the agent's word.
  return entry.box != nullptr && entry.box->Enabled() && entry.box->Text() != settings_.*entry.text;
}

void SettingsFile::Write(const Entry& entry) const {
  if (entry.box != nullptr) {
    profile_.Write(entry.key, entry.box->Text());
  } else {
    profile_.Write(entry.key, entry.check->Value() ? kYes : kNo);
  }
}

void SettingsFile::FollowScreen(const Entry& entry) {
  if (entry.box != nullptr) {
    settings_.*entry.text = entry.box->Text();
  } else {
    settings_.*entry.flag = entry.check->Value();
  }
}

}  // namespace settings
