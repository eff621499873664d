#include <gtest/gtest.h>

#include "common/Text.h"
#include "tests/run/Scenes.h"

// What the confirmed dialog makes of the run.
namespace run {
namespace {

/// The ordinary agent, who changes something before OK.
practice::RehearsalScene SceneWith(std::wstring_view doing) {
  auto scene = OrdinaryScene();
  scene.agent = L"form frmPTA\n" + std::wstring(doing) + L"\nclick cmdOK\n";
  return scene;
}

bool AnyStartsWith(const Lines& entries, std::wstring_view start) {
  for (const std::wstring& entry : entries) {
    if (entry.starts_with(start)) return true;
  }
  return false;
}

std::wstring JoinedEntry(const Lines& entries) {
  for (const std::wstring& entry : entries) {
    if (common::Contains(entry, L";")) return entry;
  }
  return L"";
}

TEST(UpdateRun, WithoutAnOfficeNothingIsQueuedAndTheBODIsToldSo) {
  const auto outcome = RehearseInAgreement(SceneWith(L"type txtQueueingOfficeID \"\""));
  EXPECT_FALSE(AnyStartsWith(outcome.EntryTexts(), L"QE"));
  EXPECT_TRUE(Holds(outcome.calls, L"ParameterBag.1.7 SetValue(\"strKeyRetain\", \"False\")"));
  EXPECT_TRUE(Holds(outcome.EntryTexts(), L"CH 5 OK"));
  EXPECT_TRUE(Holds(outcome.EntryTexts(), L"PRINT RT"));
}

TEST(UpdateRun, AnOfficeWithLH0AsksForAcknowledgementAndTheAGTForm) {
  const auto outcome = RehearseInAgreement(SceneWith(L"type txtQueueingOfficeID \"FRALH0123\""));
  EXPECT_TRUE(Holds(outcome.EntryTexts(), L"CH 7 O/PT/CASHAGT"));
  EXPECT_TRUE(common::Contains(JoinedEntry(outcome.EntryTexts()),
                               L"PLS ACK PTA FROM ARNAG2100 TO FRALH0123"));
}

TEST(UpdateRun, AnOfficeOfLHWithoutLH0IsLikeAnyOther) {
  const auto outcome = RehearseInAgreement(SceneWith(L"type txtQueueingOfficeID \"FRALH1123\""));
  EXPECT_TRUE(Holds(outcome.EntryTexts(), L"CH 7 O/PT/CASH"));
  EXPECT_FALSE(common::Contains(JoinedEntry(outcome.EntryTexts()), L"PLS ACK"));
}

TEST(UpdateRun, WhatTheAgentTypedIsTakenWithoutTheBlanksAroundIt) {
  const auto outcome = RehearseInAgreement(
      SceneWith(L"type txtPTA \"  SEK900 \"\ntype txtRMBODInfo \"  PAID BY CARD \""));
  EXPECT_TRUE(Holds(outcome.calls,
                    L"ParameterBag.1.7 SetValue(\"strKeyText\", \"PTA TTL SEK900 + SEK250XP\")"));
  EXPECT_TRUE(
      Holds(outcome.calls, L"ParameterBag.1.7 SetValue(\"strKeyText\", \"*PAID BY CARD\")"));
}

TEST(UpdateRun, TheCommissionOfTheDialogIsWritten) {
  const auto outcome = RehearseInAgreement(SceneWith(L"type txtCommission \" 9 \""));
  EXPECT_TRUE(Holds(outcome.EntryTexts(), L"CH 8 9"));
}

TEST(UpdateRun, NoTSTUpdateLeavesTheTSTsAlone) {
  const auto outcome = RehearseInAgreement(SceneWith(L"click chkTSTNoUpdate"));
  EXPECT_FALSE(AnyStartsWith(outcome.EntryTexts(), L"TU"));
}

TEST(UpdateRun, UntickedOptionsSendNeitherPrintNorBODAndAreKept) {
  const auto outcome =
      RehearseInAgreement(SceneWith(L"click chkPrintPNR\nclick chkBOD\nclick chkOP"));
  EXPECT_FALSE(AnyStartsWith(outcome.EntryTexts(), L"PRINT"));
  EXPECT_FALSE(AnyStartsWith(outcome.EntryTexts(), L"BT"));
  EXPECT_FALSE(common::Contains(JoinedEntry(outcome.EntryTexts()), L"OP 16MAR07"));
  EXPECT_TRUE(common::Contains(outcome.iniAfter, L"\nPrintPNR=No\nOPElement=No\n"));
  EXPECT_TRUE(common::Contains(outcome.iniAfter, L"\nB.O.D.=No\n"));
}

TEST(UpdateRun, PanelModeAsksForTheTSTPanelAtTheVeryEnd) {
  const auto outcome = RehearseInAgreement(SceneWith(L"click chkPanelMode"));
  EXPECT_EQ(outcome.EntryTexts().back(), L"TQTP");
}

TEST(UpdateRun, PanelModeAlsoFollowsASkippedQueuePlacement) {
  const auto outcome =
      RehearseInAgreement(SceneWith(L"click chkPanelMode\ntype txtQueueingOfficeID \"\""));
  EXPECT_EQ(outcome.EntryTexts().back(), L"TQTP");
}

TEST(UpdateRun, APWCTRemarkThatStaysIsLeftAlone) {
  auto scene = SceneWith(L"see txtPWCT \"SK AT ARN\"");
  scene.booking = common::Replace(scene.booking, L"\nTM ", L"\nRM PWCT SK AT ARN\nTM ");
  const Lines entries = RehearseInAgreement(scene).EntryTexts();
  EXPECT_FALSE(common::Contains(JoinedEntry(entries), L"PWCT"));
  EXPECT_FALSE(AnyStartsWith(entries, L"CH 10"));
}

TEST(UpdateRun, APWCTRemarkThatWasEditedIsChangedByItsNumber) {
  auto scene = SceneWith(L"type txtPWCT \"  sk at osl \"");
  scene.booking = common::Replace(scene.booking, L"\nTM ", L"\nRM PWCT SK AT ARN\nTM ");
  const Lines entries = RehearseInAgreement(scene).EntryTexts();
  EXPECT_FALSE(common::Contains(JoinedEntry(entries), L"PWCT"));
  // The OSI for SK has been entered before; remarks stand before it.
  EXPECT_TRUE(Holds(entries, L"CH 10 PWCT SK AT OSL"));
}

TEST(UpdateRun, AQueueThatDoesNotTakeThePNRLetsTheAgentGoOn) {
  auto scene = SceneWith(L"see txtQueueCat \"80\"");
  scene.booking += L"TR QUEUE CLOSED 80 AT STOSK08AA\n";
  scene.agent +=
      LR"(box ok "PNR was not Queued correctly ! \r\nPress 'OK' to continue or 'Cancel' to terminate." 1 "  PTA Script ")";
  EXPECT_EQ(RehearseInAgreement(scene).EntryTexts().back(), L"QE 80 AT STOSK08AA");
}

TEST(UpdateRun, ARefusedChangeEndsTheRunBeforeTheNextElement) {
  auto scene = OrdinaryScene();
  scene.prepare = [](practice::Host& host) { host.faults.refusals[9] = L"TOLD TO REFUSE"; };
  scene.agent +=
      LR"(box ok "Error when updating the Ticketing Element!\r\rCorvane Central System gave an incorrect response to the last transaction.\rPlease verify the response given and correct if possible, or contact your help desk. \rThe program can not continue." 48 "  PTA Script ")";
  EXPECT_EQ(RehearseInAgreement(scene).EntryTexts().back(), L"CH 5 OK/STOSK08AA");
}

TEST(UpdateRun, AnInvalidFieldKeepsTheDialogOpenAndWritesNothing) {
  auto scene = SceneWith(L"type txtCityCode \"ST\"");
  scene.agent +=
      LR"(box ok "Invalid City Code, must be three letters !" 64 "Invalid Field !"
state txtCityCode focused
click cmdCancel
)";
  EXPECT_EQ(RehearseInAgreement(scene).EntryTexts().back(), L"TQT");
}

}  // namespace
}  // namespace run
