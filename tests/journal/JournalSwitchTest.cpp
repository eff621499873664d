#include <gtest/gtest.h>

#include "journal/JournalSwitch.h"
#include "tests/journal/JournalBench.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/ScriptedLibrary.h"

namespace journal {
namespace {

bool IsWantedWith(const std::wstring& value) {
  platform::FixedPlatform platform;
  platform.iniValues[{L"Settings", L"Journal"}] = value;
  return IsWanted(platform);
}

TEST(JournalSwitch, IsOnWithoutTheKeyAndWithAnyOtherValueThanNo) {
  EXPECT_TRUE(IsWanted(platform::FixedPlatform()));
  for (const wchar_t* value : {L"", L"Yes", L"0", L"Off", L"Nope"})
    EXPECT_TRUE(IsWantedWith(value));
}

TEST(JournalSwitch, IsOffWithNoInWhateverCase) {
  for (const wchar_t* value : {L"No", L"no", L"NO", L" No "}) EXPECT_FALSE(IsWantedWith(value));
}

TEST(JournalSwitch, SwitchedOffGivesTheRunTheRealLibraryAndDesktop) {
  JournalBench bench;
  bench.platform.iniValues[{L"Settings", L"Journal"}] = L"No";
  bench.folder.files[L"PTA_2001-01-01_120000.txt"];
  support::ScriptedLibrary library;
  support::FakeDesktop desktop;
  RunJournal journal(desktop, bench.Place());
  EXPECT_EQ(&journal.Before(library), &library);
  EXPECT_EQ(&journal.desktop(), &desktop);
  EXPECT_EQ(journal.Ended(1), 1);
  // Not even the old ones are touched.
  EXPECT_EQ(bench.folder.Names(), std::vector<std::wstring>{L"PTA_2001-01-01_120000.txt"});
}

}  // namespace
}  // namespace journal
