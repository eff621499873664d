#include <gmock/gmock.h>
#include <objbase.h>

#include "tests/windows/terminal/Client.h"
#include "tests/windows/terminal/PracticeTerminal.h"

namespace {

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

/// A client that makes objects and lets them go, over and over.
int ComeAndGo() {
  for (int i = 0; i < 150; ++i) {
    client::Bag({{L"strKeyText", L"HELD"}});
    client::Make(L"ScriptGlobal");
  }
  return 0;
}

int RunTests(int count, char** arguments) {
  testing::InitGoogleMock(&count, arguments);
  const terminal::Registered registered;
  return RUN_ALL_TESTS();
}

}  // namespace

int main(int count, char** arguments) {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  const std::string_view role = count > 1 ? arguments[1] : "";
  const int result = role == "--hold-objects"  ? HoldObjects()
                     : role == "--come-and-go" ? ComeAndGo()
                                               : RunTests(count, arguments);
  CoUninitialize();
  return result;
}
