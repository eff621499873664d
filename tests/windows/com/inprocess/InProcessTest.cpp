#include "common/Text.h"
#include "hostlib/com/Apartment.h"
#include "hostlib/com/ComLibrary.h"
#include "tests/windows/com/inprocess/InstalledServer.h"

namespace com_tests {
namespace {

using hostlib::Value;

/// A library that is loaded into the program, as wide as the program is.
class InProcess : public testing::Test {
 protected:
  const InstalledServer installed_{BesideThisProgram(L"vendor\\inprocess_server.dll")};
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
