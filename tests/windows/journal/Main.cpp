#include <gmock/gmock.h>

#include "tests/windows/journal/OtherProgram.h"

int main(int count, char** arguments) {
  if (journal::ActedAsOtherProgram()) return 0;
  testing::InitGoogleMock(&count, arguments);
  return RUN_ALL_TESTS();
}
