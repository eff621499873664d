#pragma once

#include <windows.h>

#include <chrono>
#include <memory>
#include <vector>

#include "ui/win32/FormWindow.h"

namespace ui {

/// Takes messages from the queue and brings them to the forms' windows. What a handler throws comes
/// out here.
class MessageLoop {
 public:
  using Windows = std::vector<std::unique_ptr<FormWindow>>;

  MessageLoop(Shell& shell, const Windows& windows) : shell_(shell), windows_(windows) {}

  /// Waits for one message and handles it. False when the program is asked to quit.
  bool Turn();
  /// Handles what comes in this time.
  void TurnFor(std::chrono::milliseconds time);
  /// Handles what waits to be painted.
  void Paint();

 private:
  void Handle(MSG& message);
  FormWindow* FormOf(HWND window) const;

  Shell& shell_;
  const Windows& windows_;
};

}  // namespace ui
