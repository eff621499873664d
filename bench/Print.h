#pragma once

#include <string>

namespace bench {

/// One line: a figure with its goal, "met" or "MISSED".
void PrintFigure(const std::string& what, double figure, double atMost);

}  // namespace bench
