#pragma once

#include <windows.h>

#include <functional>

namespace practice::terminal {

/// Lets other threads have something done on the thread that made this, which pumps messages.
class MainThread {
 public:
  /// Throws common::RunTimeError.
  MainThread();
  ~MainThread();
  MainThread(const MainThread&) = delete;
  MainThread& operator=(const MainThread&) = delete;

  /// Waits until it is done; it must not throw. False when the thread has ended its work.
  bool Run(const std::function<void()>& work) const;

 private:
  HWND window_;
};

}  // namespace practice::terminal
