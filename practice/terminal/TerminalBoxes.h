#pragma once

#include "common/MessageBoxes.h"

namespace practice::terminal {

/// The boxes that the library shows for a script. They belong to no window: the terminal stays
/// usable under them.
class TerminalBoxes : public common::MessageBoxes {
 public:
  int ShowBox(std::wstring_view text, int style, std::wstring_view title) override;
};

}  // namespace practice::terminal
