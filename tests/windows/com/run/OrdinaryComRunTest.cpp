#include "common/Text.h"
#include "tests/run/Scenes.h"
#include "tests/windows/com/run/RunningTerminal.h"

namespace com_run {
namespace {

// A call as the same run without the link writes it.
std::wstring Comparable(std::wstring line, const std::wstring& folder) {
  line = common::Replace(line, folder, L"C:\\PTA");
  return common::Replace(common::Replace(line, L"\r", L"\\r"), L"\n", L"\\n");
}

// Dates are written as the machine writes them, which a rehearsal without a link has its own way
// for: of such calls the operation alone is compared.
constexpr std::wstring_view kDateOfTheRehearsal = L"2007-";
std::wstring NameIn(const std::wstring& call) { return call.substr(0, call.find(L'(')); }

class ComRun : public RunningTerminal {
 protected:
  practice::RehearsalOutcome RunRecorded(const practice::RehearsalScene& scene) {
    hostlib::Recorder recorder;
    auto outcome = Run(scene, recorder);
    for (const std::wstring& line : recorder.lines()) {
      outcome.calls.push_back(Comparable(line, platform_.folder));
    }
    outcome.liveObjects = recorder.LiveObjects();
    return outcome;
  }
};

TEST_F(ComRun, TheOrdinaryBookingGoesOverTheLinkAsItGoesWithoutIt) {
  Telling([&] {
    Start();
    const auto scene = run::OrdinaryScene();
    const auto there = RunRecorded(scene);
    const auto here = practice::Rehearse(scene);
    EXPECT_EQ(there.disagreement, L"");
    EXPECT_EQ(there.exitCode, 0);
    EXPECT_EQ(there.calls.size(), here.calls.size());
    for (std::size_t i = 0; i < there.calls.size() && i < here.calls.size(); ++i) {
      const bool hasDate = here.calls[i].find(kDateOfTheRehearsal) != std::wstring::npos;
      EXPECT_EQ(common::ToUtf8(hasDate ? NameIn(there.calls[i]) : there.calls[i]),
                common::ToUtf8(hasDate ? NameIn(here.calls[i]) : here.calls[i]));
    }
    EXPECT_EQ(there.seen, here.seen);
    EXPECT_EQ(common::ToUtf8(there.pnrAfter), common::ToUtf8(here.pnrAfter));
  });
}

TEST_F(ComRun, NothingOfTheRunIsLeftInTheTerminal) {
  Telling([&] {
    Start();
    const auto outcome = RunRecorded(run::OrdinaryScene());
    EXPECT_EQ(outcome.liveObjects, 0);
    EXPECT_EQ(client::LiveObjects(), 0);
  });
}

}  // namespace
}  // namespace com_run
