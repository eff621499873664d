#include <TestLibrary.h>
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "common/Text.h"
#include "hostlib/com/Apartment.h"
#include "hostlib/com/ComLibrary.h"
#include "hostlib/com/ObjectSource.h"

namespace com_tests {
namespace {

using hostlib::Value;

std::wstring ServerKey() {
  std::array<wchar_t, 40> id = {};
  StringFromGUID2(__uuidof(::TestSession), id.data(), static_cast<int>(id.size()));
  return L"Software\\Classes\\CLSID\\" + std::wstring(id.data());
}

std::wstring BesideThisProgram(const wchar_t* name) {
  std::array<wchar_t, MAX_PATH> path = {};
  GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  const std::wstring program = path.data();
  return program.substr(0, program.find_last_of(L'\\') + 1) + name;
}

void Write(const std::wstring& key, const wchar_t* name, const std::wstring& text) {
  const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
  ASSERT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), name, REG_SZ, text.c_str(), bytes),
            ERROR_SUCCESS);
}

/// The machine's classes, among which the session is the one of the DLL beside this program.
class WithTheServer : public hostlib::com::InstalledObjects {
 public:
  HRESULT FindClass(std::wstring_view, CLSID& classId) override {
    classId = __uuidof(::TestSession);
    return S_OK;
  }
};

/// A library that is loaded into the program, as wide as the program is.
class InProcess : public testing::Test {
 protected:
  InProcess() {
    const std::wstring server = ServerKey() + L"\\InprocServer32";
    Write(server, nullptr, BesideThisProgram(L"inprocess_server.dll"));
    Write(server, L"ThreadingModel", L"Apartment");
  }
  ~InProcess() override { RegDeleteTreeW(HKEY_LOCAL_MACHINE, ServerKey().c_str()); }

  hostlib::com::Apartment apartment_{[] { return false; }};
  WithTheServer source_;
  hostlib::com::ComLibrary library_{source_};
  hostlib::ObjectPtr session_;

  void SetUp() override {
    try {
      session_ = library_.Create(L"TerminalSession");
    } catch (const hostlib::LibraryError& error) {
      FAIL() << std::hex << error.number() << ' ' << common::ToUtf8(error.description());
    }
  }
};

TEST_F(InProcess, TheLibraryIsLoadedIntoTheProgram) {
  EXPECT_NE(GetModuleHandleW(L"inprocess_server.dll"), nullptr);
}

TEST_F(InProcess, AnEntryReachesTheMethodInItsSlot) {
  EXPECT_EQ(session_->Call(11, {Value(L"QE80")}).Text(), L"entry QE80");
}

TEST_F(InProcess, EverySlotAnswersForItself) {
  EXPECT_EQ(session_->Call(16, {}).Text(), L"not loaded");
  session_->Call(9, {});
  EXPECT_EQ(session_->Call(16, {}).Text(), L"loaded");
  EXPECT_EQ(session_->Call(10, {Value(L"RT")}).Text(), L"command RT");
  EXPECT_EQ(session_->Call(15, {Value(L"TQT")}).Text(), L"display TQT");
}

}  // namespace
}  // namespace com_tests
