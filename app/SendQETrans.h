#pragma once

#include <string>
#include <string_view>

#include "common/EndOfRun.h"
#include "common/MessageBoxes.h"
#include "errors/ErrorHandler.h"
#include "hostlib/Requests.h"
#include "hostlib/ScriptGlobal.h"
#include "hostlib/TerminalSession.h"

namespace app {

/// Puts the PNR on a queue of the collecting office.
class SendQETrans {
 public:
  SendQETrans(hostlib::Library& library, hostlib::ScriptGlobal& global,
              hostlib::TerminalSession& session, errors::ErrorHandler& errors,
              common::MessageBoxes& boxes, common::RunEnd& runEnd);

  /// `queueText` is a number, with or without "C" and a category: 80, 80C1. When the host did not
  /// take the PNR, the agent may end the run.
  void SendQE(std::wstring_view officeID, std::wstring_view queueText);

 private:
  struct Queue {
    std::wstring number;
    std::wstring category;
  };

  Queue Split(std::wstring_view queueText);
  bool IsQueued(std::wstring_view officeID, std::wstring_view queueText);

  hostlib::Library& library_;
  hostlib::ScriptGlobal& global_;
  hostlib::TerminalSession& session_;
  errors::ErrorHandler& errors_;
  common::MessageBoxes& boxes_;
  common::RunEnd& runEnd_;
};

}  // namespace app
