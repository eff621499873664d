#include <gtest/gtest.h>

#include "tests/windows/program/Stage.h"

namespace driver {

namespace {

// What a written agent can do before the windows that it can do without them.

TEST(AWrittenAgent, LetsATimerRunOff) {
  Stage stage;
  stage.SetBooking(ProjectFile(L"practice\\pnrs\\document-on-its-way.pnr"));
  stage.Work(ProjectFile(L"practice\\pnrs\\document-on-its-way.agent"));
  EXPECT_EQ(stage.ExitCode(), 0u);
}

TEST(AWrittenAgent, PicksExactlyTheLinesItNamesWhateverIsPickedAlready) {
  Stage stage;
  stage.SetBooking(ProjectFile(L"practice\\pnrs\\write-bod-association.pnr"));
  stage.Work(
      L"form frmSelectTST\n"
      L"pick lstTST 1,2\n"
      L"pick lstTST 3,1\n"
      L"click cmdOK\n"
      L"form frmPTA\n"
      L"see txtPTA \"SEK1800/TAX SEK220XT, SEK40YQ\"\n"
      L"click cmdCancel\n");
  EXPECT_EQ(stage.ExitCode(), 0u);
}

TEST(AWrittenAgent, PastesOverWhatIsThere) {
  Stage stage;
  stage.Work(
      L"form frmPTA\n"
      L"paste txtPWCT \"sk at arn\"\n"
      L"see txtPWCT \"SK AT ARN\"\n"
      L"click cmdCancel\n");
  EXPECT_EQ(stage.ExitCode(), 0u);
}

}  // namespace

}  // namespace driver
