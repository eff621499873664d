#pragma once

#include "platform/win32/WindowsPlatform.h"
#include "practice/library/PracticeLibrary.h"
#include "practice/library/win32/RegistryUserValues.h"
#include "practice/library/win32/WindowsProfiles.h"
#include "practice/terminal/ClassObjects.h"
#include "practice/terminal/OfferedLibrary.h"
#include "practice/terminal/StandingStubs.h"
#include "practice/terminal/TerminalBoxes.h"

namespace practice::terminal {

/// The practice host, the script library over it, and both as COM objects.
class Server {
 public:
  /// Throws common::RunTimeError.
  Server();
  /// Clients lose their objects.
  ~Server();
  Server(const Server&) = delete;
  Server& operator=(const Server&) = delete;

  Desk& desk() { return desk_; }
  Exporter& exporter() { return exporter_; }
  ProcessLife& life() { return life_; }
  /// Whether a terminal session can be made.
  void SetSessionRunning(bool running) { library_.options().sessionRunning = running; }

 private:
  Host host_;
  platform::WindowsPlatform platform_;
  WindowsProfiles profiles_;
  RegistryUserValues userValues_;
  TerminalBoxes boxes_;
  PracticeLibrary library_;
  Desk desk_;
  TypeLibrary types_;
  ProcessLife life_;
  Exporter exporter_;
  OfferedLibrary offered_;
  StandingStubs stubs_;
  ClassObjects classes_;
};

}  // namespace practice::terminal
