#pragma once

#include <windows.h>

#include <atomic>
#include <functional>

namespace driver {

/// A person who acts on a thread of its own while a program's windows live on this one.
class Person {
 public:
  /// Runs `program`, which shows windows and turns their loop, while `acts` acts on them. The loop
  /// is told to quit when the person is done, or has given up: then DriverError comes out. What
  /// the program throws comes out otherwise.
  void Run(const std::function<void()>& program, const std::function<void()>& acts);

  /// For a person whose last act makes the program end by itself.
  void WaitForTheEnd() const;

 private:
  std::atomic<bool> ended_ = false;
};

}  // namespace driver
