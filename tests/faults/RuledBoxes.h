#pragma once

#include <optional>

#include "tests/faults/Timeline.h"

namespace faults {

/// What the rules say of a box that stood on the screen.
struct BoxRule {
  bool endsRun;  ///< nothing may be sent after it
};

/// Nothing when no rule knows a box with this text, style and title.
std::optional<BoxRule> RuleOf(const Event& box);

}  // namespace faults
