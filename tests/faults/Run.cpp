#include "tests/faults/Run.h"

namespace faults {

Shown Perform(const practice::RehearsalScene& scene, Fault fault, Cancelling cancelling) {
  Shown shown;
  PatientAgent agent(scene.agent, cancelling, shown.timeline);
  FaultInjector injector(fault, agent, shown.timeline);
  agent.Watch(injector);
  practice::RehearsalScene hooked = scene;
  hooked.recordCalls = false;
  hooked.decorateBoth = [&injector](hostlib::Library& library, hostlib::Library& other) {
    return std::make_unique<FaultyLibrary>(library, other, injector);
  };
  try {
    shown.outcome = practice::Rehearse(hooked, agent);
  } catch (const AgentStuck& stuck) {
    shown.stuck = stuck.where;
  }
  shown.sites = injector.sites();
  shown.questions = agent.Questions();
  shown.struck = injector.HasStruck();
  return shown;
}

}  // namespace faults
