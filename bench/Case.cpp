#include "bench/Case.h"

#include <stdexcept>

#include "app/Program.h"
#include "bench/AnsweringLibrary.h"
#include "common/Text.h"

namespace bench {
namespace {

void Demand(bool holds, const std::string& why) {
  if (!holds) throw std::logic_error(why);
}

void DemandNoBox(const Workplace& place) {
  Demand(place.agent.lastBox().empty(), "a box: " + common::ToUtf8(place.agent.lastBox()));
}

}  // namespace

Case::Case(const Booking& booking) : before_(booking) {
  Recording recording;
  Workplace recorded = Prepare();
  RecordingLibrary library(recorded.library(), recording);
  const int exitCode = app::RunProgram(library, recorded.agent, recorded.platform);
  Demand(exitCode == 0, "the recorded run failed");
  DemandNoBox(recorded);
  Demand(!recorded.host.HasActivePnr(), "the recorded run did not queue its PNR");
  pnrAfter_ = recorded.host.PnrText();
  Demand(common::Contains(pnrAfter_, L" FO 117-4012345678 STO "), "the recorded run wrote no PTA");

  answers_ = std::make_unique<Answers>(recording);
  replay_ = std::make_unique<Replay>(std::move(recording));
  Workplace replayed = Prepare();
  ReplayBare(replayed);
  Demand(replayed.host.PnrText() == pnrAfter_, "a replay does not do what the run did");
}

void Case::Run(Workplace& place) const {
  app::RunProgram(place.library(), place.agent, place.platform);
}

void Case::ReplayBare(Workplace& place) { replay_->Run(place.library()); }

void Case::RunAlone(Workplace& place) const {
  AnsweringLibrary library(*answers_);
  app::RunProgram(library, place.agent, place.platform);
}

}  // namespace bench
