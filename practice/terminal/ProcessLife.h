#pragma once

#include <windows.h>

namespace practice::terminal {

/// How long the process of a local server lives: as long as something holds it, and a little
/// longer, since a client that comes while the process is ending would meet nobody.
class ProcessLife {
 public:
  /// Waits for the first client.
  ProcessLife();
  ~ProcessLife();
  ProcessLife(const ProcessLife&) = delete;
  ProcessLife& operator=(const ProcessLife&) = delete;

  void Hold();
  void LetGo();
  /// Whether this message of the thread says that the time is over.
  bool IsEnd(const MSG& message) const;

 private:
  void Wait(UINT milliseconds);

  int holders_ = 0;
  UINT_PTR timer_ = 0;
};

}  // namespace practice::terminal
