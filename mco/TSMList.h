#pragma once

#include <cstdint>

#include "errors/ErrorHandler.h"
#include "hostlib/ParameterBag.h"
#include "hostlib/ScriptGlobal.h"
#include "hostlib/TerminalSession.h"
#include "mco/TSMInfo.h"
#include "pnr/MCOInfo.h"
#include "ui/controls/Desktop.h"

namespace mco {

/// Reads the PNR's TSMs and finds the MCO that the PTA is for, and its fee.
class TSMList {
 public:
  TSMList(hostlib::Library& library, hostlib::ScriptGlobal& global,
          hostlib::TerminalSession& session, errors::ErrorHandler& errors, ui::Desktop& desktop,
          TSMInfo& tsm, pnr::MCOInfo& mco);

  /// Displays one TSM, or with 0 the whole list, and keeps what is shown. False, after a report,
  /// when the display could not be read or shows a TSM without an MCO fee.
  bool GetTSMList(std::int16_t tsmNumber);

  /// True when an MCO was chosen, by the agent when there are several, and its fee was found.
  bool SelectMCO();

 private:
  hostlib::ParameterBag Display(std::int16_t tsmNumber);
  bool ReadDisplay(const hostlib::ParameterBag& display);
  void ReadTSM(const hostlib::ParameterBag& display);
  void ReadList(const hostlib::ParameterBag& display);
  void Reject(const errors::Procedure& report, const hostlib::ParameterBag& display);

  bool Select();
  void ChooseFromList();
  void LetAgentChoose();
  void Choose(std::int16_t number, std::int16_t index);

  hostlib::Library& library_;
  hostlib::ScriptGlobal& global_;
  hostlib::TerminalSession& session_;
  errors::ErrorHandler& errors_;
  ui::Desktop& desktop_;
  TSMInfo& tsm_;
  pnr::MCOInfo& mco_;
};

}  // namespace mco
