#include "tests/windows/com/run/AgentAtTheTerminal.h"

#include "tests/windows/driver/Driver.h"

namespace com_run {

const std::vector<SeenBox>& AgentAtTheTerminal::Leave() {
  leaving_ = true;
  if (thread_.joinable()) thread_.join();
  return seen_;
}

void AgentAtTheTerminal::Work() {
  while (!leaving_) {
    HWND box = nullptr;
    const auto isThere = [&] {
      box = FindWindowW(L"#32770", nullptr);
      return box != nullptr && IsWindowVisible(box) && !driver::BoxText(box).empty();
    };
    driver::Holds([&] { return leaving_ || isThere(); });
    if (leaving_ || !isThere()) continue;
    seen_.push_back({driver::BoxIcon(box) != nullptr, driver::TextOf(box), driver::BoxText(box)});
    PostMessageW(box, WM_COMMAND, IDOK, 0);
    driver::Holds([box] { return !IsWindow(box); });
  }
}

}  // namespace com_run
