#include <gtest/gtest.h>

#include "common/Text.h"
#include "hostlib/Interposer.h"
#include "tests/run/Scenes.h"

// The order of the entry procedure's steps, and where the run stops.
namespace run {
namespace {

constexpr std::wstring_view kConnectBox =
    L"box 16 \"  PTA Script \" \"Failed to connect to Vantel session.\\r\\rVerify that there is a "
    L"Vantel session started.\" -> OK";
constexpr std::wstring_view kConnectAnswer =
    LR"(box ok "Failed to connect to Vantel session.\r\rVerify that there is a Vantel session started." 16 "  PTA Script ")";

/// A library in which one class cannot be made.
class LibraryWithout : public hostlib::Library {
 public:
  LibraryWithout(hostlib::Library& inner, std::wstring_view missing)
      : inner_(inner), missing_(missing) {}
  hostlib::ObjectPtr Create(std::wstring_view className) override {
    if (missing_ == L"*" || className == missing_) {
      throw hostlib::LibraryError(429, L"test", L"cannot be made");
    }
    return inner_.Create(className);
  }

 private:
  hostlib::Library& inner_;
  std::wstring missing_;
};

practice::RehearsalScene SceneWithout(std::wstring_view className) {
  auto scene = OrdinaryScene();
  scene.decorate = [className](hostlib::Library& inner) -> std::unique_ptr<hostlib::Library> {
    return std::make_unique<LibraryWithout>(inner, className);
  };
  return scene;
}

TEST(RunSequence, WhenAttachSaysSoTheRunEndsAtOnceWithoutAnyWindow) {
  auto scene = OrdinaryScene();
  scene.attachRefused = true;
  scene.agent.clear();
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_EQ(outcome.calls, Lines{L"ScriptGlobal.1.17 Attach(<frmWorking>, <Application>) -> True"});
  EXPECT_EQ(outcome.seen, Lines{});
}

TEST(RunSequence, WithoutASessionTheAgentIsToldOnceAndNothingElseHappens) {
  auto scene = OrdinaryScene();
  scene.sessionRunning = false;
  scene.agent = kConnectAnswer;
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_EQ(outcome.seen,
            (Lines{L"shown frmWorking \"\"", std::wstring(kConnectBox), L"closed frmWorking"}));
  EXPECT_EQ(outcome.calls,
            (Lines{L"ScriptGlobal.1.17 Attach(<frmWorking>, <Application>) -> False",
                   L"ScriptErrorReporter.1.18 ShowError(-2147221405, \"  PTA Script \", \"Failed "
                   L"to connect to Vantel session.\\r\\rVerify that there is a Vantel session "
                   L"started.\", 16)"}));
}

TEST(RunSequence, WithoutALibraryAPlainBoxSaysTheSame) {
  auto scene = SceneWithout(L"*");
  scene.agent = kConnectAnswer;
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_EQ(outcome.seen, Lines{std::wstring(kConnectBox)});
  EXPECT_EQ(outcome.calls, Lines{});
}

TEST(RunSequence, WithoutAReporterAPlainBoxSaysTheSame) {
  auto scene = SceneWithout(L"ScriptErrorReporter");
  scene.agent = kConnectAnswer;
  EXPECT_EQ(RehearseInAgreement(scene).seen,
            (Lines{L"shown frmWorking \"\"", std::wstring(kConnectBox), L"closed frmWorking"}));
}

TEST(RunSequence, AMissingSettingsFileIsReportedAndTheRunGoesOn) {
  auto scene = OrdinaryScene();
  scene.hasIni = false;
  scene.agent =
      LR"(box ok "The ini file does not exist! \rContact Help Desk." 48 "  PTA Script "
form frmPTA
see txtIATANumber ""
see txtQueueingOfficeID ""
see txtQueueCat ""
state cmdOK off
click cmdCancel
)";
  RehearseInAgreement(scene);
}

TEST(RunSequence, TheHostIsAskedForTheOfficeOnTheFirstRunOfTheDay) {
  auto scene = OrdinaryScene();
  scene.office.clear();
  const Lines entries = RehearseInAgreement(scene).EntryTexts();
  EXPECT_EQ(entries.front(), L"PV");
  EXPECT_EQ(entries[1], L"RT");
}

TEST(RunSequence, MissingElementsStopTheRunBeforeTheWaitDialogAsksTheHost) {
  auto scene = OrdinaryScene();
  Change(scene.booking, L"TK TL 10MAR07\n", L"");
  scene.agent =
      LR"(box ok "Mandatory element(s) missing!\rPlease add elements and restart the script.\r\rMissing elements are: TK" 48
box ok "TK-element missing !\rPlease add and restart the script." 48
)";
  EXPECT_EQ(RehearseInAgreement(scene).EntryTexts(), Lines{L"RT"});
}

