#include <gtest/gtest.h>

#include <algorithm>

#include "common/Text.h"
#include "tests/run/Scenes.h"

namespace run {
namespace {

// A call with its texts of several lines cut after their first line.
std::wstring Compact(std::wstring call) {
  const std::wstring lineEnd = L"\\r\\n";
  for (std::size_t at = call.find(lineEnd); at != call.npos; at = call.find(lineEnd, at)) {
    const std::size_t end = call.find(L'"', at);
    call.replace(at, end - at, L" ...");
  }
  return call;
}

std::string Joined(const Lines& lines) {
  std::wstring text;
  for (const std::wstring& line : lines) text += line + L"\n";
  return common::ToUtf8(text);
}

TEST(OrdinaryRun, CallsTheLibraryExactlyInTheFixedOrder) {
  Lines calls = RehearseInAgreement(OrdinaryScene()).calls;
  std::transform(calls.begin(), calls.end(), calls.begin(), Compact);
  EXPECT_EQ(Joined(calls), common::ToUtf8(ReadProjectFile("tests/run/ordinary.calls")));
}

TEST(OrdinaryRun, SendsTheHostTheseEntries) {
  EXPECT_EQ(RehearseInAgreement(OrdinaryScene()).EntryTexts(),
            (Lines{L"RT", L"IR", L"RT", L"TQT", L"TQM RT", L"OS SK PTA", L"TQT", L"TQT",
                   L"CH 5 OK/STOSK08AA", L"CH 7 O/PT/CASH",
                   L"FO 117-4012345678 STO 80246878 [P1];RM PWCT SK AT ARN A/P BEFORE DEPARTURE "
                   L"[P1];OP 16MAR07 CHECK IF TICKET OK;RM PTA TTL SEK1000/TAX SEK120XT, SEK40YQ "
                   L"+ SEK250XP [P1];RM *FARE:1160,TAX:160,PTA:250 [P1];",
                   L"TU 1 PTA/FARE F SEK1000 TAX SEK120XT SEK40YQ/NVA 15MAR07", L"PRINT RT",
                   L"BT RETAIN", L"QE 80 AT STOSK08AA"}));
}

TEST(OrdinaryRun, ShowsTheProgressFormUntilTheDialogIsThereAndNoBox) {
  Lines windows;
  for (const std::wstring& line : RehearseInAgreement(OrdinaryScene()).seen) {
    if (!line.starts_with(L" ") && !line.starts_with(L">")) windows.push_back(line);
  }
  EXPECT_EQ(windows,
            (Lines{L"shown frmWorking \"\"",
                   L"shown frmPTA \"  PTA Script - Prepaid Ticket Advice\"", L"closed frmWorking",
                   L"in frmPTA \"  PTA Script - Prepaid Ticket Advice\"", L"closed frmPTA"}));
}

TEST(OrdinaryRun, LeavesThePNRAsTheRulesAskForIt) {
  const auto outcome = RehearseInAgreement(OrdinaryScene());
  EXPECT_EQ(Joined({common::Replace(outcome.pnrAfter, L"\r\n", L"\n")}),
            common::ToUtf8(ReadProjectFile("tests/run/ordinary.after")));
}

TEST(OrdinaryRun, PrintsThePNR) {
  EXPECT_EQ(RehearseInAgreement(OrdinaryScene()).printed.size(), 1u);
}

TEST(OrdinaryRun, SaysWhatTheHostHoldsAfterwards) {
  const auto outcome = RehearseInAgreement(OrdinaryScene());
  EXPECT_EQ(outcome.printedText, L"COPY 1\r\n" + outcome.printed.at(0));
  EXPECT_EQ(outcome.backOfficeText, L"ABC123 RETAIN");
  EXPECT_EQ(outcome.queuesText, L"QUEUE 80 AT STOSK08AA, ON: ABC123");
}

TEST(OrdinaryRun, LeavesTheSettingsFileAsItWas) {
  const auto scene = OrdinaryScene();
  EXPECT_EQ(RehearseInAgreement(scene).iniAfter, scene.ini);
}

TEST(OrdinaryRun, WithAPointAsDecimalSeparatorIsTheSameForTheHost) {
  auto scene = OrdinaryScene();
  const Lines withComma = RehearseInAgreement(scene).EntryTexts();
  scene.decimal = ".";
  EXPECT_EQ(RehearseInAgreement(scene).EntryTexts(), withComma);
}

TEST(OrdinaryRun, CancelWritesNothingAndEndsTheRun) {
  auto scene = OrdinaryScene();
  scene.agent = L"form frmPTA\ntype txtPWCT \"X\"\nclick cmdCancel\n";
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_EQ(outcome.EntryTexts(),
            (Lines{L"RT", L"IR", L"RT", L"TQT", L"TQM RT", L"OS SK PTA", L"TQT", L"TQT"}));
}

TEST(OrdinaryRun, TheCloseBoxOfTheDialogIsCancel) {
  auto scene = OrdinaryScene();
  scene.agent = L"form frmPTA\nclose\n";
  EXPECT_EQ(RehearseInAgreement(scene).EntryTexts().back(), L"TQT");
}

}  // namespace
}  // namespace run
