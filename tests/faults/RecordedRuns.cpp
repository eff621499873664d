#include "tests/faults/Run.h"
#include "tests/run/Scenes.h"

namespace faults {
namespace {

using practice::RehearsalScene;

RehearsalScene Ordinary() { return run::OrdinaryScene(); }

RehearsalScene OfficeAskedOfTheHost() {
  RehearsalScene scene = run::OrdinaryScene();
  scene.office.clear();
  return scene;
}

RehearsalScene InfantAndAcknowledgement() { return run::SceneOf("write-infant-acknowledged"); }

RehearsalScene WaitingAndChoosing() {
  RehearsalScene scene = run::OrdinaryScene();
  scene.booking = run::ReadProjectFile("tests/faults/bookings/waiting-and-choosing.pnr");
  scene.agent = run::ReadProjectFile("tests/faults/bookings/waiting-and-choosing.agent");
  return scene;
}

RehearsalScene ReissueWithoutOffice() {
  RehearsalScene scene = run::SceneOf("reissue");
  scene.ini = run::ReadProjectFile("practice/pnrs/write-no-office.ini");
  return scene;
}

RehearsalScene PanelMode() { return run::SceneOf("write-panel-mode"); }

RehearsalScene NinePassengers() { return run::SceneOf("write-nine-passengers"); }

RehearsalScene EveryElementChanged() { return run::SceneOf("write-everything"); }

}  // namespace

const std::vector<RecordedRun>& RecordedRuns() {
  static const std::vector<RecordedRun> kRuns = {
      {"Ordinary", Ordinary},
      {"OfficeAskedOfTheHost", OfficeAskedOfTheHost},
      {"InfantAndAcknowledgement", InfantAndAcknowledgement},
      {"WaitingAndChoosing", WaitingAndChoosing},
      {"ReissueWithoutOffice", ReissueWithoutOffice},
      {"PanelMode", PanelMode},
      {"NinePassengers", NinePassengers},
      {"EveryElementChanged", EveryElementChanged},
  };
  return kRuns;
}

}  // namespace faults
