#pragma once

#include "errors/ErrorHandler.h"
#include "hostlib/TerminalSession.h"

namespace tst {

/// Displays the TST list on the host, before the TSMs are read.
class TQTSender {
 public:
  TQTSender(hostlib::Library& library, hostlib::TerminalSession& session,
            errors::ErrorHandler& errors);

  /// True when the host was asked; the answer is not looked at.
  bool SendTQT();

 private:
  hostlib::Library& library_;
  hostlib::TerminalSession& session_;
  errors::ErrorHandler& errors_;
};

}  // namespace tst
