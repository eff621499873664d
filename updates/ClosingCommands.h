#pragma once

#include <string_view>

#include "common/EndOfRun.h"
#include "errors/ErrorHandler.h"
#include "hostlib/Requests.h"
#include "hostlib/ScriptGlobal.h"
#include "hostlib/TerminalSession.h"
#include "pnr/MCOInfo.h"
#include "settings/Settings.h"

namespace updates {

/// The optional commands that close a PTA.
class ClosingCommands {
 public:
  ClosingCommands(hostlib::Library& library, hostlib::ScriptGlobal& global,
                  hostlib::TerminalSession& session, errors::ErrorHandler& errors,
                  common::RunEnd& runEnd, const settings::Settings& settings,
                  const pnr::MCOInfo& mco);

  /// Prints a copy of the PNR. A refused print ends the run.
  void PrintPNR();
  /// Sends the booking to the back office. The host's answer is not looked at.
  void SendBT(std::wstring_view retain);

 private:
  bool IsPrinted();

  hostlib::Library& library_;
  hostlib::ScriptGlobal& global_;
  hostlib::TerminalSession& session_;
  errors::ErrorHandler& errors_;
  common::RunEnd& runEnd_;
  const settings::Settings& settings_;
  const pnr::MCOInfo& mco_;
};

}  // namespace updates
