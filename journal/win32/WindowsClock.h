#pragma once

#include "journal/Storage.h"

namespace journal {

/// The machine's clock, in the user's time zone.
class WindowsClock : public Clock {
 public:
  Moment Now() const override;
  std::chrono::milliseconds Ticks() const override;
};

}  // namespace journal
