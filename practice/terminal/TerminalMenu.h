#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace practice::terminal {

/// What the menus ask for.
enum class Command : WORD {
  kOpenFile = 100,
  kRefuseNext,
  kGarbleNext,
  kLoseEntry,
  kLoseAnswer,
  kSlow,
  kIssueDocument,
  kBehaveWell,
  kCopyTranscript,
  kEnd,
  kAbout,
  kFirstBooking = 1000,  ///< and one a booking from there on
};

/// The terminal's menu bar, with one line a booking.
HMENU NewTerminalMenu(const std::vector<std::wstring>& bookings);

}  // namespace practice::terminal
