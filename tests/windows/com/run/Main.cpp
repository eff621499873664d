#include <gmock/gmock.h>

#include "tests/windows/terminal/PracticeTerminal.h"

int main(int count, char** arguments) {
  testing::InitGoogleMock(&count, arguments);
  const terminal::Registered registered;
  return RUN_ALL_TESTS();
}
