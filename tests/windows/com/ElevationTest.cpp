#include <gtest/gtest.h>

#include "hostlib/com/Elevation.h"

namespace com_tests {
namespace {

using hostlib::com::ProgramIn;

TEST(Elevation, ReadsTheProgramOfARegisteredCommandLine) {
  EXPECT_EQ(ProgramIn(L"\"C:\\Program Files\\Vantel\\Terminal.exe\" /automation"), L"Terminal.exe");
  EXPECT_EQ(ProgramIn(L"C:\\Program Files\\Vantel\\Terminal.exe /automation"), L"Terminal.exe");
  EXPECT_EQ(ProgramIn(L"Terminal.exe"), L"Terminal.exe");
  EXPECT_EQ(ProgramIn(L"\"C:\\Broken.exe"), L"Broken.exe");
  EXPECT_EQ(ProgramIn(L""), L"");
}

TEST(Elevation, AProgramThatDoesNotRunIsNotElevated) {
  EXPECT_FALSE(hostlib::com::RunsElevated(L"no such program.exe"));
}

TEST(Elevation, ThisProgramIsSeenAsItIs) {
  wchar_t path[MAX_PATH] = L"";
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  EXPECT_EQ(hostlib::com::RunsElevated(ProgramIn(path)), hostlib::com::IsThisProgramElevated());
}

TEST(Elevation, AClassThatIsNotRegisteredHasNoServer) {
  EXPECT_EQ(hostlib::com::LocalServerOf(CLSID{0x1, 0x2, 0x3, {4, 5, 6, 7, 8, 9, 10, 11}}), L"");
}

}  // namespace
}  // namespace com_tests
