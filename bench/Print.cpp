#include "bench/Print.h"

#include <cstdio>

namespace bench {

void PrintFigure(const std::string& what, double figure, double atMost) {
  std::printf("  %-52s %7.2f  (at most %.2f: %s)\n", what.c_str(), figure, atMost,
              figure <= atMost ? "met" : "MISSED");
}

}  // namespace bench
