#include <gmock/gmock.h>
#include <objbase.h>

#include <algorithm>
#include <iterator>

#include "tests/windows/driver/Driver.h"
#include "tests/windows/driver/Program.h"
#include "tests/windows/package/Machine.h"
#include "version.h"

namespace package {
namespace {

using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;

constexpr wchar_t kUninstallKey[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\PTA";
constexpr wchar_t kClasses[] = L"Software\\Classes";
// A script library of another terminal program.
constexpr wchar_t kOtherClass[] = L"{11111111-2222-3333-4444-555555555555}";

// The exit codes that docs/installing.md promises.
constexpr DWORD kWrongSwitch = 3;
constexpr DWORD kInUse = 4;
constexpr DWORD kOtherTerminal = 5;

void WriteMachineClass(const std::wstring& key, const std::wstring& text) {
  const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
  ASSERT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, (kClasses + (L"\\" + key)).c_str(), nullptr, REG_SZ,
                            text.c_str(), bytes),
            ERROR_SUCCESS);
}

/// What stands in one list and not in the other, in either direction.
std::vector<std::wstring> Differences(const std::vector<std::wstring>& one,
                                      const std::vector<std::wstring>& other) {
  std::vector<std::wstring> differences;
  std::set_symmetric_difference(one.begin(), one.end(), other.begin(), other.end(),
                                std::back_inserter(differences));
  return differences;
}

// Wine has no classes of the user's own before somebody makes one; Windows has from the first day.
void MakeUsersClasses() {
  HKEY classes = nullptr;
  ASSERT_EQ(RegCreateKeyW(HKEY_CURRENT_USER, L"Software\\Classes\\CLSID", &classes), ERROR_SUCCESS);
  RegCloseKey(classes);
}

/// A user who has nothing of ours, before and after each test.
class Installation : public testing::Test {
 protected:
  Installation() { CleanUp(); }
  ~Installation() override { CleanUp(); }

  DWORD Install(const std::wstring& switches = L"") const {
    return RunToEnd(UserPath(L"PTA_INSTALLER", L""), L"/S " + switches);
  }
  /// The uninstaller works on in a copy of itself when its own process has ended.
  void Uninstall() const {
    EXPECT_EQ(RunToEnd(folder_ + L"\\Uninstall.exe", L"/S"), 0U);
    EXPECT_TRUE(driver::Holds([this] {
      return !Exists(folder_ + L"\\Uninstall.exe") &&
             UserValue(kUninstallKey, L"DisplayName") == L"";
    }));
    const std::wstring place = folder_ + L"\\PTA_QX.ini";
    // Its last step.
    driver::Holds([&] { return !Exists(folder_) || Exists(place) || Exists(folder_ + L"\\pnrs"); });
  }
  bool HasProgram(const wchar_t* name) const { return Exists(folder_ + L"\\" + name); }
  static bool PracticeIsRegistered() {
    CLSID found = {};
    return SUCCEEDED(CLSIDFromProgID(L"Vantel.ScriptGlobal", &found));
  }
  /// 0x8664 for 64 bit, 0x14C for 32.
  int MachineOf(const wchar_t* name) const {
    const std::string bytes = ReadBytes(folder_ + L"\\" + name);
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(bytes.at(at)); };
    const std::size_t header = byte(0x3C) + 256U * byte(0x3D);
    return byte(header + 4) + 256 * byte(header + 5);
  }

  const std::wstring folder_ = UserPath(L"LOCALAPPDATA", L"\\Programs\\PTA");
  const std::wstring menu_ =
      UserPath(L"APPDATA", L"\\Microsoft\\Windows\\Start Menu\\Programs\\PTA");
  const std::wstring settings_ = folder_ + L"\\PTA_QX.ini";

 private:
  void CleanUp() const {
    if (HasProgram(L"Uninstall.exe")) Uninstall();
    RemoveTree(folder_);
    const std::wstring classes = kClasses;
    for (const std::wstring& key :
         {classes + L"\\Vantel.ScriptGlobal", classes + L"\\CLSID\\" + kOtherClass,
          classes + L"\\Wow6432Node\\CLSID\\" + kOtherClass}) {
      RegDeleteTreeW(HKEY_LOCAL_MACHINE, key.c_str());
    }
  }
};

