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

int RunTests(int count, char** arguments) {
  testing::InitGoogleMock(&count, arguments);
  const terminal::Registered registered;
  return RUN_ALL_TESTS();
}

}  // namespace

int main(int count, char** arguments) {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  const bool isHolder = count > 1 && std::string_view(arguments[1]) == "--hold-objects";
  const int result = isHolder ? HoldObjects() : RunTests(count, arguments);
  CoUninitialize();
  return result;
}
