#include <gtest/gtest.h>

#include "settings/SettingsFile.h"
#include "tests/settings/SettingsBench.h"

namespace settings {
namespace {

using Lines = std::vector<std::wstring>;

const std::wstring kOffice = L"ARNAG2100";

std::wstring ReadOf(const std::wstring& section, const std::wstring& key,
                    const std::wstring& value) {
  return L"ProfileStore.1.9 ReadValue(\"C:\\PTA\\PTA_QX.ini\", \"" + section + L"\", \"" + key +
         L"\") -> \"" + value + L"\"";
}

TEST(ReadSettings, TheKeysAreReadInTheirOrder) {
  SettingsBench bench;
  const Lines keys = {L"IATANumber",
                      L"CityCode",
                      L"PrintPNR",
                      L"OPElement",
                      L"OPText",
                      L"PanelMode",
                      L"B.O.D.",
                      L"IncludeRMinBOD",
                      L"PassengerSegmentAsso",
                      L"NoTKUpdate",
                      L"MandatoryElements",
                      L"COUNTRY"};
  Lines expected;
  for (const std::wstring& key : keys) {
    bench.values[{kOffice, key}] = L"X";
    expected.push_back(ReadOf(kOffice, key, L"X"));
  }
  bench.file.ReadSettings();
  EXPECT_EQ(bench.TakeCalls(), expected);
}

TEST(ReadSettings, AKeyThatIsMissingOrEmptyInTheOfficesSectionIsReadFromTheFixedOne) {
  SettingsBench bench;
  bench.values[{kOffice, L"CityCode"}] = L"";
  bench.values[{L"Settings", L"CityCode"}] = L"GOT";
  bench.values[{L"Settings", L"IATANumber"}] = L"80246878";
  bench.file.ReadSettings();
  const Lines calls = bench.TakeCalls();
  ASSERT_GE(calls.size(), 4u);
  EXPECT_EQ(
      Lines(calls.begin(), calls.begin() + 4),
      (Lines{ReadOf(kOffice, L"IATANumber", L""), ReadOf(L"Settings", L"IATANumber", L"80246878"),
             ReadOf(kOffice, L"CityCode", L""), ReadOf(L"Settings", L"CityCode", L"GOT")}));
  EXPECT_EQ(bench.record.strCityCode, L"GOT");
  EXPECT_EQ(bench.record.strIATANumber, L"80246878");
}

TEST(ReadSettings, WithoutAnOfficeTheFixedSectionIsReadAllTheSame) {
  SettingsBench bench;
  bench.ini.officeSection = L"";
  bench.values[{L"Settings", L"CityCode"}] = L"GOT";
  bench.file.ReadSettings();
  EXPECT_EQ(bench.record.strCityCode, L"GOT");
}

TEST(ReadSettings, TextsGoIntoTheRecordAndTheirBoxes) {
  SettingsBench bench;
  bench.values[{kOffice, L"IATANumber"}] = L"80246878";
  bench.values[{kOffice, L"CityCode"}] = L"STO";
  bench.values[{kOffice, L"OPText"}] = L"CHECK IF TICKET OK";
  bench.values[{kOffice, L"MandatoryElements"}] = L"AP,TK";
  bench.values[{kOffice, L"COUNTRY"}] = L"SE";
  bench.file.ReadSettings();
  EXPECT_EQ(bench.record.strIATANumber, L"80246878");
  EXPECT_EQ(bench.form.txtIATANumber.Text(), L"80246878");
  EXPECT_EQ(bench.record.strCityCode, L"STO");
  EXPECT_EQ(bench.form.txtCityCode.Text(), L"STO");
  EXPECT_EQ(bench.record.strOPText, L"CHECK IF TICKET OK");
  EXPECT_EQ(bench.form.txtOPText.Text(), L"CHECK IF TICKET OK");
  EXPECT_EQ(bench.record.strMandatoryElements, L"AP,TK");
  EXPECT_EQ(bench.record.strCountryCode, L"SE");
}

struct FlagKey {
  const wchar_t* key;
  bool Settings::*field;
  ui::CheckBox SettingsForm::*check;  // null: the dialog does not show it
};

class ReadFlag : public testing::TestWithParam<FlagKey> {};

TEST_P(ReadFlag, OnlyTheExactYesIsTrue) {
  const auto [key, field, check] = GetParam();
  for (const wchar_t* no : {L"", L"yes", L"YES", L"True", L"1", L"No", L"Yes ", L" Yes"}) {
    SettingsBench bench;
    bench.values[{kOffice, key}] = no;
    bench.file.ReadSettings();
    EXPECT_FALSE(bench.record.*field) << no;
    if (check == nullptr) continue;
    EXPECT_FALSE((bench.form.*check).Value()) << no;
  }
  SettingsBench bench;
  bench.values[{kOffice, key}] = L"Yes";
  bench.file.ReadSettings();
  EXPECT_TRUE(bench.record.*field);
  if (check == nullptr) return;
  EXPECT_TRUE((bench.form.*check).Value());
}

TEST_P(ReadFlag, AnotherTextUnticksTheBox) {
  const auto [key, field, check] = GetParam();
  if (check == nullptr) return;
  SettingsBench bench;
  (bench.form.*check).SetValue(true);
  bench.file.ReadSettings();
  EXPECT_FALSE((bench.form.*check).Value());
}

TEST_P(ReadFlag, OnlyItsOwnFieldIsSet) {
  const auto param = GetParam();
  SettingsBench bench;
  bench.values[{kOffice, param.key}] = L"Yes";
  bench.file.ReadSettings();
  const Settings& s = bench.record;
  const int set = s.blnPrintPNR + s.blnAddOP + s.blnPanelMode + s.blnSendBOD +
                  s.blnAddRMTotalinBOD + s.blnAddPasSegAsso + s.blnTKNoUpdate + s.blnAddMCOInfo;
  EXPECT_EQ(set, 1);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, ReadFlag,
    testing::Values(
        FlagKey{L"PrintPNR", &Settings::blnPrintPNR, &SettingsForm::chkPrintPNR},
        FlagKey{L"OPElement", &Settings::blnAddOP, &SettingsForm::chkOP},
        FlagKey{L"PanelMode", &Settings::blnPanelMode, &SettingsForm::chkPanelMode},
        FlagKey{L"B.O.D.", &Settings::blnSendBOD, &SettingsForm::chkBOD},
        FlagKey{L"IncludeRMinBOD", &Settings::blnAddRMTotalinBOD, nullptr},
        FlagKey{L"PassengerSegmentAsso", &Settings::blnAddPasSegAsso, &SettingsForm::chkPasSegAsso},
        FlagKey{L"NoTKUpdate", &Settings::blnTKNoUpdate, &SettingsForm::chkTKNoUpdate}));

TEST(ReadSettings, AFailureIsReportedAndWhatWasReadBeforeStays) {
  SettingsBench bench;
  bench.scripted.On(hostlib::operations::profile_store::kReadValue,
                    [](const hostlib::Arguments& a) -> hostlib::Value {
                      if (a[2].Text() == L"IATANumber") return L"80246878";
                      throw hostlib::LibraryError(5, L"test", L"no file");
                    });
  bench.file.ReadSettings();
  EXPECT_EQ(bench.TakeCalls(),
            (Lines{ReadOf(kOffice, L"IATANumber", L"80246878"),
                   L"ProfileStore.1.9 ReadValue(\"C:\\PTA\\PTA_QX.ini\", \"ARNAG2100\", "
                   L"\"CityCode\") !> no file",
                   L"ScriptErrorReporter.1.18 ShowError(-2147221475, \"  PTA Script \", \"Error "
                   L"when getting the settings!\", 16)"}));
  EXPECT_EQ(bench.record.strIATANumber, L"80246878");
  EXPECT_FALSE(bench.stop.isSet);
}

}  // namespace
}  // namespace settings
