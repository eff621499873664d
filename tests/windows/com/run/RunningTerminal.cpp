#include "tests/windows/com/run/RunningTerminal.h"

#include <filesystem>
#include <fstream>

#include "app/Program.h"
#include "hostlib/Requests.h"
#include "practice/rehearsal/ScriptedAgent.h"
#include "tests/windows/driver/Driver.h"

namespace com_run {

namespace operations = hostlib::operations;

RunningTerminal::RunningTerminal() {
  const auto folder = std::filesystem::temp_directory_path() / "PtaComRun";
  std::filesystem::create_directories(folder);
  platform_.folder = folder.wstring();
}

RunningTerminal::~RunningTerminal() {
  EXPECT_TRUE(End()) << "a terminal is still running";
  std::error_code ignored;
  std::filesystem::remove_all(platform_.folder, ignored);
}

void RunningTerminal::Start() {
  // Now and then one that Wine has started after a kill does not end. The next one has always been
  // answered beside it.
  End();
  terminal_ = std::make_unique<terminal::PracticeTerminal>();
}

bool RunningTerminal::End() {
  terminal_ = nullptr;
  return driver::Holds([] { return terminal::Running() == 0; });
}

void RunningTerminal::Set(const practice::RehearsalScene& scene) {
  if (scene.hasIni) WriteIni(scene.ini);
  platform_.today = scene.today;
  platform_.decimal = scene.decimal;
  StoreOffice(scene);
  terminal_->Load(scene.booking);
}

practice::RehearsalOutcome RunningTerminal::Run(const practice::RehearsalScene& scene,
                                                hostlib::CallHook& hook) {
  practice::RehearsalOutcome outcome;
  Set(scene);
  outcome.pnrBefore = terminal_->PnrText();
  practice::ScriptedAgent agent(practice::ReadAgentScript(scene.agent));
  hostlib::InterposedLibrary hooked(library_, hook);
  try {
    outcome.exitCode = app::RunProgram(hooked, agent, platform_);
    agent.Leave();
  } catch (const practice::Disagreement& disagreement) {
    outcome.disagreement = disagreement.words;
  }
  outcome.seen = agent.seen();
  outcome.pnrAfter = terminal_->PnrText();
  return outcome;
}

void RunningTerminal::WriteIni(const std::wstring& ini) {
  const std::filesystem::path path = platform_.folder + L"\\PTA_QX.ini";
  std::ofstream(path, std::ios::binary) << common::ToUtf8(ini);
  platform_.files.insert(path.wstring());
}

void RunningTerminal::StoreOffice(const practice::RehearsalScene& scene) {
  const auto store = library_.Create(operations::user_settings_store::kClass);
  const auto save = [&store](std::wstring_view key, std::wstring_view text) {
    store->Call(operations::user_settings_store::kSaveSetting.slot,
                {hostlib::Value(L"PTAStartup"), hostlib::Value(L"Values"), hostlib::Value(key),
                 hostlib::Value(text)});
  };
  save(L"OfficeID", scene.office);
  save(L"Date", platform_.ShortDateText(scene.today));
}

}  // namespace com_run
