#pragma once

#include <chrono>

namespace practice::terminal {

/// Lets time pass while the windows and the clients' calls are served. Ends early when the program
/// is to end.
void WaitAlive(std::chrono::milliseconds time);

}  // namespace practice::terminal