TEST(RunSequence, AnAirlineThatIsNotValidStopsTheRunBeforeAnythingIsWritten) {
  auto scene = OrdinaryScene();
  SetIni(scene, L"AirlinesNotValid", L"LH,SK");
  scene.agent =
      L"box ok \"Airline is not valid for MCO. The script will terminate.\" 48 \"  PTA Script \"";
  EXPECT_EQ(RehearseInAgreement(scene).EntryTexts(),
            (Lines{L"RT", L"IR", L"RT", L"TQT", L"TQM RT"}));
}

TEST(RunSequence, APNRWithoutMCOSegmentsEndsTheRunAtOnce) {
  auto scene = OrdinaryScene();
  Change(scene.booking, L"MCO SK,FM *C*10,FP CASH,FA 117-4012345678\n", L"");
  scene.agent = L"box ok \"No MCO's in PNR, script is closing\" 0 \"\"";
  EXPECT_EQ(RehearseInAgreement(scene).EntryTexts(), (Lines{L"RT", L"IR", L"RT"}));
}

TEST(RunSequence, CancelInTheWaitDialogEndsTheRun) {
  auto scene = OrdinaryScene();
  Change(scene.booking, L",FA 117-4012345678", L"");
  scene.agent = L"form frmWaitForMCO\ntick tmrWait\nclick cmdCancel\n";
  EXPECT_EQ(RehearseInAgreement(scene).EntryTexts(), (Lines{L"RT", L"IR", L"RT", L"IR", L"RT"}));
}

TEST(RunSequence, OnlyTheAirlinesPrefixAsksForTheOSI) {
  auto scene = OrdinaryScene();
  Change(scene.booking, L"FA 117-4012345678", L"FA 220-4012345678");
  scene.agent = L"form frmPTA\nsee txtAirlinePrefix \"220\"\nclick cmdCancel\n";
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_FALSE(Holds(outcome.EntryTexts(), L"OS SK PTA"));
  EXPECT_EQ(CallsOf(outcome, L"PnrReader.1.46"), Lines{});
}

TEST(RunSequence, AHostThatDropsTheSessionShowsTheLibrarysErrorAndEnds) {
  auto scene = OrdinaryScene();
  scene.prepare = [](practice::Host& host) { host.faults.dropFrom = 1; };
  scene.agent = L"box ok \"The session to the host was lost\" 16\n";
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_EQ(outcome.EntryTexts(), Lines{});
  EXPECT_EQ(CallsOf(outcome, L"ScriptErrorReporter.1.11").size(), 1u);
}

struct CommissionCase {
  const wchar_t* element;
  const wchar_t* shown;
};
class Commission : public testing::TestWithParam<CommissionCase> {};

