#pragma once

#include <string>
#include <vector>

#include "tests/windows/driver/Program.h"

namespace driver {

/// What a box says, on its frame and inside; whether it has an icon. Which one can not be seen from
/// another process.
struct SeenBox {
  std::wstring text;
  bool hasIcon = true;
  std::wstring title = L"  PTA Script ";
  bool operator==(const SeenBox&) const = default;
};
/// For the words of a test that fails.
void PrintTo(const SeenBox& box, std::ostream* out);

/// Answers the box with OK.
void PressOk(HWND box);
/// Answers all boxes with OK until the program ends, within 5 seconds of the last answer, and gives
/// them in their order.
std::vector<SeenBox> BoxesToTheEnd(const Program& program);
/// No process of this program runs any more, or soon.
void ExpectNothingRuns(const std::wstring& name);

}  // namespace driver
