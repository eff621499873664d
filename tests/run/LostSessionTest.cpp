#include <gtest/gtest.h>

#include <algorithm>

#include "common/Text.h"
#include "tests/run/Scenes.h"

// The session is lost while the run writes: every procedure tells it in its own words alone, and
// the run ends or goes on as that procedure does.
namespace run {
namespace {

constexpr const char* kBooking = "write-everything";

struct LostSession {
  const char* name;
  const wchar_t* entry;  ///< how the first lost entry begins
  Lines texts;           ///< what the agent is told
};

int PlaceOf(const Lines& entries, std::wstring_view start) {
  const auto found = std::find_if(entries.begin(), entries.end(),
                                  [start](const auto& entry) { return entry.starts_with(start); });
  EXPECT_NE(found, entries.end()) << common::ToUtf8(start);
  return static_cast<int>(found - entries.begin()) + 1;
}

practice::RehearsalScene SceneLosing(const LostSession& lost, int place, bool answerOnly) {
  auto scene = SceneOf(kBooking);
  scene.prepare = [place, answerOnly](practice::Host& host) {
    host.faults.dropFrom = place;
    host.faults.dropAnswerOnly = answerOnly;
  };
  for (const std::wstring& text : lost.texts) {
    scene.agent += L"box ok \"" + text + L"\" 16 \"  PTA Script \"\n";
  }
  return scene;
}

std::wstring PNRAfter(const Lines& entries, int count) {
  practice::Host host;
  host.LoadBooking(SceneOf(kBooking).booking);
  for (int i = 0; i < count; ++i) host.Enter(entries[static_cast<std::size_t>(i)]);
  return host.PnrText();
}

class SessionLostWhileWriting : public testing::TestWithParam<LostSession> {};

TEST_P(SessionLostWhileWriting, IsToldAndThePNRHoldsWhatWasTakenBefore) {
  const Lines accepted = RehearseBooking(kBooking).EntryTexts();
  const int place = PlaceOf(accepted, GetParam().entry);
  const auto outcome = RehearseInAgreement(SceneLosing(GetParam(), place, false));
  EXPECT_EQ(outcome.EntryTexts(), Lines(accepted.begin(), accepted.begin() + place - 1));
  EXPECT_EQ(outcome.pnrAfter, PNRAfter(accepted, place - 1));
}

TEST_P(SessionLostWhileWriting, IsToldInTheSameWordsWhenOnlyTheAnswerIsLost) {
  const Lines accepted = RehearseBooking(kBooking).EntryTexts();
  const int place = PlaceOf(accepted, GetParam().entry);
  const auto outcome = RehearseInAgreement(SceneLosing(GetParam(), place, true));
  EXPECT_EQ(outcome.pnrAfter, PNRAfter(accepted, place));
}

const std::wstring kPrint = L"Error when sending the print PNR command!";
const std::wstring kBOD = L"Error when sending the BT command!";
const std::wstring kQueue = L"Error when sending the QE transaction.";
const std::wstring kPanel = L"Error when sending the TST from the TQTP transaction!";

INSTANTIATE_TEST_SUITE_P(
    WritingRun, SessionLostWhileWriting,
    testing::Values(
        LostSession{"AtTheTicketing", L"CH 6", {L"Error when updating the Ticketing Element!"}},
        LostSession{"AtThePWCTRemark", L"CH 12", {L"Error when updating the RM PWCT Element!"}},
        LostSession{"AtTheCarrier", L"CH 10", {L"Error when updating the FV Element!"}},
        LostSession{"AtTheCommission", L"CH 9", {L"Error when updating the FM Element!"}},
        LostSession{"AtTheFormOfPayment", L"CH 8", {L"Error when updating the FP Element!"}},
        LostSession{"AtTheFirstElements", L"FO ", {L"Error when entering the PNR elements!"}},
        LostSession{"AtTheSecondElements", L"RM *", {L"Error when entering the PNR elements!"}},
        LostSession{"AtTheFirstTST",
                    L"TU 1",
                    {L"Error when updating the TST Record!", kPrint, kBOD, kQueue, kPanel}},
        LostSession{"AtThePrint", L"PRINT", {kPrint, kBOD, kQueue, kPanel}},
        LostSession{"AtTheBOD", L"BT", {kBOD, kQueue, kPanel}},
        LostSession{"AtTheQueue", L"QE", {kQueue, kPanel}},
        LostSession{"AtThePanel", L"TQTP", {kPanel}}),
    [](const auto& lost) { return std::string(lost.param.name); });

}  // namespace
}  // namespace run
