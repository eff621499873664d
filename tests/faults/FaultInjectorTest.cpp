#include <gmock/gmock.h>

#include "common/ConstDefintions.h"
#include "hostlib/ScriptErrorReporter.h"
#include "hostlib/TerminalSession.h"
#include "tests/faults/FaultInjector.h"
#include "tests/support/ScriptedLibrary.h"

namespace faults {
namespace {

using testing::ElementsAre;
namespace reports = hostlib::operations::script_error_reporter;

/// A box, and whether it is held to show the last error: "text", "text (last error: says, who)".
class Boxes : public common::MessageBoxes {
 public:
  std::vector<std::wstring> seen;
  const FaultInjector* injector = nullptr;

  int ShowBox(std::wstring_view text, int, std::wstring_view) override {
    std::wstring& box = seen.emplace_back(text);
    if (const auto& shown = injector->lastErrorShown()) {
      box += L" (last error: " + shown->says + (shown->byProgram ? L", program)" : L", library)");
    }
    return common::kOk;
  }
};

/// A library that fails by itself, and whose reporter says what the test wants.
struct Bench {
  explicit Bench(Fault fault = {}) : injector(fault, boxes, timeline) {
    boxes.injector = &injector;
    scripted.Fail(hostlib::operations::terminal_session::kSendEntry, 7, L"Its own failure");
    scripted.On(reports::kLastErrorText, [this](const auto&) { return scripted.lastError.text; });
    scripted.On(reports::kShowMessage,
                [this](const hostlib::Arguments& arguments) { return Box(arguments[2].Text()); });
    scripted.On(reports::kShowError,
                [this](const hostlib::Arguments& arguments) { return Box(arguments[2].Text()); });
    scripted.On(reports::kReportLastError,
                [this](const auto&) { return Box(scripted.lastError.text); });
    reporter.Create(library);
    session.Connect(library);
  }

  hostlib::Value Box(std::wstring_view text) {
    boxes.ShowBox(text, common::kCritical, common::kTitle);
    return {};
  }
  void Fail() { EXPECT_THROW(session.SendEntry(L"TQT"), hostlib::LibraryError); }

  support::ScriptedLibrary scripted;
  Boxes boxes;
  Timeline timeline;
  FaultInjector injector;
  FaultyLibrary library{scripted, scripted, injector};
  hostlib::ScriptErrorReporter reporter;
  hostlib::TerminalSession session;
};

/// The reporter, the session and an entry come before it.
constexpr int kSecondEntry = 4;

TEST(FaultInjector, KnowsAMessageWithALastErrorOfTheLibrarysOwn) {
  Bench bench;
  bench.Fail();
  bench.reporter.ShowMessage(7, common::kTitle, bench.reporter.LastErrorText());
  EXPECT_THAT(bench.boxes.seen,
              ElementsAre(L"Its own failure (last error: Its own failure, program)"));
}

TEST(FaultInjector, KnowsAMessageWithTheLastErrorOfTheFault) {
  Bench bench({.place = kSecondEntry, .way = Way::kErrorWithNumber});
  bench.Fail();
  bench.Fail();
  bench.reporter.ShowMessage(7, common::kTitle, bench.reporter.LastErrorText());
  const std::wstring fault(kFaultText);
  EXPECT_THAT(bench.boxes.seen, ElementsAre(fault + L" (last error: " + fault + L", program)"));
}

TEST(FaultInjector, KnowsWhatTheLastErrorReallySays) {
  Bench bench;
  bench.Fail();
  bench.reporter.LastErrorText();
  bench.reporter.ShowMessage(7, common::kTitle, L"Something else");
  EXPECT_THAT(bench.boxes.seen,
              ElementsAre(L"Something else (last error: Its own failure, program)"));
}

TEST(FaultInjector, KnowsALastErrorThatTheLibraryShows) {
  Bench bench;
  bench.Fail();
  bench.reporter.ReportLastError();
  EXPECT_THAT(bench.boxes.seen,
              ElementsAre(L"Its own failure (last error: Its own failure, library)"));
}

TEST(FaultInjector, TakesNoOtherMessageForTheLastError) {
  Bench bench;
  bench.Fail();
  bench.reporter.LastErrorText();
  bench.reporter.ShowError(7, common::kTitle, L"Own text", common::kCritical);
  bench.reporter.ShowMessage(7, common::kTitle, L"Own text");
  EXPECT_THAT(bench.boxes.seen, ElementsAre(L"Own text", L"Own text"));
}

TEST(FaultInjector, TakesNoBoxForTheLastErrorWhoseMessageHasFailed) {
  Bench bench;
  bench.scripted.Fail(reports::kShowMessage, 8, L"No message");
  bench.Fail();
  const std::wstring text = bench.reporter.LastErrorText();
  EXPECT_THROW(bench.reporter.ShowMessage(7, common::kTitle, text), hostlib::LibraryError);
  bench.Box(L"Own text");
  EXPECT_THAT(bench.boxes.seen, ElementsAre(L"Own text"));
}

TEST(FaultInjector, TakesNoMessageForTheLastErrorThatWasReadBeforeAnotherFailure) {
  Bench bench;
  bench.Fail();
  bench.reporter.LastErrorText();
  bench.Fail();
  bench.reporter.ShowMessage(7, common::kTitle, L"Own text");
  EXPECT_THAT(bench.boxes.seen, ElementsAre(L"Own text"));
}

}  // namespace
}  // namespace faults
