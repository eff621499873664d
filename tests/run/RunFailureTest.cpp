#include <gtest/gtest.h>

#include "hostlib/Recorder.h"
#include "tests/run/Scenes.h"

// Failures that no room reports, and what is let go at the end.
namespace run {
namespace {

/// A library with a hook before it, for a scene.
class HookedLibrary : public hostlib::Library {
 public:
  HookedLibrary(hostlib::Library& inner, hostlib::CallHook& hook) : hooked_(inner, hook) {}
  hostlib::ObjectPtr Create(std::wstring_view className) override {
    return hooked_.Create(className);
  }

 private:
  hostlib::InterposedLibrary hooked_;
};

void Hook(practice::RehearsalScene& scene, hostlib::CallHook& hook) {
  scene.decorate = [&hook](hostlib::Library& inner) -> std::unique_ptr<hostlib::Library> {
    return std::make_unique<HookedLibrary>(inner, hook);
  };
}

/// Spoils the reading of the collecting office, which the entry procedure does itself.
class SpoiltOffice : public hostlib::CallHook {
 public:
  explicit SpoiltOffice(std::function<hostlib::Value()> answer) : answer_(std::move(answer)) {}
  hostlib::Value OnCall(const hostlib::CallInfo& call,
                        const std::function<hostlib::Value()>& proceed) override {
    const bool isIt = Is(call.operation, hostlib::operations::profile_store::kReadValue) &&
                      call.arguments[2].Text() == L"OfficeIDSK";
    return isIt ? answer_() : proceed();
  }

 private:
  std::function<hostlib::Value()> answer_;
};

Lines ReporterCalls(const practice::RehearsalOutcome& outcome) {
  Lines lines;
  for (const std::wstring& call : outcome.calls) {
    if (call.starts_with(L"ScriptErrorReporter")) lines.push_back(call);
  }
  return lines;
}

TEST(RunFailure, AFailureOfItsOwnIsTheEntryProceduresMessageAndTheEnd) {
  auto scene = OrdinaryScene();
  SpoiltOffice spoilt([] { return hostlib::Value(7); });
  Hook(scene, spoilt);
  scene.agent = L"box ok \"Error initiating script!\"\n";
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_EQ(ReporterCalls(outcome),
            Lines{L"ScriptErrorReporter.1.12 ShowMessage(-2147221453, \"  PTA Script \", \"Error "
                  L"initiating script!\")"});
  EXPECT_EQ(outcome.seen.back(), L"closed frmWorking");
}

TEST(RunFailure, AFailureOfTheLibraryShowsItsLastErrorInsteadAndEnds) {
  auto scene = OrdinaryScene();
  SpoiltOffice spoilt(
      []() -> hostlib::Value { throw hostlib::LibraryError(77, L"test", L"the store is broken"); });
  Hook(scene, spoilt);
  scene.agent = L"box ok \"\"\n";
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_EQ(ReporterCalls(outcome),
            (Lines{L"ScriptErrorReporter.1.10 LastErrorNumber() -> 0",
                   L"ScriptErrorReporter.1.9 LastErrorText() -> \"\"",
                   L"ScriptErrorReporter.1.12 ShowMessage(0, \"  PTA Script \", \"\")"}));
}

TEST(RunFailure, ASessionLostInTheWaitDialogIsOneReportAndTheEnd) {
  auto scene = OrdinaryScene();
  scene.prepare = [](practice::Host& host) { host.faults.dropFrom = 2; };
  scene.agent = L"box ok \"The session to the host was lost\" 16\n";
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_EQ(outcome.EntryTexts(), Lines{L"RT"});
  EXPECT_EQ(CallsOf(outcome, L"TerminalSession.1.11"), Lines{});
}

TEST(RunFailure, AtAnEndBeforeTheDialogTheSessionGoesBeforeTheReporterAndTheGlobalLast) {
  auto scene = OrdinaryScene();
  scene.prepare = [](practice::Host& host) { host.faults.dropFrom = 2; };
  scene.agent = L"box ok \"The session to the host was lost\" 16\n";
  hostlib::Recorder objects(hostlib::Recorder::Objects::kShow);
  Hook(scene, objects);
  RehearseInAgreement(scene);
  ASSERT_GE(objects.lines().size(), 3U);
  EXPECT_EQ(Lines(objects.lines().end() - 3, objects.lines().end()),
            (Lines{L"- TerminalSession", L"- ScriptErrorReporter", L"- ScriptGlobal"}));
  EXPECT_EQ(objects.LiveObjects(), 0);
}

}  // namespace
}  // namespace run
