#include <gtest/gtest.h>

#include "common/ConstDefintions.h"
#include "tests/faults/Oracle.h"
#include "tests/faults/RuledBoxes.h"

// The oracle finds what is broken: a matrix judged by one that finds nothing would prove nothing.
namespace faults {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

Event Entry(std::wstring text, Event::Outcome outcome = Event::Outcome::kAnswered) {
  return {.kind = Event::Kind::kEntry, .text = std::move(text), .outcome = outcome};
}

Event Box(std::wstring text, int style) {
  return {.kind = Event::Kind::kBox,
          .text = std::move(text),
          .style = style,
          .title = std::wstring(common::kTitle)};
}

/// A box that is to show the last error, which says this.
Event LastErrorBox(std::wstring text, std::wstring says, bool byProgram) {
  Event box = Box(std::move(text), common::kCritical);
  box.lastError = LastErrorShown{std::move(says), byProgram};
  return box;
}

constexpr const wchar_t* kTicketing = L"Error when updating the Ticketing Element!";

practice::RehearsalScene Scene() { return RecordedRuns().front().scene(); }

TEST(Oracle, FindsNothingInAnUndisturbedRun) {
  const Shown shown = Perform(Scene());
  Replays replays(Scene());
  EXPECT_THAT(Judge(replays, shown, shown, {}), IsEmpty());
}

TEST(Oracle, FindsABoxThatNoRuleNames) {
  EXPECT_THAT(OnTheBoxes({Box(L"Something went wrong", 16)}),
              ElementsAre(L"no rule names the box 16 \"  PTA Script \" \"Something went wrong\""));
  EXPECT_THAT(OnTheBoxes({Box(kTicketing, 48)}), SizeIs(1));
  EXPECT_THAT(OnTheBoxes({Box(kTicketing, 16)}), IsEmpty());
}

TEST(Oracle, FindsTheBoxOfAnUnexpectedFailure) {
  const Event box = Box(L"The script ended because of an unexpected failure.\r\rx", 16);
  EXPECT_THAT(OnTheBoxes({box}), SizeIs(1));
}

TEST(Oracle, FindsALastErrorWithAnotherText) {
  EXPECT_THAT(OnTheBoxes({LastErrorBox(L"Something else", L"Session lost", true)}),
              ElementsAre(L"no rule names the box 16 \"  PTA Script \" \"Something else\""));
  EXPECT_THAT(OnTheBoxes({LastErrorBox(L"Something else", L"Session lost", false)}), SizeIs(1));
  EXPECT_THAT(OnTheBoxes({LastErrorBox(L"Session lost", L"Session lost", true)}), IsEmpty());
  EXPECT_THAT(OnTheBoxes({LastErrorBox(L"Session lost", L"Session lost", false)}), IsEmpty());
}

TEST(Oracle, FindsALastErrorInAnotherForm) {
  Event box = LastErrorBox(L"Session lost", L"Session lost", false);
  box.style = 48;
  EXPECT_THAT(OnTheBoxes({box}), SizeIs(1));
  box.style = 16;
  box.title = L"PTA";
  EXPECT_THAT(OnTheBoxes({box}), SizeIs(1));
}

TEST(Oracle, FindsAnEntryAfterALastErrorThatTheProgramHasShown) {
  const Event box = LastErrorBox(L"Session lost", L"Session lost", true);
  EXPECT_THAT(OnWhatIsSentAfterAnEnd({Entry(L"CH 6 TK OK"), box, Entry(L"BT")}),
              ElementsAre(L"after the end by \"Session lost\" is sent \"BT\""));
}

TEST(Oracle, LetsTheRunGoOnAfterALastErrorThatTheLibraryHasShown) {
  const Event box = LastErrorBox(L"Session lost", L"Session lost", false);
  EXPECT_THAT(OnWhatIsSentAfterAnEnd({Entry(L"RT"), box, Entry(L"TQT")}), IsEmpty());
}

TEST(Oracle, FindsAnEntryAfterAReportThatEndsTheRun) {
  EXPECT_THAT(
      OnWhatIsSentAfterAnEnd({Entry(L"CH 6 TK OK"), Box(kTicketing, 16), Entry(L"BT")}),
      ElementsAre(L"after the end by \"" + std::wstring(kTicketing) + L"\" is sent \"BT\""));
}

TEST(Oracle, LetsTheRunGoOnAfterAReportThatDoesNotEndIt) {
  const Event box = Box(L"Error when sending the BT command!", 16);
  EXPECT_THAT(OnWhatIsSentAfterAnEnd({Entry(L"BT"), box, Entry(L"QE")}), IsEmpty());
}

TEST(Oracle, FindsAnEntryAfterACancel) {
  const Event cancel{.kind = Event::Kind::kCancel, .text = L"frmSelectTST"};
  EXPECT_THAT(OnWhatIsSentAfterAnEnd({cancel, Entry(L"TQT")}), SizeIs(1));
}

TEST(Oracle, FindsAnEntryThatTheHostNeverTook) {
  Shown shown;
  shown.timeline = {Entry(L"RT"), Entry(L"BT")};
  shown.outcome.entries = {{L"RT", L""}};
  EXPECT_THAT(OnTheEntries(shown), ElementsAre(L"answered, and the host did not take it: \"BT\""));
}

TEST(Oracle, FindsAnEntryThatNobodySent) {
  Shown shown;
  shown.timeline = {Entry(L"RT", Event::Outcome::kBrokeOff)};
  shown.outcome.entries = {{L"RT", L""}, {L"BT", L""}};
  EXPECT_THAT(OnTheEntries(shown), ElementsAre(L"the host took what was not sent: \"BT\""));
}

TEST(Oracle, FindsAPNRThatTheEntriesDoNotExplain) {
  Shown shown = Perform(Scene());
  shown.outcome.entries.pop_back();
  shown.outcome.sentToBackOffice.push_back(L"once more");
  shown.outcome.pnrAfter += L"X";
  Replays replays(Scene());
  EXPECT_THAT(OnThePNR(replays, shown),
              ElementsAre(L"the entries do not explain the PNR",
                          L"the entries do not explain what the back office got"));
}

TEST(Oracle, FindsAnAgentWhoWasNotTold) {
  const Event before = Box(kTicketing, 16);
  EXPECT_THAT(OnTheAgentsKnowledge({}, {before}), ElementsAre(L"the agent was not told"));
  Event after = before;
  after.afterFault = true;
  EXPECT_THAT(OnTheAgentsKnowledge({}, {after}), IsEmpty());
}

TEST(Oracle, TakesNoBoxOfAnOrdinaryRunForTheFaults) {
  const Event ordinary = Box(kTicketing, 16);
  Event after = ordinary;
  after.afterFault = true;
  EXPECT_THAT(OnTheAgentsKnowledge({ordinary}, {after}), ElementsAre(L"the agent was not told"));
  EXPECT_THAT(OnTheAgentsKnowledge({ordinary}, {ordinary, after}), IsEmpty());
}

TEST(Oracle, FindsWhatIsLeftBehind) {
  Shown shown;
  shown.outcome.exitCode = 1;
  shown.outcome.liveObjects = 2;
  EXPECT_THAT(OnTheEnd(shown), ElementsAre(L"the exit code is not 0", L"2 objects are left"));
}

}  // namespace
}  // namespace faults
