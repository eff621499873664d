#include <gtest/gtest.h>

#include "practice/rehearsal/AgentScript.h"
#include "practice/rehearsal/Rehearsal.h"
#include "practice/rehearsal/ScriptedAgent.h"
#include "tests/run/Scenes.h"

namespace run {
namespace {

/// The written agent, with an eye on how long the program lets time pass.
class WatchingAgent : public practice::ScriptedAgent {
 public:
  explicit WatchingAgent(const std::wstring& script)
      : ScriptedAgent(practice::ReadAgentScript(script)) {}

  void Pause(std::chrono::milliseconds time) override { waited += time; }

  std::chrono::milliseconds waited{};
};

std::chrono::milliseconds WaitedIn(const practice::RehearsalScene& scene) {
  WatchingAgent agent(scene.agent);
  const auto outcome = practice::Rehearse(scene, agent);
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_FALSE(outcome.entries.empty());
  agent.Leave();
  return agent.waited;
}

// The practice host answers at once; a timer would have to be ticked by the agent's script.
TEST(InstantHost, IsNeverWaitedFor) {
  EXPECT_EQ(WaitedIn(OrdinaryScene()), std::chrono::milliseconds(0));
}

TEST(InstantHost, IsNotWaitedForWhenItIsAskedForTheOffice) {
  auto scene = OrdinaryScene();
  scene.office.clear();
  EXPECT_EQ(WaitedIn(scene), std::chrono::milliseconds(0));
}

}  // namespace
}  // namespace run
