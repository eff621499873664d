#pragma once

#include <gmock/gmock.h>
#include <objbase.h>

#include <algorithm>
#include <iterator>

#include "tests/windows/driver/Driver.h"
#include "tests/windows/driver/Program.h"
#include "tests/windows/package/Machine.h"
#include "version.h"

namespace package {

inline constexpr wchar_t kUninstallKey[] =
    L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\PTA";
inline constexpr wchar_t kClasses[] = L"Software\\Classes";
// A script library of another terminal program.
inline constexpr wchar_t kOtherClass[] = L"{11111111-2222-3333-4444-555555555555}";

// The exit codes that docs/installing.md promises.
inline constexpr DWORD kNotWritten = 2;
inline constexpr DWORD kWrongSwitch = 3;
inline constexpr DWORD kInUse = 4;
inline constexpr DWORD kOtherTerminal = 5;
inline constexpr DWORD kNotRegistered = 6;

inline void WriteMachineClass(const std::wstring& key, const std::wstring& text) {
  const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
  ASSERT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, (kClasses + (L"\\" + key)).c_str(), nullptr, REG_SZ,
                            text.c_str(), bytes),
            ERROR_SUCCESS);
}

/// What stands in one list and not in the other, in either direction.
inline std::vector<std::wstring> Differences(const std::vector<std::wstring>& one,
                                             const std::vector<std::wstring>& other) {
  std::vector<std::wstring> differences;
  std::set_symmetric_difference(one.begin(), one.end(), other.begin(), other.end(),
                                std::back_inserter(differences));
  return differences;
}

// Wine has no classes of the user's own before somebody makes one; Windows has from the first day.
inline void MakeUsersClasses() {
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
  /// The uninstaller's exit code. It stays behind itself.
  DWORD UninstallAndWait() const {
    return RunToEnd(folder_ + L"\\Uninstall.exe", L"/S _?=" + folder_);
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
          classes + L"\\Wow6432Node\\CLSID\\" + kOtherClass,
          classes + L"\\Vantel.TerminalSession"}) {
      RegDeleteTreeW(HKEY_LOCAL_MACHINE, key.c_str());
    }
  }
};

}  // namespace package