TEST_P(Commission, OfTheMCOIsShownWithoutItsStars) {
  auto scene = OrdinaryScene();
  Change(scene.booking, L",FM *C*10,", std::wstring(L",FM ") + GetParam().element + L",");
  scene.agent = L"form frmPTA\nsee txtCommission \"" + std::wstring(GetParam().shown) +
                L"\"\nclick cmdCancel\n";
  // Where the TST's commission differs, the dialog warns once it is shown.
  if (std::wstring_view(GetParam().shown) != L"10") {
    scene.agent =
        L"box ok \"Warning: The Commission varies in the TST's selected ! Only one "
        L"commission is valid.\"\n" +
        scene.agent;
  }
  RehearseInAgreement(scene);
}

INSTANTIATE_TEST_SUITE_P(RunSequence, Commission,
                         testing::Values(CommissionCase{L"*C*10", L"10"},
                                         CommissionCase{L"9", L"9"}, CommissionCase{L"*C*7", L"7"},
                                         CommissionCase{L"250A", L"250A"}));

TEST(RunSequence, ACommissionWithOneStarTakesTheTSTsOwn) {
  auto scene = OrdinaryScene();
  Change(scene.booking, L",FM *C*10,", L",FM *10,");
  Change(scene.booking, L"\nFM 10\n", L"\nFM 9\n");
  scene.agent = L"form frmPTA\nsee txtCommission \"9\"\nclick cmdCancel\n";
  RehearseInAgreement(scene);
}

TEST(RunSequence, TheOfficeComesFromTheFixedSectionWhenTheOfficesOwnHasNone) {
  auto scene = OrdinaryScene();
  SetIni(scene, L"OfficeIDSK", L"");
  scene.ini += L"[OfficeID]\nSK=CPHSK0001\n[QueNumber]\nSK=81C2\n";
  scene.agent =
      L"form frmPTA\nsee txtQueueingOfficeID \"CPHSK0001\"\nsee txtQueueCat \"81C2\"\n"
      L"click cmdCancel\n";
  RehearseInAgreement(scene);
}

TEST(RunSequence, TheOfficesOwnQueueNumberWinsOverTheFixedOne) {
  auto scene = OrdinaryScene();
  SetIni(scene, L"QueNumberSK", L"75");
  scene.ini += L"[QueNumber]\nSK=81C2\n";
  scene.agent = L"form frmPTA\nsee txtQueueCat \"75\"\nclick cmdCancel\n";
  RehearseInAgreement(scene);
}

TEST(RunSequence, WithoutAnOfficeBothQueueFieldsStayEmptyEvenIfAQueueIsFound) {
  auto scene = OrdinaryScene();
  SetIni(scene, L"OfficeIDSK", L"");
  SetIni(scene, L"QueNumberSK", L"75");
  scene.agent =
      L"form frmPTA\nsee txtQueueingOfficeID \"\"\nsee txtQueueCat \"\"\nstate txtQueueCat off\n"
      L"state cmdOK not-off\nclick cmdCancel\n";
  RehearseInAgreement(scene);
}

TEST(RunSequence, TheFourFieldsOfTheDocumentCannotBeTypedInto) {
  for (const wchar_t* field :
       {L"txtMCONumber", L"txtAirlinePrefix", L"txtCarrier", L"txtFormOfPayment"}) {
    auto scene = OrdinaryScene();
    scene.agent = L"form frmPTA\ntype " + std::wstring(field) + L" \"1\"\n";
    const std::wstring disagreement = practice::Rehearse(scene).disagreement;
    EXPECT_TRUE(common::Contains(disagreement, L"is locked")) << common::ToUtf8(disagreement);
  }
}

TEST(RunSequence, TheSettingNotToUpdateTKTicksItsBox) {
  auto scene = OrdinaryScene();
  SetIni(scene, L"NoTKUpdate", L"Yes");
  scene.agent =
      L"form frmPTA\nstate chkTKNoUpdate ticked\nstate chkTSTNoUpdate not-ticked\nclick "
      L"cmdCancel\n";
  RehearseInAgreement(scene);
}

}  // namespace
}  // namespace run
