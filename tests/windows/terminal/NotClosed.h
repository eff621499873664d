#pragma once

namespace terminal {

/// Tells that a terminal did not close when its owner went. A test fails by it (TestNotClosed.cpp);
/// any other program writes it down (NotClosed.cpp).
void TellNotClosed(const char* why);

}  // namespace terminal
