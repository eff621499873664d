#include "tests/windows/package/Installation.h"

// A version over an older one, or over itself with other choices.

namespace package {
namespace {

using testing::IsEmpty;

TEST_F(Installation, AnUpgradeKeepsTheSettingsThatTheUserChanged) {
  Install();
  WriteBytes(settings_, "[MINE]\r\nPrintPNR=No\r\n");
  WriteBytes(folder_ + L"\\PTA_QX.exe", "an older one");
  EXPECT_EQ(Install(), 0U);
  EXPECT_EQ(ReadBytes(settings_), "[MINE]\r\nPrintPNR=No\r\n");
  EXPECT_EQ(ReadBytes(folder_ + L"\\PTA_QX.exe").substr(0, 2), "MZ");
}

TEST_F(Installation, AnUpgradeRemovesTheGuidesAndBookingsThatItDoesNotHaveItself) {
  Install(L"/PRACTICE=yes");
  const auto delivered = FilesIn(folder_);
  const std::string list = ReadBytes(folder_ + L"\\Installed.lst");
  WriteBytes(folder_ + L"\\Installed.lst", "docs\\old.html\r\npnrs\\old.pnr\r\n" + list);
  WriteBytes(folder_ + L"\\docs\\old.html", "an older one");
  WriteBytes(folder_ + L"\\pnrs\\old.pnr", "an older one");
  EXPECT_EQ(Install(), 0U);
  EXPECT_EQ(FilesIn(folder_), delivered);
}

TEST_F(Installation, AnUpgradeLeavesTheUsersFilesAmongTheGuidesAndBookings) {
  Install(L"/PRACTICE=yes");
  WriteBytes(folder_ + L"\\docs\\mine.txt", "mine");
  WriteBytes(folder_ + L"\\pnrs\\mine.pnr", "NM SMITH/JOHN MR\n");
  EXPECT_EQ(Install(), 0U);
  EXPECT_EQ(ReadBytes(folder_ + L"\\docs\\mine.txt"), "mine");
  EXPECT_EQ(ReadBytes(folder_ + L"\\pnrs\\mine.pnr"), "NM SMITH/JOHN MR\n");
}

TEST_F(Installation, AnUpgradeKeepsThePracticeTerminalUntilItIsNotWanted) {
  Install(L"/PRACTICE=yes");
  EXPECT_EQ(Install(), 0U);
  EXPECT_TRUE(HasProgram(L"VantelPractice.exe"));
  EXPECT_EQ(Install(L"/PRACTICE=no"), 0U);
  EXPECT_FALSE(HasProgram(L"VantelPractice.exe"));
  EXPECT_FALSE(HasProgram(L"pnrs"));
  EXPECT_FALSE(PracticeIsRegistered());
}

TEST_F(Installation, AnUpgradeMendsADamagedPracticeTerminal) {
  Install(L"/PRACTICE=yes");
  WriteBytes(folder_ + L"\\VantelPractice.exe", "no program");
  EXPECT_EQ(Install(), 0U);
  EXPECT_EQ(ReadBytes(folder_ + L"\\VantelPractice.exe").substr(0, 2), "MZ");
  EXPECT_TRUE(PracticeIsRegistered());
}

TEST_F(Installation, IsWideAsTheSwitchSaysAndStaysSo) {
  EXPECT_EQ(Install(), 0U);
  EXPECT_EQ(MachineOf(L"PTA_QX.exe"), 0x8664);
  EXPECT_EQ(Install(L"/WIDTH=x86"), 0U);
  EXPECT_EQ(MachineOf(L"PTA_QX.exe"), 0x14C);
  EXPECT_EQ(Install(), 0U);
  EXPECT_EQ(MachineOf(L"PTA_QX.exe"), 0x14C);
  EXPECT_EQ(Install(L"/WIDTH=auto"), 0U);
  EXPECT_EQ(MachineOf(L"PTA_QX.exe"), 0x8664);
}

// The narrow practice terminal can not be started here, so that nothing of its own is registered.
TEST_F(Installation, AnotherWidthTakesBackWhatTheOldOneRegistered) {
  const auto machine = RegistryBelow(HKEY_LOCAL_MACHINE, kClasses);
  ASSERT_EQ(Install(L"/PRACTICE=yes"), 0U);
  ASSERT_TRUE(PracticeIsRegistered());
  Install(L"/WIDTH=x86");
  EXPECT_FALSE(PracticeIsRegistered());
  EXPECT_THAT(Differences(RegistryBelow(HKEY_LOCAL_MACHINE, kClasses), machine), IsEmpty());
}

}  // namespace
}  // namespace package
