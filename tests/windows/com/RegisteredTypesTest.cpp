#include <TestLibrary.h>

#include "hostlib/com/ClassBinding.h"
#include "hostlib/com/RegisteredText.h"
#include "hostlib/com/RegisteredTypes.h"
#include "tests/windows/com/TestServer.h"

namespace com_tests {
namespace {

using hostlib::com::IdText;
using hostlib::com::RegisteredTypesOf;

constexpr GUID kLibrary{0x7c0b53d4, 0x5a0f, 0x4a36, {0x9d, 0x8e, 0x2f, 0x1f, 0x5f, 0x2b, 0x6a, 0}};
constexpr CLSID kOfTheLibrary{0x11, 0x12, 0x13, {14, 15, 16, 17, 18, 19, 20, 21}};
constexpr REGSAM kOtherView = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;
constexpr const wchar_t* kPlatform = sizeof(void*) == 8 ? L"\\0\\win64" : L"\\0\\win32";

/// A class that is registered with the test library, which is registered as its version 1.0.
class RegisteredTypes : public testing::Test {
 protected:
  RegisteredTypes() {
    wchar_t program[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    SetText(Class() + L"\\TypeLib", IdText(kLibrary));
    SetVersion(L"1.0", std::wstring(program) + L"\\1");
  }
  ~RegisteredTypes() override {
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, Class().c_str());
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, Library().c_str());
    RegDeleteKeyExW(HKEY_LOCAL_MACHINE, (Class() + L"\\TypeLib").c_str(), kOtherView, 0);
    RegDeleteKeyExW(HKEY_LOCAL_MACHINE, Class().c_str(), kOtherView, 0);
  }

  static std::wstring Class() { return L"Software\\Classes\\CLSID\\" + IdText(kOfTheLibrary); }
  static void SetVersion(const std::wstring& version, const std::wstring& path) {
    SetText(Library() + L"\\" + version + kPlatform, path);
  }
  /// As a program of this width, or of the width that `view` says.
  static void SetText(const std::wstring& path, const std::wstring& text, REGSAM view = 0) {
    HKEY key = nullptr;
    ASSERT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, path.c_str(), 0, nullptr, 0, KEY_WRITE | view,
                              nullptr, &key, nullptr),
              ERROR_SUCCESS);
    const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    EXPECT_EQ(RegSetKeyValueW(key, nullptr, nullptr, REG_SZ, text.c_str(), bytes), ERROR_SUCCESS);
    RegCloseKey(key);
  }

 private:
  static std::wstring Library() { return L"Software\\Classes\\TypeLib\\" + IdText(kLibrary); }
};

TEST_F(RegisteredTypes, AreThoseOfTheClasssLibrary) {
  const TypeLibrary types = RegisteredTypesOf(kOfTheLibrary);
  ASSERT_NE(types, nullptr);
  EXPECT_NE(hostlib::com::FindCoclass(*types.Get(), __uuidof(::TestSession)), nullptr);
}

TEST_F(RegisteredTypes, AreFoundForAClassThatAProgramOfTheOtherWidthHasRegistered) {
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, Class().c_str());
  ASSERT_EQ(RegisteredTypesOf(kOfTheLibrary), nullptr);
  SetText(Class() + L"\\TypeLib", IdText(kLibrary), kOtherView);
  EXPECT_NE(RegisteredTypesOf(kOfTheLibrary), nullptr);
}

TEST_F(RegisteredTypes, AreNoneForAClassThatIsRegisteredWithout) {
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, Class().c_str());
  EXPECT_EQ(RegisteredTypesOf(kOfTheLibrary), nullptr);
}

TEST_F(RegisteredTypes, AreNoneWhereTheClassMayBeOfAnotherVersion) {
  SetVersion(L"1.1", L"C:\\V\\Other.tlb");
  EXPECT_EQ(RegisteredTypesOf(kOfTheLibrary), nullptr);
}

TEST_F(RegisteredTypes, AreNoneWhereTheirFileIsGone) {
  SetVersion(L"1.0", L"C:\\V\\Gone.tlb");
  EXPECT_EQ(RegisteredTypesOf(kOfTheLibrary), nullptr);
}

}  // namespace
}  // namespace com_tests
