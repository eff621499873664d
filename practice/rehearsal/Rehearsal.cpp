#include "practice/rehearsal/Rehearsal.h"

#include "app/Program.h"
#include "common/Text.h"
#include "hostlib/Recorder.h"
#include "platform/FixedPlatform.h"
#include "practice/host/Holdings.h"
#include "practice/library/IniText.h"
#include "practice/library/PracticeLibrary.h"
#include "practice/rehearsal/ScriptedAgent.h"

namespace practice {
namespace {

/// The one INI file of a rehearsal.
class IniOfTheScene : public Profiles {
 public:
  explicit IniOfTheScene(const std::wstring& text) : ini_(text) {}
  std::wstring Read(std::wstring_view, std::wstring_view section, std::wstring_view key) override {
    return ini_.Read(section, key);
  }
  bool Write(std::wstring_view, std::wstring_view section, std::wstring_view key,
             std::wstring_view value) override {
    ini_.Write(section, key, value);
    return true;
  }
  const std::wstring& text() const { return ini_.text(); }

 private:
  IniText ini_;
};

platform::FixedPlatform PlatformOf(const RehearsalScene& scene) {
  platform::FixedPlatform platform;
  platform.today = scene.today;
  platform.decimal = scene.decimal;
  if (scene.hasIni) platform.files.insert(platform.folder + L"\\PTA_QX.ini");
  return platform;
}

/// The user's stored office and its date.
class OfficeOfTheUser : public UserValuesInMemory {
 public:
  OfficeOfTheUser(const RehearsalScene& scene, const platform::Platform& platform) {
    if (scene.office.empty() && !scene.officeDate) return;
    Save(kApplication, kSection, kOfficeID, scene.office);
    Save(kApplication, kSection, kDate,
         scene.officeDate.value_or(platform.ShortDateText(scene.today)));
  }
  std::wstring OfficeID() { return Get(kApplication, kSection, kOfficeID); }
  std::wstring Date() { return Get(kApplication, kSection, kDate); }

 private:
  static constexpr std::wstring_view kApplication = L"PTAStartup";
  static constexpr std::wstring_view kSection = L"Values";
  static constexpr std::wstring_view kOfficeID = L"OfficeID";
  static constexpr std::wstring_view kDate = L"Date";
};

// Texts of several lines as one.
std::wstring OneLine(const std::wstring& text) {
  return common::Replace(common::Replace(text, L"\r", L"\\r"), L"\n", L"\\n");
}

/// Everything around one run, and what it leaves behind.
class Stage {
 public:
  Stage(const RehearsalScene& scene, ui::Desktop& desktop)
      : platform_(PlatformOf(scene)),
        userValues_(scene, platform_),
        ini_(scene.hasIni ? scene.ini : std::wstring()),
        desktop_(desktop),
        library_({host_, platform_, ini_, userValues_, desktop},
                 {scene.attachRefused, scene.sessionRunning}),
        recorded_(library_, recorder_),
        plain_(scene.recordCalls ? static_cast<hostlib::Library&>(recorded_) : library_),
        run_(scene.run) {
    host_.LoadBooking(scene.booking);
    if (scene.prepare) scene.prepare(host_);
    outcome_.pnrBefore = host_.PnrText();
    host_.listener = [this](std::wstring_view entry, std::wstring_view answer) {
      outcome_.entries.push_back({std::wstring(entry), std::wstring(answer)});
    };
    if (scene.decorate) decorated_ = scene.decorate(plain_);
    if (scene.decorateBoth) {
      other_ = std::make_unique<PracticeLibrary>(
          PracticeLibrary::Collaborators{otherHost_, platform_, ini_, userValues_, desktop_},
          PracticeLibrary::Options{scene.attachRefused, false});
      decorated_ = scene.decorateBoth(plain_, *other_);
    }
  }

  void Run() {
    hostlib::Library& library = decorated_ ? *decorated_ : plain_;
    outcome_.exitCode =
        run_ ? run_(library, desktop_, platform_) : app::RunProgram(library, desktop_, platform_);
  }

  RehearsalOutcome Outcome() {
    for (const std::wstring& line : recorder_.lines()) outcome_.calls.push_back(OneLine(line));
    outcome_.pnrAfter = host_.PnrText();
    outcome_.iniAfter = ini_.text();
    outcome_.officeAfter = userValues_.OfficeID();
    outcome_.officeDateAfter = userValues_.Date();
    outcome_.printed = host_.Printed();
    outcome_.sentToBackOffice = host_.SentToBackOffice();
    outcome_.printedText = PrintedText(host_);
    outcome_.backOfficeText = BackOfficeText(host_);
    outcome_.queuesText = QueuesText(host_);
    outcome_.liveObjects = library_.LiveObjects() + (other_ ? other_->LiveObjects() : 0);
    return std::move(outcome_);
  }

 private:
  platform::FixedPlatform platform_;
  OfficeOfTheUser userValues_;
  IniOfTheScene ini_;
  Host host_;
  ui::Desktop& desktop_;
  PracticeLibrary library_;
  hostlib::Recorder recorder_;
  hostlib::InterposedLibrary recorded_;
  hostlib::Library& plain_;  ///< what a decorator, if any, stands before
  Host otherHost_;
  std::unique_ptr<PracticeLibrary> other_;
  std::unique_ptr<hostlib::Library> decorated_;
  decltype(RehearsalScene::run) run_;
  RehearsalOutcome outcome_;
};

}  // namespace

std::vector<std::wstring> RehearsalOutcome::EntryTexts() const {
  std::vector<std::wstring> texts;
  for (const Entry& one : entries) texts.push_back(one.entry);
  return texts;
}

RehearsalOutcome Rehearse(const RehearsalScene& scene) {
  ScriptedAgent agent(ReadAgentScript(scene.agent));
  Stage stage(scene, agent);
  std::wstring disagreement;
  try {
    stage.Run();
    agent.Leave();
  } catch (const Disagreement& found) {
    disagreement = found.words;
  }
  RehearsalOutcome outcome = stage.Outcome();
  outcome.disagreement = std::move(disagreement);
  outcome.seen = agent.seen();
  return outcome;
}

RehearsalOutcome Rehearse(const RehearsalScene& scene, ui::Desktop& desktop) {
  Stage stage(scene, desktop);
  stage.Run();
  return stage.Outcome();
}

}  // namespace practice
