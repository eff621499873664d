#include <gtest/gtest.h>

#include "common/Text.h"
#include "tests/run/Scenes.h"

// The PWCT remark that the dialog shows, and the OSI that is entered for SK.
namespace run {
namespace {

bool CreatesPWCT(const practice::RehearsalOutcome& outcome) {
  for (const std::wstring& element : NewElements(outcome)) {
    if (element.starts_with(L"RM PWCT")) return true;
  }
  return false;
}

TEST(PWCTRun, TheRemarkForTheChosenSegmentsIsTheOneThatIsChanged) {
  const auto outcome = RehearseBooking("pwct-by-segments");
  EXPECT_TRUE(Holds(outcome.EntryTexts(), L"CH 12 PWCT SK AT ARN"));
  EXPECT_TRUE(Holds(LinesAdded(outcome), L"RM PWCT SK AT ARN [S3-4]"));
  EXPECT_EQ(LinesGone(outcome),
            (Lines{L"TK TL 10MAR07", L"FP CASH", L"RM PWCT THESE SEGMENTS [S3-4]"}));
  EXPECT_FALSE(CreatesPWCT(outcome));
}

TEST(PWCTRun, ARemarkForOtherSegmentsIsPassedOverForOneForAll) {
  const auto outcome = RehearseBooking("pwct-for-all");
  EXPECT_TRUE(Holds(outcome.seen, L"  txtPWCT \"ALL SEGMENTS\""));
  EXPECT_EQ(LinesGone(outcome), (Lines{L"TK TL 10MAR07", L"FP CASH"}));
  EXPECT_FALSE(CreatesPWCT(outcome));
}

TEST(PWCTRun, WhenAllRemarksAreForOtherSegmentsTheScriptProposesOne) {
  auto scene = SceneOf("pwct-for-all");
  Change(scene.booking, L"RM PWCT ALL SEGMENTS\n", L"");
  Change(scene.booking, L"RM PWCT THESE SEGMENTS [S3-4]", L"RM PWCT OTHERS TOO [S4]");
  Change(scene.agent, L"see txtPWCT \"ALL SEGMENTS\"",
         L"see txtPWCT \"SK AT ARN A/P BEFORE DEPARTURE\"");
  EXPECT_TRUE(CreatesPWCT(RehearseInAgreement(scene)));
}

TEST(PWCTRun, WithOneFareTheFirstRemarkIsTakenWhateverItIsFor) {
  const auto outcome = RehearseBooking("pwct-one-fare");
  EXPECT_TRUE(Holds(LinesAdded(outcome), L"RM PWCT SK AT ARN [S2]"));
  EXPECT_EQ(LinesGone(outcome),
            (Lines{L"TK TL 10MAR07", L"FP CASH", L"RM PWCT OTHER SEGMENTS [S2]"}));
}

TEST(PWCTRun, ALeadingBlankKeepsTheEndOfTheWord) {
  const auto outcome = RehearseBooking("pwct-leading-blanks");
  EXPECT_TRUE(Holds(outcome.seen, L"  txtPWCT \"T REISSUE\""));
  EXPECT_TRUE(Holds(outcome.EntryTexts(), L"CH 10 PWCT REISSUE"));
  EXPECT_TRUE(Holds(LinesGone(outcome), L"RM  PWCT REISSUE"));
}

TEST(PWCTRun, EveryFurtherLeadingBlankKeepsOneMoreLetter) {
  auto scene = SceneOf("pwct-leading-blanks");
  Change(scene.booking, L"RM  PWCT", L"RM    PWCT");
  Change(scene.agent, L"\"T REISSUE\"", L"\"WCT REISSUE\"");
  RehearseInAgreement(scene);
}

TEST(PWCTRun, ALowerCaseRemarkStaysAndANewOneIsEntered) {
  const auto outcome = RehearseBooking("pwct-lower-case");
  EXPECT_TRUE(Holds(LinesAdded(outcome), L"RM PWCT SK AT  A/P BEFORE DEPARTURE [P1]"));
  EXPECT_EQ(LinesGone(outcome), (Lines{L"TK TL 10MAR07", L"FP CASH"}));
}

TEST(OSIRun, AnOSIForSKIsEnough) {
  const auto outcome = RehearseBooking("osi-there");
  EXPECT_FALSE(Holds(outcome.EntryTexts(), L"OS SK PTA"));
  // Both OSI elements were read: the one for another airline comes first.
  EXPECT_TRUE(Holds(outcome.calls, LR"(ParameterBag.1.8 GetValue("strKeyAirline") -> "LH")"));
  EXPECT_FALSE(Holds(LinesAdded(outcome), L"OS SK PTA"));
}

class OSIThatDoesNotCount : public testing::TestWithParam<const char*> {};

TEST_P(OSIThatDoesNotCount, IsJoinedByOneForSKSentOnce) {
  const auto outcome = RehearseBooking(GetParam());
  EXPECT_EQ(EntriesBeforeWriting(outcome), ReadingEntries());
  EXPECT_TRUE(Holds(LinesAdded(outcome), L"OS SK PTA"));
  EXPECT_EQ(LinesGone(outcome), (Lines{L"TK TL 10MAR07", L"FP CASH"}));
}

INSTANTIATE_TEST_SUITE_P(OSIRun, OSIThatDoesNotCount,
                         testing::Values("osi-other-airline", "osi-without-text"));

}  // namespace
}  // namespace run
