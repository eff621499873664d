#include <gtest/gtest.h>

#include "tests/windows/terminal/NotClosed.h"

namespace terminal {

void TellNotClosed(const char* why) { ADD_FAILURE() << "the terminal does not close: " << why; }

}  // namespace terminal
