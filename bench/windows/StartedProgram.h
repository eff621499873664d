#pragma once

#include <chrono>
#include <string>

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

/// The fastest of several starts, and the least memory.
Start Least(const Start& one, const Start& other);

}  // namespace bench
