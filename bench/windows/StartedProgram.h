#pragma once

#include <chrono>
#include <string>
#include <vector>

#include "tests/windows/driver/Program.h"

namespace bench {

using Milliseconds = std::chrono::duration<double, std::milli>;

/// What one start of a program has shown.
struct Start {
  Milliseconds firstWindow{};
  Milliseconds ready{};    ///< its dialog's control takes a click
  double megabytes = 0.0;  ///< private memory, its dialog being there
};

/// Starts the program, waits until the control of its dialog can be clicked, and closes the dialog.
Start StartOnce(const std::wstring& program, int control);

/// The median of each figure of several starts.
Start Median(const std::vector<Start>& starts);

}  // namespace bench
