#include <gmock/gmock.h>
#include <objbase.h>

#include "tests/windows/terminal/PracticeTerminal.h"

int main(int count, char** arguments) {
  testing::InitGoogleMock(&count, arguments);
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  int result = 0;
  {
    const terminal::Registered registered;
    result = RUN_ALL_TESTS();
  }
  CoUninitialize();
  return result;
}
