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
  kShowPrinted,
  kShowBackOffice,
  kShowQueues,
  kRefuseLater = 200,    ///< and the number of the entry, counted from now
  kFirstBooking = 1000,  ///< and one a booking from there on
};

/// Of the entries from now on, the last that can be chosen to be refused: longer than any run.
inline constexpr int kLastRefusable = 40;

/// The command for the one that is `place` behind a first one.
constexpr Command Behind(Command first, int place) {
  return static_cast<Command>(static_cast<int>(first) + place);
}

/// The terminal's menu bar, with one line a booking.
HMENU NewTerminalMenu(const std::vector<std::wstring>& bookings);

}  // namespace practice::terminal
