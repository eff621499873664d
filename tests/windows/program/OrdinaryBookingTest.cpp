#include <gtest/gtest.h>

#include "tests/windows/driver/Driver.h"
#include "tests/windows/program/Stage.h"
#include "ui/win32/resource.h"

namespace driver {

namespace {

using Lines = std::vector<std::wstring>;

const Lines kReading = {L"RT", L"IR", L"RT", L"TQT", L"TQM RT", L"OS SK PTA", L"TQT", L"TQT"};
const Lines kWriting = {
    L"CH 5 OK/STOSK08AA",
    L"CH 7 O/PT/CASH",
    L"FO 117-4012345678 STO 80246878 [P1];RM PWCT SK AT ARN A/P BEFORE DEPARTURE [P1];"
    L"OP 16MAR07 CHECK IF TICKET OK;RM PTA TTL SEK1000/TAX SEK120XT, SEK40YQ + SEK250XP [P1];"
    L"RM *FARE:1160,TAX:160,PTA:250 [P1];",
    L"TU 1 PTA/FARE F SEK1000 TAX SEK120XT SEK40YQ/NVA 15MAR07",
    L"PRINT RT",
    L"BT RETAIN",
    L"QE 80 AT STOSK08AA"};

Lines ReadingAndWriting() {
  Lines all = kReading;
  all.insert(all.end(), kWriting.begin(), kWriting.end());
  return all;
}

std::wstring WithoutLastLineEnd(std::wstring text) {
  while (text.ends_with(L'\n')) text.pop_back();
  return text;
}

TEST(TheProgram, TakesTheOrdinaryBookingFromStartToQueue) {
  Stage stage;
  stage.WorkLikeTheOrdinaryAgent();
  EXPECT_EQ(stage.program().ExitCode(), 0u);
  EXPECT_EQ(stage.Entries(), ReadingAndWriting());
  EXPECT_EQ(stage.PnrAfter(), WithoutLastLineEnd(ProjectFile(L"tests\\run\\ordinary.after")));
}

TEST(TheProgram, ShowsItsProgressUntilTheDialogIsThere) {
  Stage stage;
  stage.SetPace(100);
  Program& program = stage.Start();
  const HWND working = program.WaitForWindowWith(ID_lblWorking);
  EXPECT_EQ(TextOf(Item(working, ID_lblWorking)), L"Retrieving information from Corvane...");
  WaitUntil(L"it has its caption", [&] { return TextOf(working) == L"  PTA Script "; });
  const HWND dialog = program.WaitForWindowWith(ID_txtPWCT);
  EXPECT_EQ(TextOf(dialog), L"  PTA Script - Prepaid Ticket Advice");
  WaitUntil(L"the progress window is gone", [&] { return !IsWindowVisible(working); });
}

class WithoutWriting : public testing::TestWithParam<const wchar_t*> {};

TEST_P(WithoutWriting, TheRunEndsWithZeroAndThePnrAsItWas) {
  Stage stage;
  stage.Work(std::wstring(L"form frmPTA\ntype txtCityCode \"OSL\"\n") + GetParam());
  EXPECT_EQ(stage.program().ExitCode(), 0u);
  EXPECT_EQ(stage.Entries(), kReading);
  EXPECT_EQ(stage.Ini(), ProjectFile(L"practice\\pnrs\\ordinary.ini"));
}

INSTANTIATE_TEST_SUITE_P(ByCancelOrTheCloseBox, WithoutWriting,
                         testing::Values(L"click cmdCancel\n", L"close\n"));

TEST(TheProgram, EscEndsTheRunLikeCancel) {
  Stage stage;
  Program& program = stage.Start();
  const HWND dialog = program.WaitForWindowWith(ID_txtPWCT);
  Press(Item(dialog, ID_txtPTA), VK_ESCAPE);
  EXPECT_EQ(stage.program().ExitCode(), 0u);
  EXPECT_EQ(stage.Entries(), kReading);
}

TEST(TheProgram, TakesNeitherASecondOkNorCancelWhileItWrites) {
  Stage stage;
  stage.SetPace(150);
  Program& program = stage.Start();
  const HWND dialog = program.WaitForWindowWith(ID_txtPWCT);
  WaitForFocus(Item(dialog, ID_txtPTA));
  TypeOver(Item(dialog, ID_txtPTA), L"sek1000/tax sek120xt, sek40yq");
  Press(Item(dialog, ID_txtPTA), 'W', kAlt);
  TypeOver(Item(dialog, ID_txtPWCT), L"sk at arn a/p before departure");
  Click(Item(dialog, ID_cmdOK));
  WaitUntil(L"the writing has begun", [&] { return stage.Entries().size() > kReading.size(); });
  Click(Item(dialog, ID_cmdOK));
  Click(Item(dialog, ID_cmdCancel));
  Press(Item(dialog, ID_cmdOK), VK_RETURN);
  Press(Item(dialog, ID_cmdOK), VK_ESCAPE);
  PostMessageW(dialog, WM_SYSCOMMAND, SC_CLOSE, 0);
  EXPECT_EQ(stage.program().ExitCode(), 0u);
  EXPECT_EQ(stage.Entries(), ReadingAndWriting());
}

TEST(TheProgram, ShowsAnInvalidFieldAndLeavesTheFocusAndTheSelectionThere) {
  Stage stage;
  stage.Work(
      L"form frmPTA\n"
      L"type txtCityCode \"os\"\n"
      L"state txtCityCode yellow\n"
      L"click cmdOK\n"
      L"box ok \"Invalid City Code, must be three letters !\" 64 \"Invalid Field !\"\n"
      L"form frmPTA\n"
      L"state txtCityCode focused\n"
      L"see txtCityCode \"OS\"\n"
      L"type txtCityCode \"osl\"\n"
      L"see txtCityCode \"OSL\"\n"
      L"state txtCityCode not-yellow\n"
      L"click cmdCancel\n");
  EXPECT_EQ(stage.program().ExitCode(), 0u);
}

TEST(TheProgram, F1ExplainsAFieldAndGivesTheFocusBack) {
  Stage stage;
  stage.Work(
      L"form frmPTA\n"
      L"key txtQueueCat F1\n"
      L"box ok \"Enter Queue Number/Category, eg. 80\\r\\rDefault queue number is 80, but this may "
      L"be modified. \" 0 \"  PTA Script \"\n"
      L"form frmPTA\n"
      L"state txtQueueCat focused\n"
      L"see staStatusText \"Enter Queue Number/Category, eg. 80\"\n"
      L"click cmdCancel\n");
  EXPECT_EQ(stage.program().ExitCode(), 0u);
}

}  // namespace

}  // namespace driver
