#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "tests/windows/driver/Driver.h"
#include "tests/windows/driver/Process.h"
#include "tests/windows/terminal/Client.h"
#include "tests/windows/terminal/Terminal.h"

namespace {

using client::ComPtr;

TEST(TerminalLifetime, NothingIsLeftOfReleasedObjects) {
  {
    const auto bag = client::Bag({{L"strKeyText", L"A"}});
    EXPECT_EQ(client::LiveObjects(), 1);
  }
  EXPECT_EQ(client::LiveObjects(), 0);
}

TEST(TerminalLifetime, NothingIsLeftOfAClientThatWasKilled) {
  const HANDLE held = CreateEventW(nullptr, TRUE, FALSE, L"PtaObjectsAreHeld");
  driver::Process holder(terminal::TestProgram(), L"--hold-objects");
  ASSERT_EQ(WaitForSingleObject(held, 20'000), WAIT_OBJECT_0);
  CloseHandle(held);
  EXPECT_EQ(client::LiveObjects(), 2);
  holder.Kill();
  EXPECT_TRUE(driver::Holds([] { return client::LiveObjects() == 0; }));
}

TEST(TerminalLifetime, ClientsThatComeWhileOthersLeaveAllGetTheirObjects) {
  const auto kept = client::Make(L"ScriptGlobal");
  std::vector<std::unique_ptr<driver::Process>> clients;
  for (int i = 0; i < 2; ++i) {
    clients.push_back(std::make_unique<driver::Process>(terminal::TestProgram(), L"--come-and-go"));
  }
  for (const auto& one : clients) {
    ASSERT_TRUE(driver::Holds([&one] { return !one->IsRunning(); }, std::chrono::seconds(60)));
    EXPECT_EQ(one->ExitCode(), 0u);
  }
}

TEST(TerminalLifetime, AServerThatNobodyUsesEnds) {
  client::Make(L"ParameterBag");
  EXPECT_TRUE(driver::Holds([] { return terminal::Running() == 0; }));
}

}  // namespace
