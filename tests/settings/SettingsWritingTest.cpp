#include <gtest/gtest.h>

#include "settings/SettingsFile.h"
#include "tests/settings/SettingsBench.h"

namespace settings {
namespace {

using Lines = std::vector<std::wstring>;

const std::wstring kOffice = L"ARNAG2100";

std::wstring WriteOf(const std::wstring& key, const std::wstring& value) {
  return L"ProfileStore.1.8 WriteValue(\"C:\\PTA\\PTA_QX.ini\", \"ARNAG2100\", \"" + key +
         L"\", \"" + value + L"\")";
}

void ChangeEverything(SettingsForm& form) {
  form.txtIATANumber.TextTyped(L"11111111");
  form.txtCityCode.TextTyped(L"GOT");
  form.chkPrintPNR.Clicked(true);
  form.chkOP.Clicked(true);
  form.txtOPText.TextTyped(L"CALL");
  form.chkPanelMode.Clicked(true);
  form.chkBOD.Clicked(true);
  form.chkPasSegAsso.Clicked(true);
  form.chkTKNoUpdate.Clicked(true);
}

TEST(WriteSettings, WhatTheAgentChangedIsWrittenInOrderIntoTheOfficesSection) {
  SettingsBench bench;
  ChangeEverything(bench.form);
  bench.file.WriteSettings();
  EXPECT_EQ(
      bench.TakeCalls(),
      (Lines{WriteOf(L"IATANumber", L"11111111"), WriteOf(L"CityCode", L"GOT"),
             WriteOf(L"PrintPNR", L"Yes"), WriteOf(L"OPElement", L"Yes"),
             WriteOf(L"OPText", L"CALL"), WriteOf(L"PanelMode", L"Yes"), WriteOf(L"B.O.D.", L"Yes"),
             WriteOf(L"PassengerSegmentAsso", L"Yes"), WriteOf(L"NoTKUpdate", L"Yes")}));
}

TEST(WriteSettings, TheRecordFollowsTheScreen) {
  SettingsBench bench;
  ChangeEverything(bench.form);
  bench.file.WriteSettings();
  EXPECT_EQ(bench.record.strIATANumber, L"11111111");
  EXPECT_EQ(bench.record.strCityCode, L"GOT");
  EXPECT_TRUE(bench.record.blnPrintPNR);
  EXPECT_TRUE(bench.record.blnAddOP);
  EXPECT_EQ(bench.record.strOPText, L"CALL");
  EXPECT_TRUE(bench.record.blnPanelMode);
  EXPECT_TRUE(bench.record.blnSendBOD);
  EXPECT_TRUE(bench.record.blnAddPasSegAsso);
  EXPECT_TRUE(bench.record.blnTKNoUpdate);
}

TEST(WriteSettings, AnUnchangedDialogWritesNothing) {
  SettingsBench bench;
  for (const wchar_t* key : {L"PrintPNR", L"OPElement", L"B.O.D."})
    bench.values[{kOffice, key}] = L"Yes";
  bench.values[{L"Settings", L"OPText"}] = L" untrimmed ";
  bench.values[{kOffice, L"PanelMode"}] = L"yes";
  bench.file.ReadSettings();
  bench.TakeCalls();
  bench.file.WriteSettings();
  EXPECT_EQ(bench.TakeCalls(), Lines{});
}

TEST(WriteSettings, AValueThatCameFromTheFixedSectionIsWrittenIntoTheOfficesOwn) {
  SettingsBench bench;
  bench.values[{L"Settings", L"CityCode"}] = L"STO";
  bench.file.ReadSettings();
  bench.form.txtCityCode.TextTyped(L"GOT");
  bench.TakeCalls();
  bench.file.WriteSettings();
  EXPECT_EQ(bench.TakeCalls(), Lines{WriteOf(L"CityCode", L"GOT")});
  EXPECT_EQ((bench.values[{L"Settings", L"CityCode"}]), L"STO");
}

TEST(WriteSettings, ABlankMoreIsADifference) {
  SettingsBench bench;
  bench.values[{kOffice, L"CityCode"}] = L"STO";
  bench.file.ReadSettings();
  bench.form.txtCityCode.TextTyped(L"STO ");
  bench.TakeCalls();
  bench.file.WriteSettings();
  EXPECT_EQ(bench.TakeCalls(), Lines{WriteOf(L"CityCode", L"STO ")});
}

TEST(WriteSettings, ABoxThatWasUntickedIsWrittenAsNo) {
  SettingsBench bench;
  bench.values[{kOffice, L"OPElement"}] = L"Yes";
  bench.file.ReadSettings();
  bench.form.chkOP.SetValue(false);
  bench.TakeCalls();
  bench.file.WriteSettings();
  EXPECT_EQ(bench.TakeCalls(), Lines{WriteOf(L"OPElement", L"No")});
  EXPECT_FALSE(bench.record.blnAddOP);
}

TEST(WriteSettings, AFollowUpTextThatIsSwitchedOffIsNeitherWrittenNorTakenOver) {
  SettingsBench bench;
  bench.record.strOPText = L"OLD";
  bench.form.txtOPText.SetText(L"NEW");
  bench.form.txtOPText.SetEnabled(false);
  bench.file.WriteSettings();
  EXPECT_EQ(bench.TakeCalls(), Lines{});
  EXPECT_EQ(bench.record.strOPText, L"OLD");
}

TEST(WriteSettings, WhatTheDialogDoesNotShowIsNeverWritten) {
  SettingsBench bench;
  bench.record.blnAddRMTotalinBOD = true;
  bench.record.strMandatoryElements = L"AP";
  bench.record.strCountryCode = L"SE";
  bench.file.WriteSettings();
  EXPECT_EQ(bench.TakeCalls(), Lines{});
  EXPECT_TRUE(bench.record.blnAddRMTotalinBOD);
  EXPECT_EQ(bench.record.strMandatoryElements, L"AP");
  EXPECT_EQ(bench.record.strCountryCode, L"SE");
}

TEST(WriteSettings, WithoutAnOfficeNothingIsWrittenAndTheRecordFollowsAllTheSame) {
  SettingsBench bench;
  bench.ini.officeSection = L"";
  ChangeEverything(bench.form);
  bench.file.WriteSettings();
  EXPECT_EQ(bench.TakeCalls(), Lines{});
  EXPECT_EQ(bench.record.strCityCode, L"GOT");
  EXPECT_TRUE(bench.record.blnTKNoUpdate);
}

TEST(WriteSettings, AFailureIsReportedOnceAndTheRecordFollowsTheWholeScreen) {
  SettingsBench bench;
  bench.scripted.Fail(hostlib::operations::profile_store::kWriteValue, 5, L"read-only");
  ChangeEverything(bench.form);
  bench.file.WriteSettings();
  EXPECT_EQ(bench.TakeCalls(),
            (Lines{WriteOf(L"IATANumber", L"11111111") + L" !> read-only",
                   L"ScriptErrorReporter.1.18 ShowError(-2147221476, \"  PTA Script \", \"Error "
                   L"when updating the settings!\", 16)"}));
  EXPECT_EQ(bench.record.strIATANumber, L"11111111");
  EXPECT_TRUE(bench.record.blnTKNoUpdate);
  EXPECT_FALSE(bench.stop.isSet);
}

TEST(WriteSettings, AValueIsWrittenBeforeTheRecordTakesIt) {
  SettingsBench bench;
  std::wstring recordWhenWriting = L"not written";
  bench.scripted.On(hostlib::operations::profile_store::kWriteValue,
                    [&](const hostlib::Arguments&) {
                      recordWhenWriting = bench.record.strCityCode;
                      return hostlib::Value();
                    });
  bench.record.strCityCode = L"STO";
  bench.form.txtCityCode.TextTyped(L"GOT");
  bench.file.WriteSettings();
  EXPECT_EQ(recordWhenWriting, L"STO");
}

}  // namespace
}  // namespace settings
