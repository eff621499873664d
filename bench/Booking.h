#pragma once

#include <string>

namespace bench {

/// How much of everything a booking has.
struct Size {
  int names = 1;
  int tsts = 1;
  int remarks = 0;
  bool tstEachName = false;  ///< a TST for each name in turn, else every TST for all names
  bool taxEachTST = false;   ///< every TST has a tax code of its own besides the usual two
};

struct Booking {
  static constexpr int kAll = 100;

  std::wstring entries;  ///< that build the PNR, one a line
  std::wstring ini;
  int chosen = kAll;  ///< how many of the listed TSTs the agent chooses
};

/// practice/pnrs/ordinary, with its own INI file.
Booking OrdinaryBooking();

/// A booking of this size, made by code: the ordinary one, but for the counts.
Booking BookingOf(const Size& size);

/// 99 names, 100 TSTs, and as many remarks as make the PNR full when the run has written its own.
Size LargestSize();

}  // namespace bench
