#include <gtest/gtest.h>

#include "tests/run/Scenes.h"

// A PTA written into a PNR that has one already: the same host, the same PNR, a second run.
namespace run {
namespace {

/// Keeps the host as the run leaves it.
class KeepingLibrary : public hostlib::Library {
 public:
  KeepingLibrary(hostlib::Library& inner, const practice::Host& host, practice::Host& kept)
      : inner_(inner), host_(host), kept_(kept) {}
  ~KeepingLibrary() override { kept_ = host_; }
  hostlib::ObjectPtr Create(std::wstring_view className) override {
    return inner_.Create(className);
  }

 private:
  hostlib::Library& inner_;
  const practice::Host& host_;
  practice::Host& kept_;
};

/// Two runs of the ordinary booking; the second agent is given.
practice::RehearsalOutcome SecondRun(const std::wstring& agent) {
  practice::Host kept;
  const practice::Host* host = nullptr;
  auto first = OrdinaryScene();
  first.prepare = [&host](practice::Host& loaded) { host = &loaded; };
  first.decorate = [&](hostlib::Library& inner) -> std::unique_ptr<hostlib::Library> {
    return std::make_unique<KeepingLibrary>(inner, *host, kept);
  };
  const auto outcome = RehearseInAgreement(first);

  auto second = OrdinaryScene();
  second.ini = outcome.iniAfter;
  second.agent = agent;
  second.prepare = [&kept](practice::Host& loaded) {
    loaded = kept;
    loaded.listener = nullptr;
    loaded.Enter(L"RT ABC123");
  };
  return RehearseInAgreement(second);
}

constexpr std::wstring_view kReissueBox =
    LR"(box ok "Some/all PTA changes already made for this TST. \rSelect 'OK' if you still want to use this TST, or 'Cancel' to terminate!" 1 "  PTA Script "
)";

std::wstring AgentDoing(std::wstring_view lines) {
  return std::wstring(kReissueBox) + L"form frmPTA\n" + std::wstring(lines) + L"click cmdOK\n";
}

TEST(SecondRun, FindsTheFirstOnesRemarkFollowUpTicketingAndReissue) {
  const auto outcome = SecondRun(
      AgentDoing(L"see txtPWCT \"SK AT ARN A/P BEFORE DEPARTURE\"\nstate chkOP off\nstate chkOP "
                 L"not-ticked\nstate chkTSTNoUpdate ticked\nsee txtFormOfPayment \"CASH\"\n"));
  EXPECT_EQ(outcome.EntryTexts(),
            (Lines{L"RT", L"IR", L"RT", L"TQT", L"TQM RT", L"TQT", L"TQT",
                   L"FO 117-4012345678 STO 80246878 [P1];RM PTA TTL SEK1000/TAX SEK120XT, SEK40YQ "
                   L"+ SEK250XP [P1];RM *FARE:1160,TAX:160,PTA:250 [P1];",
                   L"PRINT RT", L"BT RETAIN", L"QE 80 AT STOSK08AA"}));
}

TEST(SecondRun, LeavesEverythingElseOnce) {
  const auto outcome = SecondRun(AgentDoing(L""));
  EXPECT_EQ(LinesGone(outcome), Lines{});
  EXPECT_EQ(LinesAdded(outcome), (Lines{L"FO 117-4012345678 STO 80246878 [P1]",
                                        L"RM PTA TTL SEK1000/TAX SEK120XT, SEK40YQ + SEK250XP [P1]",
                                        L"RM *FARE:1160,TAX:160,PTA:250 [P1]"}));
  EXPECT_EQ(outcome.pnrAfter.substr(outcome.pnrAfter.find(L"TST 1")),
            outcome.pnrBefore.substr(outcome.pnrBefore.find(L"TST 1")));
}

TEST(SecondRun, APNRThatIsOnTheQueueAlreadyRaisesNoQuestion) {
  const auto outcome = SecondRun(AgentDoing(L""));
  EXPECT_EQ(outcome.entries.back().answer,
            L"NOT QUEUED, THERE ALREADY ABC123 ON 80 AT STOSK08AA - QUEUE ON");
  EXPECT_EQ(BoxesIn(outcome).size(), 1u);
}

TEST(SecondRun, AnotherPWCTTextChangesTheRemarkOfTheFirst) {
  const auto outcome = SecondRun(AgentDoing(L"type txtPWCT \"SK AT CPH\"\n"));
  EXPECT_EQ(EntriesOfWriting(outcome).front(), L"CH 12 PWCT SK AT CPH");
  EXPECT_EQ(LinesGone(outcome), Lines{L"RM PWCT SK AT ARN A/P BEFORE DEPARTURE [P1]"});
}

TEST(SecondRun, AnAgentWhoUnticksNoTSTUpdateUpdatesItAgain) {
  const auto outcome = SecondRun(AgentDoing(L"click chkTSTNoUpdate\n"));
  // The validity is known by now.
  EXPECT_TRUE(Holds(outcome.EntryTexts(), L"TU 1 PTA/FARE F SEK1000 TAX SEK120XT SEK40YQ"));
}

TEST(SecondRun, CancelAtTheReissueWritesNothing) {
  std::wstring agent(kReissueBox);
  Change(agent, L"box ok", L"box cancel");
  const auto outcome = SecondRun(agent);
  EXPECT_EQ(outcome.EntryTexts().back(), L"TQT");
  EXPECT_EQ(outcome.pnrAfter, outcome.pnrBefore);
}

}  // namespace
}  // namespace run
