#include "tests/windows/program/Boxes.h"

#include <gtest/gtest.h>

#include <ostream>

#include "common/LineFeeds.h"
#include "tests/windows/driver/Driver.h"
#include "tests/windows/terminal/Terminal.h"

namespace driver {

void PrintTo(const SeenBox& box, std::ostream* out) {
  *out << (box.hasIcon ? "(!) " : "") << '"' << ToUtf8(box.title) << "\" \"" << ToUtf8(box.text)
       << '"';
}

void PressOk(HWND box) {
  Press(OkButton(box), VK_RETURN);
  WaitUntil(L"the box is gone", [box] { return !IsWindow(box); });
}

std::vector<SeenBox> BoxesToTheEnd(const Program& program) {
  using Clock = std::chrono::steady_clock;
  std::vector<SeenBox> boxes;
  Clock::time_point answered;
  for (;;) {
    HWND box = nullptr;
    WaitUntil(L"the program shows a box or ends", [&] {
      box = program.Box();
      return box != nullptr || !program.IsRunning();
    });
    if (box == nullptr) {
      if (!boxes.empty()) {
        EXPECT_LT(Clock::now() - answered, std::chrono::seconds(5));
      }
      return boxes;
    }
    boxes.push_back({common::WithLineFeeds(BoxText(box)), BoxIcon(box) != nullptr, TextOf(box)});
    answered = Clock::now();
    PressOk(box);
  }
}

void ExpectNothingRuns(const std::wstring& name) {
  EXPECT_TRUE(Holds([&] { return terminal::Running(name) == 0; })) << ToUtf8(name);
}

}  // namespace driver
