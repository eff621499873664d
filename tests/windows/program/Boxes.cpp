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
  std::vector<SeenBox> boxes;
  for (;;) {
    HWND box = nullptr;
    WaitUntil(L"the program shows a box or ends", [&] {
      box = program.Box();
      return box != nullptr || !program.IsRunning();
    });
    if (box == nullptr) return boxes;
    boxes.push_back({common::WithLineFeeds(BoxText(box)), BoxIcon(box) != nullptr, TextOf(box)});
    PressOk(box);
  }
}

void ExpectNothingRuns(const std::wstring& name) {
  EXPECT_TRUE(Holds([&] { return terminal::Running(name) == 0; }, std::chrono::seconds(5)))
      << ToUtf8(name);
}

}  // namespace driver
