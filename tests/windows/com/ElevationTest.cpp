#include <gmock/gmock.h>

#include "hostlib/Object.h"
#include "hostlib/com/Elevation.h"

namespace com_tests {
namespace {

using hostlib::com::ClassServer;
using hostlib::com::IsOutOfReach;
using hostlib::com::ProgramIn;
using hostlib::com::ThisMachine;

constexpr CLSID kClass{0x1, 0x2, 0x3, {4, 5, 6, 7, 8, 9, 10, 11}};

/// A machine as a test says.
class ToldMachine : public hostlib::com::Machine {
 public:
  bool isElevated = false;
  std::vector<ClassServer> servers;
  std::vector<std::wstring> elevated;

  bool IsThisProgramElevated() const override { return isElevated; }
  std::vector<ClassServer> ServersOf(const CLSID&) const override { return servers; }
  std::vector<std::wstring> ElevatedPrograms() const override { return elevated; }
};

class OutOfReach : public testing::Test {
 protected:
  bool IsIt(HRESULT failure = MK_E_UNAVAILABLE) { return IsOutOfReach(machine_, kClass, failure); }

  ToldMachine machine_;
};

TEST_F(OutOfReach, IsATerminalThatRunsElevatedItself) {
  machine_.servers = {{L"C:\\Vantel\\Terminal.exe", false}};
  EXPECT_FALSE(IsIt());
  machine_.elevated = {L"C:\\Windows\\regedit.exe", L"D:\\Copy\\TERMINAL.EXE"};
  EXPECT_TRUE(IsIt());
  machine_.elevated = {L"Terminal.exe"};
  EXPECT_TRUE(IsIt());
  machine_.elevated = {L"C:\\Vantel\\Setup.exe"};
  EXPECT_FALSE(IsIt());
}

TEST_F(OutOfReach, IsAProgramThatRunsElevatedBesideTheLibraryItBrings) {
  machine_.servers = {{L"C:\\Vantel\\Script.dll", true}};
  machine_.elevated = {L"c:\\vantel\\Terminal.exe"};
  EXPECT_TRUE(IsIt());
  machine_.elevated = {L"C:\\Vantel\\Tools\\Other.exe", L"Terminal.exe", L"D:\\Script.dll"};
  EXPECT_FALSE(IsIt());
}

TEST_F(OutOfReach, LibrariesInNoFolderOfTheirOwnBelongToNobody) {
  machine_.servers = {{L"Script.dll", true}};
  machine_.elevated = {L"Terminal.exe"};
  EXPECT_FALSE(IsIt());
}

TEST_F(OutOfReach, EveryServerOfTheClassIsLookedAt) {
  machine_.servers = {{L"C:\\Vantel\\Script.dll", true}, {L"C:\\Vantel32\\Terminal.exe", false}};
  machine_.elevated = {L"C:\\Vantel32\\Terminal.exe"};
  EXPECT_TRUE(IsIt());
}

TEST_F(OutOfReach, IsWhatWindowsRefusesForItsRights) {
  EXPECT_TRUE(IsIt(E_ACCESSDENIED));
  EXPECT_TRUE(IsIt(hostlib::kTerminalIsElevated));
  EXPECT_FALSE(IsIt(REGDB_E_CLASSNOTREG));
}

TEST_F(OutOfReach, IsNothingForAProgramThatRunsElevatedToo) {
  machine_.isElevated = true;
  machine_.servers = {{L"C:\\Vantel\\Terminal.exe", false}};
  machine_.elevated = {L"C:\\Vantel\\Terminal.exe"};
  EXPECT_FALSE(IsIt());
  EXPECT_FALSE(IsIt(E_ACCESSDENIED));
}

TEST(Elevation, ReadsTheProgramOfARegisteredCommandLine) {
  EXPECT_EQ(ProgramIn(L"\"C:\\Program Files\\Vantel\\Terminal.exe\" /automation"),
            L"C:\\Program Files\\Vantel\\Terminal.exe");
  EXPECT_EQ(ProgramIn(L"C:\\Program Files\\Vantel\\Terminal.exe /automation"),
            L"C:\\Program Files\\Vantel\\Terminal.exe");
  EXPECT_EQ(ProgramIn(L"Terminal.exe"), L"Terminal.exe");
  EXPECT_EQ(ProgramIn(L"\"C:\\Broken.exe"), L"C:\\Broken.exe");
  EXPECT_EQ(ProgramIn(L""), L"");
}

TEST(Elevation, ThisProgramIsSeenAsItIs) {
  wchar_t path[MAX_PATH] = L"";
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  const std::vector<std::wstring> elevated = ThisMachine().ElevatedPrograms();
  const bool isListed = std::any_of(elevated.begin(), elevated.end(), [&](const std::wstring& one) {
    return lstrcmpiW(one.c_str(), path) == 0;
  });
  EXPECT_EQ(isListed, ThisMachine().IsThisProgramElevated());
}

TEST(Elevation, AClassThatIsNotRegisteredHasNoServer) {
  EXPECT_TRUE(ThisMachine().ServersOf(kClass).empty());
}

/// A registered class, for programs of one width.
class RegisteredClass {
 public:
  RegisteredClass(REGSAM view, const wchar_t* kind, const std::wstring& text) : view_(view) {
    HKEY key = nullptr;
    const std::wstring path = kPath + (L"\\" + std::wstring(kind));
    EXPECT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, path.c_str(), 0, nullptr, 0,
                              KEY_ALL_ACCESS | view_, nullptr, &key, nullptr),
              ERROR_SUCCESS);
    EXPECT_EQ(RegSetValueExW(key, nullptr, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                             static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))),
              ERROR_SUCCESS);
    RegCloseKey(key);
  }
  ~RegisteredClass() {
    HKEY classes = nullptr;
    RegOpenKeyExW(HKEY_LOCAL_MACHINE, kClasses, 0, KEY_ALL_ACCESS | view_, &classes);
    RegDeleteTreeW(classes, kPath + std::size(L"Software\\Classes\\CLSID\\") - 1);
    RegCloseKey(classes);
  }
  RegisteredClass(const RegisteredClass&) = delete;
  RegisteredClass& operator=(const RegisteredClass&) = delete;

 private:
  static constexpr wchar_t kClasses[] = L"Software\\Classes\\CLSID";
  static constexpr wchar_t kPath[] =
      L"Software\\Classes\\CLSID\\{00000001-0002-0003-0405-060708090A0B}";
  REGSAM view_;
};

TEST(Elevation, AServerForProgramsOfEitherWidthIsFound) {
  const ClassServer program{L"C:\\V\\T.exe", false};
  const ClassServer library{L"C:\\V\\S.dll", true};
  const RegisteredClass narrow(KEY_WOW64_32KEY, L"LocalServer32", L"\"C:\\V\\T.exe\" /a");
  EXPECT_THAT(ThisMachine().ServersOf(kClass), testing::ElementsAre(program));
  const RegisteredClass wide(KEY_WOW64_64KEY, L"InprocServer32", L"C:\\V\\S.dll");
  EXPECT_THAT(ThisMachine().ServersOf(kClass), testing::UnorderedElementsAre(program, library));
}

}  // namespace
}  // namespace com_tests
