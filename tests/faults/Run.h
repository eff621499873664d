#pragma once

#include <string>
#include <vector>

#include "practice/rehearsal/Rehearsal.h"
#include "tests/faults/FaultInjector.h"
#include "tests/faults/PatientAgent.h"

namespace faults {

/// What one run has shown.
struct Shown {
  practice::RehearsalOutcome outcome;
  Timeline timeline;
  std::vector<CallSite> sites;
  int questions = 0;  ///< forms that waited and OK/Cancel boxes
  bool struck = false;
  std::wstring stuck;  ///< where the agent could not go on; "" when nowhere
};

/// Runs the program on the scene, with its agent as far as that goes.
Shown Perform(const practice::RehearsalScene& scene, Fault fault = {}, Cancelling cancelling = {});

/// The bookings on which faults are tried, with their settings and agents.
struct RecordedRun {
  const char* name;
  practice::RehearsalScene (*scene)();
};
const std::vector<RecordedRun>& RecordedRuns();

}  // namespace faults
