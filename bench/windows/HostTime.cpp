#include "bench/windows/HostTime.h"

#include <algorithm>

#include "app/Program.h"
#include "bench/ReadyAgent.h"
#include "bench/Recording.h"
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

HostTime MeasureHostTime(hostlib::Library& library, int times) {
  Recording recording;
  ClosingAgent agent;
  RecordingLibrary recorded(library, recording);
  app::RunProgram(recorded, agent, platform::WindowsPlatform());
  HostTime host{recording.CountCalls(), Milliseconds::max()};
  for (int i = 0; i < times; ++i) {
    const auto begin = std::chrono::steady_clock::now();
    Replay(recording, library);
    host.time = std::min(host.time, Milliseconds(std::chrono::steady_clock::now() - begin));
  }
  return host;
}

}  // namespace bench
