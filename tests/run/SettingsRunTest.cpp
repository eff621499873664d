#include <gtest/gtest.h>

#include "hostlib/Interposer.h"
#include "tests/run/Scenes.h"

// The settings from the file into the dialog, into the host's entries and back into the file.
namespace run {
namespace {

/// What the file of the ordinary booking says, with keys of the office and of the fixed section.
practice::RehearsalScene SceneWithIni(std::wstring_view office, std::wstring_view settings) {
  auto scene = OrdinaryScene();
  scene.ini = L"[ARNAG2100]\nOfficeIDSK=XXXSK08AA\n" + std::wstring(office) + L"[Settings]\n" +
              std::wstring(settings);
  return scene;
}

/// An agent who only looks.
void ExpectSeen(practice::RehearsalScene scene, std::wstring_view see) {
  scene.agent = L"form frmPTA\n" + std::wstring(see) + L"click cmdCancel\n";
  RehearseInAgreement(scene);
}

/// An agent who does this in the dialog and then lets the script write.
practice::RehearsalOutcome AfterDoing(practice::RehearsalScene scene, std::wstring_view doing) {
  scene.agent = L"form frmPTA\n" + std::wstring(doing) + L"click cmdOK\n";
  return RehearseInAgreement(scene);
}

Lines Written(const practice::RehearsalOutcome& outcome) {
  Lines written;
  const std::wstring before = L"ProfileStore.1.8 WriteValue(\"C:\\PTA\\PTA_QX.ini\", ";
  for (const std::wstring& call : CallsOf(outcome, L"ProfileStore.1.8")) {
    EXPECT_TRUE(call.starts_with(before));
    written.push_back(call.substr(before.size()));
  }
  return written;
}

TEST(SettingsRun, TheOfficesSectionWinsAndWhatIsMissingOrEmptyThereComesFromSettings) {
  ExpectSeen(SceneWithIni(L"IATANumber=80246878\nCityCode=\nPrintPNR=No\nOPText=\n",
                          L"IATANumber=11111111\nCityCode=GOT\nPrintPNR=Yes\nOPElement=Yes\n"
                          L"OPText=CALL\nPanelMode=Yes\nB.O.D.=Yes\nPassengerSegmentAsso=Yes\n"
                          L"NoTKUpdate=Yes\n"),
             L"see txtIATANumber \"80246878\"\n"
             L"see txtCityCode \"GOT\"\n"
             L"state chkPrintPNR not-ticked\n"
             L"state chkOP ticked\n"
             L"see txtOPText \"CALL\"\n"
             L"state txtOPText not-off\n"
             L"state chkPanelMode ticked\n"
             L"state chkBOD ticked\n"
             L"state txtRMBODInfo not-off\n"
             L"state chkPasSegAsso ticked\n"
             L"state chkPasSegAsso not-off\n"
             L"state chkTKNoUpdate ticked\n");
}

TEST(SettingsRun, OnlyTheExactYesTicksABox) {
  for (const std::wstring no : {L"yes", L"YES", L"True", L"1", L"Ja"}) {
    ExpectSeen(SceneWithIni(L"PrintPNR=" + no + L"\nOPElement=" + no + L"\nPanelMode=" + no +
                                L"\nB.O.D.=" + no + L"\nNoTKUpdate=" + no +
                                L"\nPassengerSegmentAsso=" + no + L"\n",
                            L"PrintPNR=Yes\n"),
               L"state chkPrintPNR not-ticked\n"
               L"state chkOP not-ticked\n"
               L"state txtOPText off\n"
               L"state chkPanelMode not-ticked\n"
               L"state chkBOD not-ticked\n"
               L"state txtRMBODInfo off\n"
               L"state chkPasSegAsso not-ticked\n"
               L"state chkPasSegAsso off\n"
               L"state chkTKNoUpdate not-ticked\n");
  }
}

TEST(SettingsRun, WithoutAnySettingTheAgentFillsThemInAndTheyAreKept) {
  const auto outcome = AfterDoing(SceneWithIni(L"", L""),
                                  L"state txtIATANumber yellow\n"
                                  L"state txtCityCode yellow\n"
                                  L"state cmdOK off\n"
                                  L"type txtIATANumber \"80246878\"\n"
                                  L"type txtCityCode \"sto\"\n");
  EXPECT_EQ(outcome.iniAfter,
            L"[ARNAG2100]\nOfficeIDSK=XXXSK08AA\r\nIATANumber=80246878\r\nCityCode=STO\n"
            L"[Settings]\n");
  EXPECT_TRUE(Holds(NewElements(outcome), L"FO 117-4012345678 STO 80246878 [P1]"));
}

TEST(SettingsRun, WhatTheAgentChangesIsWrittenInOrderAndRulesThisRunAlready) {
  const auto outcome = AfterDoing(OrdinaryScene(),
                                  L"type txtIATANumber \"11111111\"\n"
                                  L"type txtCityCode \"GOT\"\n"
                                  L"click chkPrintPNR\n"
                                  L"type txtOPText \"CALL\"\n"
                                  L"click chkPanelMode\n"
                                  L"click chkPasSegAsso\n"
                                  L"click chkBOD\n"
                                  L"click chkTKNoUpdate\n");
  EXPECT_EQ(Written(outcome),
            (Lines{L"\"ARNAG2100\", \"IATANumber\", \"11111111\")",
                   L"\"ARNAG2100\", \"CityCode\", \"GOT\")",
                   L"\"ARNAG2100\", \"PrintPNR\", \"No\")", L"\"ARNAG2100\", \"OPText\", \"CALL\")",
                   L"\"ARNAG2100\", \"PanelMode\", \"Yes\")", L"\"ARNAG2100\", \"B.O.D.\", \"No\")",
                   L"\"ARNAG2100\", \"PassengerSegmentAsso\", \"Yes\")",
                   L"\"ARNAG2100\", \"NoTKUpdate\", \"Yes\")"}));
  EXPECT_TRUE(Holds(NewElements(outcome), L"FO 117-4012345678 GOT 11111111 [P1]"));
  EXPECT_TRUE(Holds(NewElements(outcome), L"OP 16MAR07 CALL"));
  const Lines entries = outcome.EntryTexts();
  EXPECT_FALSE(Holds(entries, L"CH 5 OK/STOSK08AA"));
  EXPECT_FALSE(Holds(entries, L"PRINT RT"));
  EXPECT_FALSE(Holds(entries, L"BT RETAIN"));
}

TEST(SettingsRun, TheNextRunFindsWhatWasWritten) {
  auto scene = OrdinaryScene();
  scene.ini =
      AfterDoing(scene, L"type txtCityCode \"GOT\"\nclick chkPrintPNR\nclick chkOP\n").iniAfter;
  ExpectSeen(scene,
             L"see txtCityCode \"GOT\"\n"
             L"state chkPrintPNR not-ticked\n"
             L"state chkOP not-ticked\n"
             L"see txtOPText \"CHECK IF TICKET OK\"\n");
}

TEST(SettingsRun, AnUntickedFollowUpIsWrittenAsNoAndItsTextIsNot) {
  const auto scene = OrdinaryScene();
  const auto outcome = AfterDoing(scene, L"type txtOPText \"CALL\"\nclick chkOP\n");
  EXPECT_EQ(Written(outcome), Lines{L"\"ARNAG2100\", \"OPElement\", \"No\")"});
  std::wstring expected = scene.ini;
  Change(expected, L"OPElement=Yes", L"OPElement=No");
  EXPECT_EQ(outcome.iniAfter, expected);
}

TEST(SettingsRun, AFollowUpThatThePNRHoldsAlreadyIsWrittenAsNo) {
  const auto scene = SceneOf("follow-up-there");
  const auto outcome = AfterDoing(scene, L"state chkOP not-ticked\n");
  EXPECT_EQ(Written(outcome), Lines{L"\"ARNAG2100\", \"OPElement\", \"No\")"});
}

TEST(SettingsRun, AChangedValueOfSettingsIsWrittenIntoTheOfficesSection) {
  const auto outcome =
      AfterDoing(SceneWithIni(L"IATANumber=80246878\n", L"CityCode=STO\nPrintPNR=Yes\n"),
                 L"type txtCityCode \"GOT\"\nclick chkPrintPNR\n");
  EXPECT_EQ(outcome.iniAfter,
            L"[ARNAG2100]\nOfficeIDSK=XXXSK08AA\nIATANumber=80246878\r\nCityCode=GOT\r\n"
            L"PrintPNR=No\n[Settings]\nCityCode=STO\nPrintPNR=Yes\n");
}

TEST(SettingsRun, AnUnchangedDialogWritesNothingEvenWhenEverythingCameFromSettings) {
  const auto scene = SceneWithIni(L"PanelMode=yes\n",
                                  L"IATANumber=80246878\nCityCode=STO\nOPElement=Yes\n"
                                  L"OPText=CALL\nB.O.D.=Yes\n");
  const auto outcome = AfterDoing(scene, L"");
  EXPECT_EQ(Written(outcome), Lines{});
  EXPECT_EQ(outcome.iniAfter, scene.ini);
}

TEST(SettingsRun, AnInvalidFieldAndCancelWriteNothing) {
  auto scene = OrdinaryScene();
  scene.agent =
      L"form frmPTA\ntype txtCityCode \"GO\"\nclick cmdOK\n"
      L"box ok \"Invalid City Code, must be three letters !\" 64 \"Invalid Field !\"\n"
      L"state txtCityCode focused\nclick cmdCancel\n";
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_EQ(Written(outcome), Lines{});
  EXPECT_EQ(outcome.iniAfter, scene.ini);
}

TEST(SettingsRun, WithAnEmptyOfficeOfTodayTheHostIsNotAskedAndNothingIsWritten) {
  auto scene = SceneWithIni(L"", L"IATANumber=80246878\nCityCode=STO\nPrintPNR=Yes\n");
  scene.office.clear();
  scene.officeDate = L"2007-02-20";
  const auto outcome =
      AfterDoing(scene, L"see txtCityCode \"STO\"\ntype txtCityCode \"GOT\"\nclick chkPrintPNR\n");
  EXPECT_EQ(outcome.EntryTexts().front(), L"RT");
  EXPECT_EQ(Written(outcome), Lines{});
  EXPECT_EQ(outcome.iniAfter, scene.ini);
  EXPECT_TRUE(Holds(NewElements(outcome), L"FO 117-4012345678 GOT 80246878 [P1]"));
  EXPECT_FALSE(Holds(outcome.EntryTexts(), L"PRINT RT"));
}

/// A store of INI files that nobody may write into.
class ReadOnlyFile : public hostlib::CallHook {
 public:
  hostlib::Value OnCall(const hostlib::CallInfo& call,
                        const std::function<hostlib::Value()>& proceed) override {
    if (Is(call.operation, hostlib::operations::profile_store::kWriteValue)) {
      throw hostlib::LibraryError(5, L"test", L"read-only");
    }
    return proceed();
  }
};

TEST(SettingsRun, AFileThatRefusesIsReportedOnceAndTheRunGoesByTheScreen) {
  ReadOnlyFile readOnly;
  auto scene = OrdinaryScene();
  scene.decorate = [&readOnly](hostlib::Library& inner) -> std::unique_ptr<hostlib::Library> {
    return std::make_unique<hostlib::InterposedLibrary>(inner, readOnly);
  };
  scene.agent =
      L"form frmPTA\ntype txtCityCode \"GOT\"\nclick chkPrintPNR\nclick cmdOK\n"
      L"box ok \"Error when updating the settings!\" 16 \"  PTA Script \"\n";
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_EQ(outcome.iniAfter, scene.ini);
  EXPECT_TRUE(Holds(NewElements(outcome), L"FO 117-4012345678 GOT 80246878 [P1]"));
  EXPECT_FALSE(Holds(outcome.EntryTexts(), L"PRINT RT"));
}

class Asking : public testing::TestWithParam<const wchar_t*> {};

TEST_P(Asking, AnOfficeOfAnotherDayIsAskedOfTheHostFirstAndKeptForToday) {
  auto scene = OrdinaryScene();
  scene.office = L"GOTAG0001";
  scene.officeDate = GetParam();
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_EQ(outcome.EntryTexts()[0], L"PV");
  EXPECT_EQ(outcome.EntryTexts()[1], L"RT");
  EXPECT_EQ(CallsOf(outcome, L"OfficeDisplayReader.1.8").size(), 1u);
  EXPECT_EQ(outcome.officeAfter, L"ARNAG2100");
  EXPECT_EQ(outcome.officeDateAfter, L"2007-02-20");
}

INSTANTIATE_TEST_SUITE_P(Dates, Asking,
                         testing::Values(L"2007-02-19", L"2007-02-21", L"", L"nonsense",
                                         L"20/02/2007"));

TEST(SettingsRun, ASecondRunOfTheDayDoesNotAskForTheOfficeAgain) {
  auto scene = OrdinaryScene();
  scene.office.clear();
  const auto first = RehearseInAgreement(scene);
  EXPECT_EQ(first.EntryTexts().front(), L"PV");
  scene.office = first.officeAfter;
  scene.officeDate = first.officeDateAfter;
  const auto second = RehearseInAgreement(scene);
  EXPECT_FALSE(Holds(second.EntryTexts(), L"PV"));
  EXPECT_EQ(CallsOf(second, L"TerminalSession.1.16"), Lines{});
}

TEST(SettingsRun, AnOfficeThatTheHostDoesNotTellLeavesTheOneFoundLast) {
  auto scene = OrdinaryScene();
  scene.officeDate = L"2007-02-19";
  scene.prepare = [](practice::Host& host) { host.faults.garbage[1] = L"NONSENSE"; };
  scene.agent =
      L"box ok \"Error when sending the PV transaction.\" 16 \"  PTA Script \"\n" + scene.agent;
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_EQ(outcome.officeAfter, L"ARNAG2100");
  EXPECT_EQ(outcome.officeDateAfter, L"2007-02-19") << "to be asked again";
  EXPECT_EQ(outcome.EntryTexts().back(), L"QE 80 AT STOSK08AA");
}

}  // namespace
}  // namespace run
