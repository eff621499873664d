#pragma once

#include <string>
#include <vector>

#include "common/EndOfRun.h"
#include "errors/ErrorHandler.h"
#include "hostlib/Requests.h"
#include "hostlib/ScriptGlobal.h"
#include "hostlib/TerminalSession.h"

namespace updates {

/// Elements joined, each followed by ";", into as few entries as fit. No element is split; one that
/// is too long for any entry goes alone.
std::vector<std::wstring> JoinElements(const std::vector<std::wstring>& elements);

/// Sends elements to the PNR in joined entries. An entry that the host refuses ends the run; what
/// was in earlier entries stays in the PNR.
class ElementEntry {
 public:
  ElementEntry(hostlib::Library& library, hostlib::ScriptGlobal& global,
               hostlib::TerminalSession& session, errors::ErrorHandler& errors,
               common::RunEnd& runEnd);

  void Send(const std::vector<std::wstring>& elements);

 private:
  bool IsAccepted(const std::wstring& entry);

  hostlib::Library& library_;
  hostlib::ScriptGlobal& global_;
  hostlib::TerminalSession& session_;
  errors::ErrorHandler& errors_;
  common::RunEnd& runEnd_;
};

}  // namespace updates
