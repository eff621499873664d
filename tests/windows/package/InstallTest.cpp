#include "tests/windows/package/Installation.h"

namespace package {
namespace {

using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;

TEST_F(Installation, IsSilentAndForTheUserAlone) {
  EXPECT_EQ(Install(), 0U);
  EXPECT_THAT(FilesIn(folder_),
              IsSupersetOf({L"PTA_QX.exe", L"PTA_QX.ini", L"PTA_QX.sample.ini", L"Uninstall.exe"}));
  EXPECT_FALSE(HasProgram(L"VantelPractice.exe"));
  EXPECT_EQ(FilesIn(menu_),
            (std::vector<std::wstring>{L"Guides.lnk", L"PTA.lnk", L"Uninstall PTA.lnk"}));
}

TEST_F(Installation, BringsTheGuidesThatTheStartMenuOpens) {
  EXPECT_EQ(Install(), 0U);
  EXPECT_TRUE(HasProgram(L"docs\\index.html"));
  EXPECT_TRUE(HasProgram(L"docs\\journal.html"));
  EXPECT_TRUE(HasProgram(L"docs\\pictures\\terminal.png"));
  EXPECT_EQ(ShortcutTarget(menu_ + L"\\Guides.lnk"), folder_ + L"\\docs\\index.html");
}

TEST_F(Installation, IsListedAmongTheUsersPrograms) {
  Install();
  EXPECT_EQ(UserValue(kUninstallKey, L"DisplayName"), L"PTA");
  EXPECT_EQ(UserValue(kUninstallKey, L"DisplayVersion"), PTA_VERSION_WIDE_TEXT);
  EXPECT_EQ(UserValue(kUninstallKey, L"Publisher"), L"PTA");
  EXPECT_EQ(UserValue(kUninstallKey, L"InstallLocation"), folder_);
  // Both programs, the guides and the pictures, in kilobytes.
  EXPECT_GT(UserNumber(kUninstallKey, L"EstimatedSize"), 500U);
  EXPECT_EQ(UserValue(kUninstallKey, L"QuietUninstallString"),
            L"\"" + folder_ + L"\\Uninstall.exe\" /S");
}

TEST_F(Installation, TheProgramStartsAndWithoutATerminalShowsItsConnectBox) {
  Install();
  const driver::Program program(folder_ + L"\\PTA_QX.exe");
  const HWND box = program.WaitForBox();
  EXPECT_EQ(
      driver::BoxText(box),
      L"Failed to connect to Vantel session.\n\nVerify that there is a Vantel session started.");
  driver::Click(driver::OkButton(box));
  EXPECT_EQ(program.ExitCode(), 0U);
}

TEST_F(Installation, OfOneThatWasRemovedAgainNothingIsLeft) {
  MakeUsersClasses();
  const auto files = FilesIn(UserPath(L"LOCALAPPDATA", L"\\Programs"));
  const auto user = RegistryBelow(HKEY_CURRENT_USER, L"Software");
  const auto machine = RegistryBelow(HKEY_LOCAL_MACHINE, kClasses);
  ASSERT_EQ(Install(L"/PRACTICE=yes"), 0U);
  ASSERT_TRUE(PracticeIsRegistered());
  EXPECT_THAT(Differences(RegistryBelow(HKEY_CURRENT_USER, L"Software"), user), Not(IsEmpty()));
  // As after a practice session that asked for the agent's office.
  RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\VantelPractice\\PTAStartup\\Values", L"OfficeID",
                  REG_SZ, L"A", 2 * sizeof(wchar_t));
  Uninstall();
  EXPECT_EQ(FilesIn(UserPath(L"LOCALAPPDATA", L"\\Programs")), files);
  EXPECT_FALSE(Exists(menu_));
  EXPECT_THAT(Differences(RegistryBelow(HKEY_CURRENT_USER, L"Software"), user), IsEmpty());
  EXPECT_THAT(Differences(RegistryBelow(HKEY_LOCAL_MACHINE, kClasses), machine), IsEmpty());
}

TEST_F(Installation, RemovingItLeavesTheUsersSettingsAndBookings) {
  Install(L"/PRACTICE=yes");
  WriteBytes(settings_, "[MINE]\r\n");
  WriteBytes(folder_ + L"\\pnrs\\mine.pnr", "NM SMITH/JOHN MR\n");
  Uninstall();
  EXPECT_EQ(FilesIn(folder_),
            (std::vector<std::wstring>{L"PTA_QX.ini", L"pnrs", L"pnrs\\mine.pnr"}));
  EXPECT_EQ(ReadBytes(settings_), "[MINE]\r\n");
}

TEST_F(Installation, ThePracticeTerminalComesWithItsBookingsAndIsRegistered) {
  EXPECT_EQ(Install(L"/PRACTICE=yes"), 0U);
  EXPECT_TRUE(HasProgram(L"VantelPractice.exe"));
  EXPECT_TRUE(HasProgram(L"pnrs\\ordinary.pnr"));
  EXPECT_TRUE(Exists(menu_ + L"\\Practice terminal.lnk"));
  EXPECT_TRUE(PracticeIsRegistered());
}

TEST_F(Installation, IsNarrowWhereOnlyNarrowProgramsCanLoadTheLibrary) {
  WriteMachineClass(L"Vantel.ScriptGlobal\\CLSID", kOtherClass);
  WriteMachineClass(std::wstring(L"Wow6432Node\\CLSID\\") + kOtherClass + L"\\InprocServer32",
                    L"C:\\Vantel\\Vantel.dll");
  EXPECT_EQ(Install(), 0U);
  EXPECT_EQ(MachineOf(L"PTA_QX.exe"), 0x14C);
}

TEST_F(Installation, GoesWhereTheUserSays) {
  const std::wstring elsewhere = UserPath(L"LOCALAPPDATA", L"\\PTA of mine");
  EXPECT_EQ(Install(L"/D=" + elsewhere), 0U);
  EXPECT_TRUE(Exists(elsewhere + L"\\PTA_QX.exe"));
  EXPECT_FALSE(Exists(folder_));
  EXPECT_EQ(RunToEnd(elsewhere + L"\\Uninstall.exe", L"/S"), 0U);
  EXPECT_TRUE(driver::Holds([&] { return !Exists(elsewhere); }));
}

}  // namespace
}  // namespace package
