#include <gtest/gtest.h>

#include "app/AttachObjects.h"
#include "platform/FixedPlatform.h"

namespace app {
namespace {

using hostlib::LibraryError;

struct Bench {
  ui::Form form{L"frmWorking"};
  ui::Label text{form, L"lblText", L"Reading"};
  platform::FixedPlatform platform;
  hostlib::ObjectPtr progress = MakeProgressFormObject(form, text);
  hostlib::ObjectPtr application = MakeApplicationObject(platform);
};

TEST(AttachObjects, TellTheProgressFormsCaptionAndText) {
  Bench bench;
  bench.form.SetCaption(L"PTA");
  EXPECT_EQ(bench.progress->ClassName(), L"frmWorking");
  EXPECT_EQ(bench.progress->Call(7, {}).Text(), L"PTA");
  EXPECT_EQ(bench.progress->Call(8, {}).Text(), L"Reading");
}

TEST(AttachObjects, TellTheApplicationsTitleFolderAndInstance) {
  Bench bench;
  EXPECT_EQ(bench.application->ClassName(), L"Application");
  EXPECT_EQ(bench.application->Call(7, {}).Text(), L"  PTA Script ");
  EXPECT_EQ(bench.application->Call(8, {}).Text(), L"C:\\PTA");
  EXPECT_EQ(bench.application->Call(9, {}).Long(), 1);
}

TEST(AttachObjects, FailWhenTheyAreAskedForWhatTheyHaveNot) {
  Bench bench;
  for (const int slot : {0, 6, 9}) EXPECT_THROW(bench.progress->Call(slot, {}), LibraryError);
  for (const int slot : {0, 6, 10}) EXPECT_THROW(bench.application->Call(slot, {}), LibraryError);
  EXPECT_THROW(bench.application->Interface(2), LibraryError);
}

TEST(AttachObjects, SayInTheFailureWhoseMemberIsMissing) {
  Bench bench;
  try {
    bench.progress->Interface(2);
    FAIL() << "nothing was thrown";
  } catch (const LibraryError& error) {
    EXPECT_EQ(error.number(), static_cast<std::int32_t>(0x80020003));
    EXPECT_EQ(error.source(), L"frmWorking");
    EXPECT_EQ(error.description(), L"Member not found");
  }
}

}  // namespace
}  // namespace app
