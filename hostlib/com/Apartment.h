#pragma once

#include "common/MessageBoxes.h"
#include "hostlib/com/BusyPolicy.h"

namespace hostlib::com {

/// The thread's apartment, from construction to destruction: every object must be gone before.
/// While a call is out and the terminal is busy, waits as BusyPolicy says.
class Apartment {
 public:
  /// `tryAgain` asks the agent when the terminal stays busy. Throws LibraryError.
  explicit Apartment(BusyPolicy::Question tryAgain);
  ~Apartment();
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
};

/// The question as a message box with Retry and Cancel.
bool AskToTryAgain(common::MessageBoxes& boxes);

}  // namespace hostlib::com
