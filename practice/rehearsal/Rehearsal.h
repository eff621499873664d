#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "hostlib/Object.h"
#include "platform/Platform.h"
#include "practice/host/Host.h"
#include "ui/controls/Desktop.h"

namespace practice {

/// Everything a rehearsal is made of; texts, not file names.
struct RehearsalScene {
  std::wstring booking;  ///< the entries that build the PNR
  std::wstring ini;      ///< PTA_QX.ini; with hasIni False there is no such file
  std::wstring agent;    ///< the written agent
  bool hasIni = true;
  /// The office found earlier today, as the user's stored value; empty: the host is asked.
  std::wstring office = L"ARNAG2100";
  /// The date stored with the office, when it is not today's; an empty office is then stored, too.
  std::optional<std::wstring> officeDate;
  std::chrono::year_month_day today{std::chrono::year(2007), std::chrono::month(2),
                                    std::chrono::day(20)};
  std::string decimal = ",";
  bool attachRefused = false;
  bool sessionRunning = true;
  bool recordCalls = true;  ///< without it the outcome names no library calls
  /// Sees the host, with the booking loaded, before the run starts; may tell it to misbehave.
  std::function<void(Host&)> prepare;
  /// Stands between the program and the library, when given.
  std::function<std::unique_ptr<hostlib::Library>(hostlib::Library&)> decorate;
  /// The same, with the library of another terminal at hand, in which no session runs.
  std::function<std::unique_ptr<hostlib::Library>(hostlib::Library&, hostlib::Library& other)>
      decorateBoth;
  /// Runs the program in the place of app::RunProgram, when given.
  std::function<int(hostlib::Library&, ui::Desktop&, const platform::Platform&)> run;
};

/// What a rehearsal has shown.
struct RehearsalOutcome {
  std::wstring disagreement;  ///< "" when run and agent agreed
  int exitCode = 0;
  std::vector<std::wstring> calls;  ///< library calls, one line each
  struct Entry {
    std::wstring entry;
    std::wstring answer;
  };
  std::vector<Entry> entries;
  std::vector<std::wstring> seen;
  std::wstring pnrBefore;
  std::wstring pnrAfter;
  std::wstring iniAfter;
  std::wstring officeAfter;      ///< the user's stored office
  std::wstring officeDateAfter;  ///< and its date
  std::vector<std::wstring> printed;
  std::vector<std::wstring> sentToBackOffice;
  // What the host holds after the run, for people to read.
  std::wstring printedText;
  std::wstring backOfficeText;
  std::wstring queuesText;
  int liveObjects = 0;  ///< library objects not released

  /// The entries alone.
  std::vector<std::wstring> EntryTexts() const;
};

/// Runs the whole program, without a window, against a booking with a written agent. Throws
/// BookingError or AgentScriptError for a scene that cannot be set.
RehearsalOutcome Rehearse(const RehearsalScene& scene);
/// The same with whoever sits at `desktop`; the scene's agent is not looked at, and the outcome
/// says nothing of what was seen.
RehearsalOutcome Rehearse(const RehearsalScene& scene, ui::Desktop& desktop);

}  // namespace practice
