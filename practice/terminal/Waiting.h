#pragma once

#include <chrono>
#include <functional>

namespace practice::terminal {

/// Lets time pass while the windows and the clients' calls are served. Ends early when the program
/// is to end, and as soon as one of what is served makes it `enough`.
void WaitAlive(
    std::chrono::milliseconds time, const std::function<bool()>& enough = [] { return false; });

}  // namespace practice::terminal
