#include "practice/rehearsal/Rehearsal.h"

#include "app/Program.h"
#include "common/Text.h"
#include "hostlib/Recorder.h"
#include "platform/FixedPlatform.h"
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

// Runs the program; what the agent does not agree with becomes the outcome's.
void Perform(hostlib::Library& library, ScriptedAgent& agent, const platform::Platform& platform,
             RehearsalOutcome& outcome) {
  try {
    outcome.exitCode = app::RunProgram(library, agent, platform);
    agent.Leave();
  } catch (const Disagreement& disagreement) {
    outcome.disagreement = disagreement.words;
  }
}

}  // namespace

std::vector<std::wstring> RehearsalOutcome::EntryTexts() const {
  std::vector<std::wstring> texts;
  for (const Entry& one : entries) texts.push_back(one.entry);
  return texts;
}

RehearsalOutcome Rehearse(const RehearsalScene& scene) {
  RehearsalOutcome outcome;
  const platform::FixedPlatform platform = PlatformOf(scene);
  OfficeOfTheUser userValues(scene, platform);
  IniOfTheScene ini(scene.hasIni ? scene.ini : std::wstring());
  ScriptedAgent agent(ReadAgentScript(scene.agent));

  Host host;
  host.LoadBooking(scene.booking);
  if (scene.prepare) scene.prepare(host);
  outcome.pnrBefore = host.PnrText();
  host.listener = [&outcome](std::wstring_view entry, std::wstring_view answer) {
    outcome.entries.push_back({std::wstring(entry), std::wstring(answer)});
  };

  PracticeLibrary practiceLibrary({host, platform, ini, userValues, agent},
                                  {scene.attachRefused, scene.sessionRunning});
  hostlib::Recorder recorder;
  hostlib::InterposedLibrary recorded(practiceLibrary, recorder);
  const std::unique_ptr<hostlib::Library> decorated =
      scene.decorate ? scene.decorate(recorded) : nullptr;
  Perform(decorated ? *decorated : static_cast<hostlib::Library&>(recorded), agent, platform,
          outcome);

  for (const std::wstring& line : recorder.lines()) outcome.calls.push_back(OneLine(line));
  outcome.seen = agent.seen();
  outcome.pnrAfter = host.PnrText();
  outcome.iniAfter = ini.text();
  outcome.officeAfter = userValues.OfficeID();
  outcome.officeDateAfter = userValues.Date();
  outcome.printed = host.Printed();
  outcome.liveObjects = practiceLibrary.LiveObjects();
  return outcome;
}

}  // namespace practice
