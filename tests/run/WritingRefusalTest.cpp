#include <gtest/gtest.h>

#include "common/Text.h"
#include "tests/run/Refusals.h"

// Every kind of refusal in its turn: what the agent is told, what is still sent, and what the PNR
// has become. The booking changes every element there is and needs two entries for the new ones.
namespace run {
namespace {

constexpr const char* kBooking = kRefusalBooking;

/// The entries without the one that begins so.
Lines Without(Lines entries, std::wstring_view start) {
  entries.erase(entries.begin() + PlaceOf(entries, start) - 1);
  return entries;
}

practice::RehearsalScene SceneRefusing(int entry, const std::wstring& agentGoesOn) {
  auto scene = SceneOf(kBooking);
  scene.prepare = [entry](practice::Host& host) { host.faults.refusals[entry] = L"TOLD TO"; };
  scene.agent += agentGoesOn;
  return scene;
}

/// The PNR after these entries, made by a host that refuses none of them.
std::wstring PNRAfter(const Lines& entries) {
  practice::Host host;
  host.LoadBooking(SceneOf(kBooking).booking);
  for (const std::wstring& entry : entries) {
    EXPECT_FALSE(host.Enter(entry).starts_with(L"REFUSED")) << common::ToUtf8(entry);
  }
  return host.PnrText();
}

/// `number` is the low part of the report's error number.
Lines ReportCalls(int number, std::wstring_view firstLine) {
  constexpr int kErrorBase = -2147221504;
  return {L"ScriptErrorReporter.1.18 ShowError(" + std::to_wstring(kErrorBase + number) +
          L", \"  PTA Script \", \"" + std::wstring(firstLine) + std::wstring(StandardText()) +
          L"\", 48)"};
}

struct RefusalCase {
  const char* name;
  const wchar_t* entry;  ///< how the refused entry begins
  const wchar_t* firstLine;
  int number;
};

class RefusalThatEndsTheRun : public testing::TestWithParam<RefusalCase> {};

TEST_P(RefusalThatEndsTheRun, IsToldOnceAndNothingMoreIsSent) {
  const auto [name, entry, firstLine, number] = GetParam();
  const Lines accepted = RehearseBooking(kBooking).EntryTexts();
  const int place = PlaceOf(accepted, entry);
  const auto outcome = RehearseInAgreement(SceneRefusing(place, RefusalReport(firstLine)));
  EXPECT_EQ(outcome.EntryTexts(), Lines(accepted.begin(), accepted.begin() + place));
  EXPECT_EQ(CallsOf(outcome, L"ScriptErrorReporter.1.18"), ReportCalls(number, firstLine));
  EXPECT_EQ(outcome.pnrAfter, PNRAfter({accepted.begin(), accepted.begin() + place - 1}));
  EXPECT_EQ(outcome.seen.back(), L"closed frmPTA");
}

TEST_P(RefusalThatEndsTheRun, IsAlsoAnAnswerThatCannotBeReadThoughTheEntryWasTaken) {
  const auto [name, entry, firstLine, number] = GetParam();
  const Lines accepted = RehearseBooking(kBooking).EntryTexts();
  const int place = PlaceOf(accepted, entry);
  auto scene = SceneRefusing(0, RefusalReport(firstLine));
  scene.prepare = [place](practice::Host& host) { host.faults.garbage[place] = L"?!"; };
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_EQ(outcome.EntryTexts(), Lines(accepted.begin(), accepted.begin() + place));
  EXPECT_EQ(CallsOf(outcome, L"ScriptErrorReporter.1.18"), ReportCalls(number, firstLine));
  EXPECT_EQ(outcome.pnrAfter, PNRAfter({accepted.begin(), accepted.begin() + place}));
}

INSTANTIATE_TEST_SUITE_P(
    WritingRun, RefusalThatEndsTheRun,
    testing::Values(
        RefusalCase{"OfTheTicketing", L"CH 6 OK/STOSK08AA/Q",
                    L"Error when updating the Ticketing Element!", 61},
        RefusalCase{"OfThePWCTRemark", L"CH 12 PWCT SK AT CPH A/P",
                    L"Error when updating the RM PWCT Element!", 64},
        RefusalCase{"OfTheCarrier", L"CH 10 SK", L"Error when updating the FV Element!", 63},
        RefusalCase{"OfTheCommission", L"CH 9 10", L"Error when updating the FM Element!", 65},
        RefusalCase{"OfTheFormOfPayment", L"CH 8 O/PT/CASH", L"Error when updating the FP Element!",
                    62},
        RefusalCase{"OfTheFirstElements", L"FO 117-4012345678",
                    L"Error when entering the PNR elements!", 70},
        RefusalCase{"OfTheSecondElements", L"RM *FARE:1030",
                    L"Error when entering the PNR elements!", 70},
        RefusalCase{"OfThePrint", L"PRINT RT", L"Error when sending the print PNR command!", 81}),
    [](const auto& refusal) { return std::string(refusal.param.name); });

/// The entries of a run whose TST updates are refused stay what they were: the next TST follows,
/// then everything else.
Lines TSTReports(std::size_t count) {
  return Lines(count, ReportCalls(40, L"Error when updating the TST Record!").front());
}

TEST(WritingRefusal, OfATSTIsToldAndTheNextTSTIsUpdated) {
  const Lines accepted = RehearseBooking(kBooking).EntryTexts();
  const int place = PlaceOf(accepted, L"TU 1 ");
  const auto outcome = RehearseInAgreement(
      SceneRefusing(place, RefusalReport(L"Error when updating the TST Record!")));
  EXPECT_EQ(outcome.EntryTexts(), accepted);
  EXPECT_EQ(CallsOf(outcome, L"ScriptErrorReporter.1.18"), TSTReports(1));
  Lines taken = accepted;
  taken.erase(taken.begin() + place - 1);
  EXPECT_EQ(outcome.pnrAfter, PNRAfter(taken));
}

TEST(WritingRefusal, OfEveryTSTIsToldForEachAndTheRunGoesOn) {
  const Lines accepted = RehearseBooking(kBooking).EntryTexts();
  const int place = PlaceOf(accepted, L"TU 1 ");
  const std::wstring report = RefusalReport(L"Error when updating the TST Record!");
  auto scene = SceneRefusing(place, report + report);
  scene.prepare = [place](practice::Host& host) {
    host.faults.refusals = {{place, L"TOLD TO"}, {place + 1, L"TOLD TO"}};
  };
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_EQ(outcome.EntryTexts(), accepted);
  EXPECT_EQ(CallsOf(outcome, L"ScriptErrorReporter.1.18"), TSTReports(2));
  Lines taken = accepted;
  taken.erase(taken.begin() + place - 1, taken.begin() + place + 1);
  EXPECT_EQ(outcome.pnrAfter, PNRAfter(taken));
}

TEST(WritingRefusal, OfTheBODIsNotLookedAt) {
  const Lines accepted = RehearseBooking(kBooking).EntryTexts();
  const auto outcome = RehearseInAgreement(SceneRefusing(PlaceOf(accepted, L"BT"), L""));
  EXPECT_EQ(outcome.EntryTexts(), accepted);
  EXPECT_EQ(outcome.pnrAfter, RehearseBooking(kBooking).pnrAfter);
}

constexpr std::wstring_view kQueueBox =
    LR"("PNR was not Queued correctly ! \r\nPress 'OK' to continue or 'Cancel' to terminate." 1 "  PTA Script ")";

TEST(WritingRefusal, OfTheQueueGoesOnToThePanelAfterOK) {
  const Lines accepted = RehearseBooking(kBooking).EntryTexts();
  const auto outcome = RehearseInAgreement(
      SceneRefusing(PlaceOf(accepted, L"QE"), L"box ok " + std::wstring(kQueueBox)));
  EXPECT_EQ(outcome.EntryTexts(), accepted);
  EXPECT_EQ(CallsOf(outcome, L"ScriptErrorReporter.1.18"), Lines{});
  EXPECT_EQ(outcome.pnrAfter, PNRAfter(Without(accepted, L"QE")));
}

TEST(WritingRefusal, OfTheQueueEndsTheRunAfterCancel) {
  const Lines accepted = RehearseBooking(kBooking).EntryTexts();
  const int place = PlaceOf(accepted, L"QE");
  const auto outcome =
      RehearseInAgreement(SceneRefusing(place, L"box cancel " + std::wstring(kQueueBox)));
  EXPECT_EQ(outcome.EntryTexts(), Lines(accepted.begin(), accepted.begin() + place));
  EXPECT_EQ(outcome.pnrAfter, RehearseBooking(kBooking).pnrAfter);
}

TEST(WritingRefusal, OfThePanelIsNotLookedAt) {
  const Lines accepted = RehearseBooking(kBooking).EntryTexts();
  const auto outcome = RehearseInAgreement(SceneRefusing(PlaceOf(accepted, L"TQTP"), L""));
  EXPECT_EQ(outcome.EntryTexts(), accepted);
  EXPECT_EQ(outcome.pnrAfter, PNRAfter(Without(accepted, L"TQTP")));
}

TEST(WritingRefusal, ByTheHostsOwnRulesLeavesTheOldRemark) {
  auto scene = SceneOf("write-pwct-changed");
  const std::wstring tooLong(120, L'X');
  Change(scene.agent, L"SK AT CPH A/P BEFORE DEPARTURE", tooLong);
  scene.agent += RefusalReport(L"Error when updating the RM PWCT Element!");
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_EQ(outcome.EntryTexts().back(), L"CH 10 PWCT " + tooLong);
  // A command of more than 75 characters is not a single entry any more.
  EXPECT_EQ(CallsOf(outcome, L"TerminalSession.1.10").size(), 3u);
  EXPECT_EQ(LinesGone(outcome), Lines{L"TK TL 10MAR07"});
}

}  // namespace
}  // namespace run
