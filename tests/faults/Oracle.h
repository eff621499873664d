#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/faults/Run.h"

namespace faults {

using Complaints = std::vector<std::wstring>;

/// What entries alone make of a booking, on a host that knows nothing else. Many runs of a matrix
/// send the same entries: each list of them is replayed once.
class Replays {
 public:
  struct State {
    std::vector<std::wstring> answers;
    std::wstring pnr;
    std::vector<std::wstring> printed;
    std::vector<std::wstring> backOffice;
  };

  explicit Replays(const practice::RehearsalScene& scene);
  const State& After(const std::vector<std::wstring>& entries);

 private:
  practice::Host loaded_;
  std::map<std::vector<std::wstring>, State> known_;
};

// Each looks at one promise, and says what it finds broken.

/// The agent could always go on, and the program ended as a program ends.
Complaints OnTheEnd(const Shown& shown);
/// Every box is one that the rules name.
Complaints OnTheBoxes(const Timeline& timeline);
/// Nothing is sent after a Cancel, after a report that ends the run, nor once the dialog is gone.
Complaints OnWhatIsSentAfterAnEnd(const Timeline& timeline);
/// The host took what the program sent and nothing else, and everything that was answered.
Complaints OnTheEntries(const Shown& shown);
/// The PNR, the printed copies and the back office are what these entries alone make of the
/// booking.
Complaints OnThePNR(Replays& replays, const Shown& shown);
/// When the session is lost, what was sent until then is what an undisturbed run sends.
Complaints OnTheLostSession(const Shown& undisturbed, const Shown& shown);
/// The agent has seen a box since the fault came that an undisturbed run does not show.
Complaints OnTheAgentsKnowledge(const Timeline& undisturbed, const Timeline& shown);

/// All of them, as far as they concern the fault.
Complaints Judge(Replays& replays, const Shown& undisturbed, const Shown& shown, Fault fault);

}  // namespace faults
