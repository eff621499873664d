#pragma once

#include <functional>

#include "errors/ErrorHandler.h"
#include "hostlib/TerminalSession.h"

namespace app {

/// Connects to the running terminal program. What cannot be made is reported, once, in the words
/// that tell the agent to start it.
class VantelConnectDef {
 public:
  VantelConnectDef(hostlib::Library& library, errors::ErrorHandler& errors)
      : library_(library), errors_(errors) {}

  /// Makes one of the library's objects that the run cannot do without. False when it was not
  /// made, which has been reported.
  bool Make(const std::function<void(hostlib::Library&)>& create) {
    return errors_.Run(errors::procedures::kConnect, [&] { create(library_); });
  }

  /// The session stays unconnected when it cannot be made.
  void Connect(hostlib::TerminalSession& session) {
    Make([&session](hostlib::Library& library) { session.Connect(library); });
  }

 private:
  hostlib::Library& library_;
  errors::ErrorHandler& errors_;
};

}  // namespace app