TEST_F(Installation, IsSilentAndForTheUserAlone) {
  EXPECT_EQ(Install(), 0U);
  EXPECT_THAT(FilesIn(folder_),
              IsSupersetOf({L"PTA_QX.exe", L"PTA_QX.ini", L"PTA_QX.sample.ini", L"Uninstall.exe"}));
  EXPECT_FALSE(HasProgram(L"VantelPractice.exe"));
  EXPECT_EQ(FilesIn(menu_), (std::vector<std::wstring>{L"PTA.lnk", L"Uninstall PTA.lnk"}));
}

TEST_F(Installation, IsListedAmongTheUsersPrograms) {
  Install();
  EXPECT_EQ(UserValue(kUninstallKey, L"DisplayName"), L"PTA");
  EXPECT_EQ(UserValue(kUninstallKey, L"DisplayVersion"), PTA_VERSION_WIDE_TEXT);
  EXPECT_EQ(UserValue(kUninstallKey, L"InstallLocation"), folder_);
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

TEST_F(Installation, AnUpgradeKeepsTheSettingsThatTheUserChanged) {
  Install();
  WriteBytes(settings_, "[MINE]\r\nPrintPNR=No\r\n");
  WriteBytes(folder_ + L"\\PTA_QX.exe", "an older one");
  EXPECT_EQ(Install(), 0U);
  EXPECT_EQ(ReadBytes(settings_), "[MINE]\r\nPrintPNR=No\r\n");
  EXPECT_EQ(ReadBytes(folder_ + L"\\PTA_QX.exe").substr(0, 2), "MZ");
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

TEST_F(Installation, AnUpgradeKeepsThePracticeTerminalUntilItIsNotWanted) {
  Install(L"/PRACTICE=yes");
  EXPECT_EQ(Install(), 0U);
  EXPECT_TRUE(HasProgram(L"VantelPractice.exe"));
  EXPECT_EQ(Install(L"/PRACTICE=no"), 0U);
  EXPECT_FALSE(HasProgram(L"VantelPractice.exe"));
  EXPECT_FALSE(HasProgram(L"pnrs"));
  EXPECT_FALSE(PracticeIsRegistered());
}

TEST_F(Installation, ThePracticeTerminalDoesNotTakeThePlaceOfAnother) {
  WriteMachineClass(L"Vantel.ScriptGlobal\\CLSID", kOtherClass);
  WriteMachineClass(std::wstring(L"CLSID\\") + kOtherClass + L"\\LocalServer32",
                    L"C:\\Vantel\\Vantel.exe");
  EXPECT_EQ(Install(L"/PRACTICE=yes"), kOtherTerminal);
  EXPECT_THAT(FilesIn(folder_), IsEmpty());
  EXPECT_EQ(Install(), 0U);
}

TEST_F(Installation, IsWideAsTheSwitchSaysAndStaysSo) {
  EXPECT_EQ(Install(), 0U);
  EXPECT_EQ(MachineOf(L"PTA_QX.exe"), 0x8664);
  EXPECT_EQ(Install(L"/WIDTH=x86 /PRACTICE=yes"), 0U);
  EXPECT_EQ(MachineOf(L"PTA_QX.exe"), 0x14C);
  EXPECT_EQ(Install(), 0U);
  EXPECT_EQ(MachineOf(L"PTA_QX.exe"), 0x14C);
  EXPECT_EQ(Install(L"/WIDTH=auto"), 0U);
  EXPECT_EQ(MachineOf(L"PTA_QX.exe"), 0x8664);
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

TEST_F(Installation, AWrongSwitchChangesNothing) {
  EXPECT_EQ(Install(L"/WIDTH=x64bit"), kWrongSwitch);
  EXPECT_EQ(Install(L"/PRACTICE=perhaps"), kWrongSwitch);
  EXPECT_THAT(FilesIn(folder_), IsEmpty());
}

TEST_F(Installation, IsNotDoneWhileTheProgramRuns) {
  Install();
  const auto files = FilesIn(folder_);
  const driver::Program program(folder_ + L"\\PTA_QX.exe");
  const HWND box = program.WaitForBox();
  EXPECT_EQ(Install(L"/WIDTH=x86"), kInUse);
  EXPECT_EQ(FilesIn(folder_), files);
  EXPECT_EQ(MachineOf(L"PTA_QX.exe"), 0x8664);
  driver::Click(driver::OkButton(box));
  program.ExitCode();
}

}  // namespace
}  // namespace package
