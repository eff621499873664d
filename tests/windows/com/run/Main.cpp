#include <gmock/gmock.h>

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

}  // namespace

int main(int count, char** arguments) {
  testing::InitGoogleMock(&count, arguments);
  testing::AddGlobalTestEnvironment(new Registered);
  return RUN_ALL_TESTS();
}
