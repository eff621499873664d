#include <gmock/gmock.h>
#include <objbase.h>
#include <windows.h>

#include "tests/windows/terminal/Client.h"
#include "tests/windows/terminal/Terminal.h"

namespace {

/// The terminal's classes are in the registry while the tests run.
class Registered : public testing::Environment {
 public:
  void SetUp() override {
    ASSERT_EQ(terminal::Process(terminal::Program(), L"/regserver").Wait(), 0U);
  }
  void TearDown() override { terminal::Process(terminal::Program(), L"/unregserver").Wait(); }
};

/// A client that makes objects, says so, and waits to be killed.
int HoldObjects() {
  const auto bag = client::Bag({{L"strKeyText", L"HELD"}});
  const auto global = client::Make(L"ScriptGlobal");
  const HANDLE made = OpenEventW(EVENT_MODIFY_STATE, FALSE, L"PtaObjectsAreHeld");
  SetEvent(made);
  CloseHandle(made);
  Sleep(INFINITE);
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  if (count > 1 && std::string_view(arguments[1]) == "--hold-objects") return HoldObjects();
  testing::InitGoogleMock(&count, arguments);
  testing::AddGlobalTestEnvironment(new Registered);
  const int result = RUN_ALL_TESTS();
  CoUninitialize();
  return result;
}
