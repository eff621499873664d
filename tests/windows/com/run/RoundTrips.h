#pragma once

#include <windows.h>
// The order matters: windows.h first.
#include <objidl.h>

#include <atomic>

namespace com_run {

/// Counts the calls that leave this process.
class RoundTrips {
 public:
  /// Once a process: the system keeps what is registered.
  static void Watch();
  static int Count();
};

}  // namespace com_run
