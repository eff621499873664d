// Rehearses the whole program on a practice booking with a written agent, without a window.

#include <cstdio>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>

#include "common/LineFeeds.h"
#include "common/Text.h"
#include "practice/rehearsal/AgentScript.h"
#include "practice/rehearsal/Rehearsal.h"

namespace {

constexpr int kAgreed = 0;
constexpr int kDisagreed = 1;
constexpr int kWrongUse = 2;

constexpr std::string_view kUsage =
    "usage: pta-rehearse [options] BOOKING AGENT\n"
    "  BOOKING         a booking file (practice/pnrs/*.pnr)\n"
    "  AGENT           a written agent (*.agent)\n"
    "  --ini FILE      the PTA_QX.ini of the run; without it there is no such file\n"
    "  --office ID     the agent's office, as found earlier today; default ARNAG2100\n"
    "  --ask-office    the office is not known today: the host is asked\n"
    "  --decimal C     the user's decimal separator; default \",\"\n"
    "  --refuse N      the host refuses the run's entry N\n"
    "  --garbage N     the host answers garbage to entry N\n"
    "  --drop N        the session is lost from entry N on\n"
    "  --no-terminal   no terminal program runs\n"
    "  --calls         print the library calls too\n"
    "Exit code: 0 the run and the agent agree, 1 they do not, 2 wrong use or a bad file.\n";

struct Options {
  std::vector<std::string> files;
  std::optional<std::string> ini;
  practice::RehearsalScene scene;
  int refuse = 0;
  int garbage = 0;
  int drop = 0;
  bool calls = false;
};

struct WrongUse {
  std::string reason;
};

std::wstring ReadFile(const std::string& name) {
  std::ifstream file(name, std::ios::binary);
  if (!file) throw WrongUse{"cannot read " + name};
  const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  return common::FromUtf8(bytes);
}

int NumberOf(const std::string& text) {
  try {
    return std::stoi(text);
  } catch (const std::exception&) {
    throw WrongUse{"no number: " + text};
  }
}

Options ReadOptions(int count, char** arguments) {
  Options options;
  for (int i = 1; i < count; ++i) {
    const std::string option = arguments[i];
    const auto value = [&]() -> std::string {
      if (++i == count) throw WrongUse{option + " needs a value"};
      return arguments[i];
    };
    if (option == "--ini") {
      options.ini = value();
    } else if (option == "--office") {
      options.scene.office = common::FromUtf8(value());
    } else if (option == "--ask-office") {
      options.scene.office.clear();
    } else if (option == "--decimal") {
      options.scene.decimal = value();
    } else if (option == "--refuse") {
      options.refuse = NumberOf(value());
    } else if (option == "--garbage") {
      options.garbage = NumberOf(value());
    } else if (option == "--drop") {
      options.drop = NumberOf(value());
    } else if (option == "--no-terminal") {
      options.scene.sessionRunning = false;
    } else if (option == "--calls") {
      options.calls = true;
    } else if (option.starts_with("--")) {
      throw WrongUse{"no option " + option};
    } else {
      options.files.push_back(option);
    }
  }
  if (options.files.size() != 2) throw WrongUse{"a booking and an agent are wanted"};
  return options;
}

practice::RehearsalScene SceneOf(const Options& options) {
  practice::RehearsalScene scene = options.scene;
  scene.booking = ReadFile(options.files[0]);
  scene.agent = ReadFile(options.files[1]);
  scene.hasIni = options.ini.has_value();
  if (options.ini) scene.ini = ReadFile(*options.ini);
  scene.prepare = [options](practice::Host& host) {
    if (options.refuse > 0) host.faults.refusals[options.refuse] = L"TOLD TO REFUSE";
    if (options.garbage > 0) host.faults.garbage[options.garbage] = L"%&/( \x1\x2 ###";
    host.faults.dropFrom = options.drop;
  };
  return scene;
}

// Host texts break lines by "\r\n" and boxes by "\r"; on the console both are line ends.
std::string Console(const std::wstring& text) {
  return common::ToUtf8(common::WithLineFeeds(text));
}

void Print(std::string_view heading, const std::vector<std::wstring>& lines) {
  std::cout << "== " << heading << "\n";
  for (const std::wstring& line : lines) std::cout << common::ToUtf8(line) << "\n";
}

void Print(const practice::RehearsalOutcome& outcome, bool calls) {
  std::cout << "== PNR before\n" << Console(outcome.pnrBefore) << "\n";
  if (calls) Print("library calls", outcome.calls);
  std::cout << "== entries and answers\n";
  for (const auto& [entry, answer] : outcome.entries) {
    std::cout << "> " << common::ToUtf8(entry) << "\n" << Console(answer) << "\n";
  }
  Print("what the agent saw and did", outcome.seen);
  std::cout << "== PNR after\n" << Console(outcome.pnrAfter) << "\n";
  std::cout << "== printed copies\n" << Console(outcome.printedText) << "\n";
  std::cout << "== sent to back office\n" << Console(outcome.backOfficeText) << "\n";
  std::cout << "== queues\n" << Console(outcome.queuesText) << "\n";
}

}  // namespace

int main(int count, char** arguments) {
  try {
    const Options options = ReadOptions(count, arguments);
    const practice::RehearsalOutcome outcome = practice::Rehearse(SceneOf(options));
    Print(outcome, options.calls);
    if (!outcome.disagreement.empty()) {
      std::cout << "== DISAGREEMENT\n" << Console(outcome.disagreement) << "\n";
      return kDisagreed;
    }
    std::cout << "== agreed; exit code of the program " << outcome.exitCode << "\n";
    return outcome.exitCode == 0 ? kAgreed : kDisagreed;
  } catch (const WrongUse& wrong) {
    std::cerr << "pta-rehearse: " << wrong.reason << "\n" << kUsage;
  } catch (const common::RunTimeError& error) {
    std::cerr << "pta-rehearse: " << common::ToUtf8(error.description()) << "\n";
  }
  return kWrongUse;
}
