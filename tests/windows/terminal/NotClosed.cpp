#include "tests/windows/terminal/NotClosed.h"

#include <cstdio>

namespace terminal {

void TellNotClosed(const char* why) {
  std::fprintf(stderr, "The terminal does not close: %s\n", why);
}

}  // namespace terminal
