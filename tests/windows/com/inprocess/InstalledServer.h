#pragma once

#include <TestLibrary.h>
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "hostlib/com/ObjectSource.h"

namespace com_tests {

/// A file as seen from the test program's folder.
inline std::wstring BesideThisProgram(const std::wstring& name) {
  std::array<wchar_t, MAX_PATH> path = {};
  GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  const std::wstring program = path.data();
  return program.substr(0, program.find_last_of(L'\\') + 1) + name;
}

/// The DLL is registered as the session's in its lifetime.
class InstalledServer {
 public:
  explicit InstalledServer(const std::wstring& dll) {
    Write(Key() + L"\\InprocServer32", nullptr, dll);
    Write(Key() + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
  }
  ~InstalledServer() { RegDeleteTreeW(HKEY_LOCAL_MACHINE, Key().c_str()); }
  InstalledServer(const InstalledServer&) = delete;
  InstalledServer& operator=(const InstalledServer&) = delete;

 private:
  static std::wstring Key() {
    std::array<wchar_t, 40> id = {};
    StringFromGUID2(__uuidof(::TestSession), id.data(), static_cast<int>(id.size()));
    return L"Software\\Classes\\CLSID\\" + std::wstring(id.data());
  }
  static void Write(const std::wstring& key, const wchar_t* name, const std::wstring& text) {
    const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    EXPECT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), name, REG_SZ, text.c_str(), bytes),
              ERROR_SUCCESS);
  }
};

/// The machine's classes, among which the session is the one of the DLL.
class WithTheServer : public hostlib::com::InstalledObjects {
 public:
  HRESULT FindClass(std::wstring_view, CLSID& classId) override {
    classId = __uuidof(::TestSession);
    return S_OK;
  }
};

}  // namespace com_tests
