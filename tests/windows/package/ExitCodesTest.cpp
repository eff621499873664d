#include <filesystem>

#include "tests/windows/package/Installation.h"

// The exit codes of docs/installing.md: 2 to 6. 0 is everywhere else, and for 1 a person is needed.

namespace package {
namespace {

using testing::IsEmpty;

TEST_F(Installation, AFileThatCannotBeWrittenEndsItWithItsOwnCode) {
  // A folder has the file's name.
  std::filesystem::create_directories(folder_ + L"\\PTA_QX.sample.ini");
  EXPECT_EQ(Install(), kNotWritten);
  EXPECT_FALSE(HasProgram(L"Uninstall.exe"));
  EXPECT_EQ(UserValue(kUninstallKey, L"DisplayName"), L"");
}

TEST_F(Installation, ThePracticeTerminalDoesNotTakeThePlaceOfAnother) {
  WriteMachineClass(L"Vantel.ScriptGlobal\\CLSID", kOtherClass);
  WriteMachineClass(std::wstring(L"CLSID\\") + kOtherClass + L"\\LocalServer32",
                    L"C:\\Vantel\\Vantel.exe");
  EXPECT_EQ(Install(L"/PRACTICE=yes"), kOtherTerminal);
  EXPECT_THAT(FilesIn(folder_), IsEmpty());
  EXPECT_EQ(Install(), 0U);
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

TEST_F(Installation, IsNotRemovedWhileTheProgramRuns) {
  Install();
  const auto files = FilesIn(folder_);
  const driver::Program program(folder_ + L"\\PTA_QX.exe");
  const HWND box = program.WaitForBox();
  EXPECT_EQ(UninstallAndWait(), kInUse);
  EXPECT_EQ(FilesIn(folder_), files);
  driver::Click(driver::OkButton(box));
  program.ExitCode();
  EXPECT_EQ(UninstallAndWait(), 0U);
}

// The Wine that this runs under starts no 32-bit programs, and says 0 for them.
TEST_F(Installation, APracticeTerminalThatCannotBeStartedIsToldByTheExitCode) {
  EXPECT_EQ(Install(L"/WIDTH=x86 /PRACTICE=yes"), kNotRegistered);
  EXPECT_TRUE(HasProgram(L"PTA_QX.exe"));
  EXPECT_FALSE(PracticeIsRegistered());
}

TEST_F(Installation, APracticeTerminalThatIsRefusedItsNamesIsToldByTheExitCode) {
  WriteMachineClass(L"Vantel.TerminalSession\\CLSID", kOtherClass);
  EXPECT_EQ(Install(L"/PRACTICE=yes"), kNotRegistered);
}

TEST_F(Installation, ARegistrationThatCannotBeTakenBackIsToldByTheExitCode) {
  Install(L"/PRACTICE=yes");
  WriteBytes(folder_ + L"\\VantelPractice.exe", "no program");
  EXPECT_EQ(UninstallAndWait(), kNotRegistered);
  EXPECT_TRUE(PracticeIsRegistered());
  // So that it can be taken back after all.
  EXPECT_EQ(Install(L"/PRACTICE=yes"), 0U);
}

}  // namespace
}  // namespace package
