#pragma once

#include <optional>

#include "errors/ErrorHandler.h"
#include "hostlib/ScriptErrorReporter.h"
#include "hostlib/ScriptGlobal.h"
#include "hostlib/TerminalSession.h"
#include "mco/TSMInfo.h"
#include "pnr/MCOInfo.h"
#include "pnr/PNRInfo.h"
#include "settings/IniFile.h"
#include "settings/Settings.h"
#include "tst/TSTCollection.h"
#include "tst/TSTGeneral.h"
#include "tst/TSTTotals.h"

namespace app {

/// The run's shared state. Only this room sees all of it; every other room is given what it may
/// touch.
struct Common {
  explicit Common(hostlib::Library& library) : global(library) {}
  ~Common() { Release(); }
  Common(const Common&) = delete;
  Common& operator=(const Common&) = delete;

  void CreateRecords() {
    settings.emplace();
    pnr.emplace();
    mco.emplace();
    general.emplace();
    totals.emplace();
    tsm.emplace();
  }

  /// In the order in which the end of the run lets go.
  void Release() {
    settings.reset();
    pnr.reset();
    mco.reset();
    tsm.reset();
    general.reset();
    totals.reset();
    session.Release();
    reporter.Release();
  }

  hostlib::ScriptGlobal global;
  hostlib::ScriptErrorReporter reporter;
  std::optional<settings::Settings> settings;
  std::optional<pnr::PNRInfo> pnr;
  std::optional<pnr::MCOInfo> mco;
  std::optional<tst::TSTGeneral> general;
  std::optional<tst::TSTTotals> totals;
  std::optional<mco::TSMInfo> tsm;
  hostlib::TerminalSession session;

  settings::IniFile ini;
  tst::TSTCollection tsts;
  errors::StopFlag stop;
};

}  // namespace app
