#include <gtest/gtest.h>

#include "tests/mco/TSMBench.h"

namespace mco {
namespace {

using namespace hostlib::operations;

// Without what is read from the bags.
Lines Operations(const Lines& calls) {
  Lines operations;
  for (const std::wstring& line : calls) {
    const bool isReading = line.starts_with(L"ParameterBag.1.8") ||
                           line.starts_with(L"ScriptGlobal") || line.starts_with(L"List");
    if (!isReading) operations.push_back(line);
  }
  return operations;
}

const std::wstring kParse =
    L"TsmDisplayReader.1.8 ParseTQMResponse(\"TQM ANSWER\", <ParameterBag>) -> <ParameterBag>";

TEST(SelectMCO, OneTSMShownAtOnceIsNumberOneAtIndexZero) {
  TSMBench bench;
  bench.displays = {bench.OneTSM(250.0)};
  EXPECT_TRUE(bench.list.SelectMCO());
  EXPECT_EQ(bench.tsm.intSelectedMCO, 1);
  EXPECT_EQ(bench.tsm.intSelectedMCOIndex, 0);
  EXPECT_EQ(bench.info.dblMCOFee, 250);
  EXPECT_TRUE(bench.desktop.log.empty());
}

TEST(SelectMCO, OneTSMShownAtOnceIsDisplayedOnlyOnce) {
  TSMBench bench;
  bench.displays = {bench.OneTSM(250.0)};
  bench.list.SelectMCO();
  EXPECT_EQ(Operations(bench.TakeCalls()),
            (Lines{L"TsmDisplayReader.1.7 BuildTQMEntry(<ParameterBag>) -> \"E1\"",
                   L"ParameterBag.1.7 SetValue(\"blnKeyRedisplayPNR\", True)",
                   L"TsmDisplayReader.1.7 BuildTQMEntry(<ParameterBag>) -> \"E2\"",
                   L"TerminalSession.1.10 SendCommand(\"E2\") -> \"TQM ANSWER\"", kParse}));
}

TEST(SelectMCO, AListOfOneIsDisplayedByItsOwnNumberWithoutADialog) {
  TSMBench bench;
  bench.displays = {bench.List({{5, 1, L"1", L"CASH"}}), bench.OneTSM(300.0)};
  EXPECT_TRUE(bench.list.SelectMCO());
  EXPECT_EQ(Operations(bench.TakeCalls()),
            (Lines{L"TsmDisplayReader.1.7 BuildTQMEntry(<ParameterBag>) -> \"E1\"",
                   L"ParameterBag.1.7 SetValue(\"blnKeyRedisplayPNR\", True)",
                   L"TsmDisplayReader.1.7 BuildTQMEntry(<ParameterBag>) -> \"E2\"",
                   L"TerminalSession.1.10 SendCommand(\"E2\") -> \"TQM ANSWER\"", kParse,
                   L"TsmDisplayReader.1.7 BuildTQMEntry(<ParameterBag>) -> \"E3\"",
                   L"ParameterBag.1.7 SetValue(\"blnKeyRedisplayPNR\", True)",
                   L"ParameterBag.1.7 SetValue(\"strNoTSM\", 5)",
                   L"TsmDisplayReader.1.7 BuildTQMEntry(<ParameterBag>) -> \"E4\"",
                   L"TerminalSession.1.10 SendCommand(\"E4\") -> \"TQM ANSWER\"", kParse}));
  EXPECT_TRUE(bench.desktop.log.empty());
}

TEST(SelectMCO, AListOfOneTakesItsNumberAndIndexZero) {
  TSMBench bench;
  bench.displays = {bench.List({{5, 1, L"1", L"CASH"}}), bench.OneTSM(300.0)};
  bench.list.SelectMCO();
  EXPECT_EQ(bench.tsm.intSelectedMCO, 5);
  EXPECT_EQ(bench.tsm.intSelectedMCOIndex, 0);
  EXPECT_EQ(bench.info.dblMCOFee, 300);
}

TEST(SelectMCO, TheSecondOfThreeIsChosenCallByCall) {
  TSMBench bench;
  bench.displays = {bench.ListOfThree(), bench.OneTSM(300.0)};
  bench.AgentChooses(1);
  EXPECT_TRUE(bench.list.SelectMCO());
  EXPECT_EQ(Operations(bench.TakeCalls()),
            (Lines{L"TsmDisplayReader.1.7 BuildTQMEntry(<ParameterBag>) -> \"E1\"",
                   L"ParameterBag.1.7 SetValue(\"blnKeyRedisplayPNR\", True)",
                   L"TsmDisplayReader.1.7 BuildTQMEntry(<ParameterBag>) -> \"E2\"",
                   L"TerminalSession.1.10 SendCommand(\"E2\") -> \"TQM ANSWER\"", kParse,
                   L"TerminalSession.1.9 LoadPNR()",
                   L"TsmDisplayReader.1.7 BuildTQMEntry(<ParameterBag>) -> \"E3\"",
                   L"ParameterBag.1.7 SetValue(\"blnKeyRedisplayPNR\", True)",
                   L"ParameterBag.1.7 SetValue(\"strNoTSM\", 7)",
                   L"TsmDisplayReader.1.7 BuildTQMEntry(<ParameterBag>) -> \"E4\"",
                   L"TerminalSession.1.10 SendCommand(\"E4\") -> \"TQM ANSWER\"", kParse}));
  EXPECT_EQ(bench.desktop.log, (Lines{L"modal frmSelectMCO", L"close frmSelectMCO"}));
}

TEST(SelectMCO, TheSecondOfThreeGivesItsNumberAndItsPlaceInTheList) {
  TSMBench bench;
  bench.displays = {bench.ListOfThree(), bench.OneTSM(300.0)};
  bench.AgentChooses(1);
  bench.list.SelectMCO();
  EXPECT_EQ(bench.tsm.intSelectedMCO, 7);
  EXPECT_EQ(bench.tsm.intSelectedMCOIndex, 1);
  EXPECT_EQ(bench.info.dblMCOFee, 300);
}

TEST(SelectMCO, ThePNRIsLoadedAgainJustBeforeTheDialogIsShown) {
  TSMBench bench;
  bench.displays = {bench.ListOfThree(), bench.OneTSM(300.0)};
  std::wstring lastBeforeShown;
  bench.AgentChooses(0);
  bench.desktop.inModal = [&, choose = bench.desktop.inModal](ui::Form& form) {
    lastBeforeShown = bench.recorder.lines().back();
    choose(form);
  };
  bench.list.SelectMCO();
  EXPECT_EQ(lastBeforeShown, L"TerminalSession.1.9 LoadPNR()");
}

TEST(SelectMCO, TheDialogIsFilledBeforeThePNRIsLoadedAgain) {
  TSMBench bench;
  bench.displays = {bench.List({{4, 1, L"1-2", std::wstring(60, L'X')}, {7, 2, L"3", L"CASH"}})};
  EXPECT_FALSE(bench.list.SelectMCO());
  EXPECT_EQ(bench.Reports(), Lines{Box110(L"Error Error in list of TSM's!")});
  for (const std::wstring& line : bench.recorder.lines()) {
    EXPECT_FALSE(line.starts_with(L"TerminalSession.1.9")) << testing::PrintToString(line);
  }
}

TEST(SelectMCO, CancelIsTheHandlersBoxAndNothingIsChosen) {
  TSMBench bench;
  bench.displays = {bench.ListOfThree()};
  bench.desktop.inModal = [](ui::Form& form) {
    static_cast<frmSelectMCO&>(form).btnCancel.Clicked();
  };
  EXPECT_FALSE(bench.list.SelectMCO());
  EXPECT_EQ(bench.Reports(), Lines{Box110(L"Error Error in list of TSM's!")});
  EXPECT_EQ(bench.tsm.intSelectedMCO, 0);
  EXPECT_FALSE(bench.stop.isSet);
}

TEST(SelectMCO, TheCloseBoxIsTheHandlersBox) {
  TSMBench bench;
  bench.displays = {bench.ListOfThree()};
  bench.desktop.inModal = [](ui::Form& form) { form.OnCloseBox(); };
  EXPECT_FALSE(bench.list.SelectMCO());
  EXPECT_EQ(bench.Reports(), Lines{Box110(L"Error Error in list of TSM's!")});
}

TEST(SelectMCO, AnEarlierChoiceDoesNotOutliveACancel) {
  TSMBench bench;
  bench.displays = {bench.ListOfThree(), bench.OneTSM(300.0), bench.ListOfThree()};
  bench.AgentChooses(1);
  ASSERT_TRUE(bench.list.SelectMCO());
  bench.desktop.inModal = [](ui::Form& form) { form.OnCloseBox(); };
  EXPECT_FALSE(bench.list.SelectMCO());
}

TEST(SelectMCO, ARefusedListIsOneBox) {
  TSMBench bench;
  bench.displays = {bench.Refused()};
  EXPECT_FALSE(bench.list.SelectMCO());
  EXPECT_EQ(bench.Reports(), Lines{Box110(L"Error sending TQM Transaction! NEED TSM - CHECK")});
}

TEST(SelectMCO, ARefusedSecondDisplayIsOneBoxAndLeavesTheFee) {
  TSMBench bench;
  bench.displays = {bench.ListOfThree(), bench.Refused()};
  bench.AgentChooses(2);
  bench.info.dblMCOFee = 1;
  EXPECT_FALSE(bench.list.SelectMCO());
  EXPECT_EQ(bench.Reports(), Lines{Box110(L"Error sending TQM Transaction! NEED TSM - CHECK")});
  EXPECT_EQ(bench.info.dblMCOFee, 1);
}

TEST(SelectMCO, ATSMWithoutAFeeIsExactlyOneBox) {
  TSMBench bench;
  bench.displays = {bench.TSMWithoutFee()};
  EXPECT_FALSE(bench.list.SelectMCO());
  EXPECT_EQ(bench.Reports(), Lines{Box110(L"Error MCOFee was not found in the MCO NO FEE")});
}

TEST(SelectMCO, AChosenTSMWithoutAFeeIsExactlyOneBox) {
  TSMBench bench;
  bench.displays = {bench.ListOfThree(), bench.TSMWithoutFee()};
  bench.AgentChooses(1);
  EXPECT_FALSE(bench.list.SelectMCO());
  EXPECT_EQ(bench.Reports(), Lines{Box110(L"Error MCOFee was not found in the MCO NO FEE")});
}

TEST(SelectMCO, ASecondDisplayThatIsAListAgainHasNoFee) {
  TSMBench bench;
  bench.displays = {bench.ListOfThree(), bench.ListOfThree()};
  bench.AgentChooses(1);
  EXPECT_FALSE(bench.list.SelectMCO());
  EXPECT_EQ(bench.Reports(), Lines{Box110(L"Error MCOFee was not found in the MCO ")});
}

TEST(SelectMCO, WithoutAnyTSMThereIsASecondDisplayOfTheListAndTheFeeMessage) {
  TSMBench bench;
  bench.displays = {bench.List({}), bench.List({})};
  EXPECT_FALSE(bench.list.SelectMCO());
  EXPECT_EQ(Operations(bench.TakeCalls()),
            (Lines{L"TsmDisplayReader.1.7 BuildTQMEntry(<ParameterBag>) -> \"E1\"",
                   L"ParameterBag.1.7 SetValue(\"blnKeyRedisplayPNR\", True)",
                   L"TsmDisplayReader.1.7 BuildTQMEntry(<ParameterBag>) -> \"E2\"",
                   L"TerminalSession.1.10 SendCommand(\"E2\") -> \"TQM ANSWER\"", kParse,
                   L"TsmDisplayReader.1.7 BuildTQMEntry(<ParameterBag>) -> \"E3\"",
                   L"ParameterBag.1.7 SetValue(\"blnKeyRedisplayPNR\", True)",
                   L"TsmDisplayReader.1.7 BuildTQMEntry(<ParameterBag>) -> \"E4\"",
                   L"TerminalSession.1.10 SendCommand(\"E4\") -> \"TQM ANSWER\"", kParse,
                   Box110(L"Error MCOFee was not found in the MCO ")}));
  EXPECT_TRUE(bench.desktop.log.empty());
}

TEST(SelectMCO, AFailureToLoadThePNRIsReportedByTheLibraryAndNoDialogIsShown) {
  TSMBench bench;
  bench.displays = {bench.ListOfThree()};
  bench.scripted.Fail(terminal_session::kLoadPNR, 77, L"the line is down");
  EXPECT_FALSE(bench.list.SelectMCO());
  EXPECT_EQ(bench.Reports(), Lines{L"ScriptErrorReporter.1.11 ReportLastError()"});
  EXPECT_TRUE(bench.desktop.log.empty());
}

TEST(SelectMCO, AFailureOfTheFirstDisplayIsReportedOnce) {
  TSMBench bench;
  bench.scripted.Fail(tsm_display_reader::kBuildTQMEntry, 77, L"the line is down");
  EXPECT_FALSE(bench.list.SelectMCO());
  EXPECT_EQ(bench.Reports(), Lines{L"ScriptErrorReporter.1.11 ReportLastError()"});
}

TEST(SelectMCO, AFieldTooLongForItsColumnIsTheHandlersBox) {
  TSMBench bench;
  bench.displays = {bench.List({{1, 1, L"1", std::wstring(27, L'F')}, {2, 1, L"1", L"CASH"}})};
  EXPECT_FALSE(bench.list.SelectMCO());
  EXPECT_EQ(bench.Reports(), Lines{Box110(L"Error Error in list of TSM's!")});
  EXPECT_TRUE(bench.desktop.log.empty());
}

TEST(SelectMCO, TheEndOfTheRunInsideTheDialogPassesThrough) {
  TSMBench bench;
  bench.displays = {bench.ListOfThree()};
  bench.desktop.inModal = [](ui::Form&) { throw common::EndOfRun(); };
  EXPECT_THROW(bench.list.SelectMCO(), common::EndOfRun);
  EXPECT_TRUE(bench.Reports().empty());
}

}  // namespace
}  // namespace mco
