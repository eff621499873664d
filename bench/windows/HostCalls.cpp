#include "bench/windows/HostCalls.h"

#include <algorithm>

#include "app/Program.h"
#include "bench/ReadyAgent.h"
#include "platform/win32/WindowsPlatform.h"

namespace bench {
namespace {

/// Closes the dialog as soon as it is there.
class ClosingAgent : public ReadyAgent {
 public:
  ClosingAgent() : ReadyAgent(1) {}
  void Show(ui::Form& form) override {
    ReadyAgent::Show(form);
    shown_ = &form;
  }
  void Run() override { shown_->OnCloseBox(); }

 private:
  ui::Form* shown_ = nullptr;
};

}  // namespace

HostCalls::HostCalls(hostlib::Library& library) : library_(library) {
  ClosingAgent agent;
  RecordingLibrary recorded(library, recording_);
  app::RunProgram(recorded, agent, platform::WindowsPlatform());
}

Milliseconds HostCalls::Measure() {
  const auto begin = std::chrono::steady_clock::now();
  Replay(recording_, library_);
  times_.emplace_back(std::chrono::steady_clock::now() - begin);
  return times_.back();
}

Milliseconds HostCalls::Median() const {
  std::vector<Milliseconds> sorted = times_;
  const auto middle = sorted.begin() + static_cast<std::ptrdiff_t>(sorted.size() / 2);
  std::nth_element(sorted.begin(), middle, sorted.end());
  return *middle;
}

}  // namespace bench
