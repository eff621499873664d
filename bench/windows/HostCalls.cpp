#include "bench/windows/HostCalls.h"

#include "app/Program.h"
#include "bench/ReadyAgent.h"
#include "bench/windows/Median.h"
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

Recording RunUpToItsDialog(hostlib::Library& library) {
  Recording recording;
  ClosingAgent agent;
  RecordingLibrary recorded(library, recording);
  app::RunProgram(recorded, agent, platform::WindowsPlatform());
  return recording;
}

}  // namespace

HostCalls::HostCalls(hostlib::Library& library)
    : library_(library), replay_(RunUpToItsDialog(library)) {}

Milliseconds HostCalls::Measure() {
  const auto begin = std::chrono::steady_clock::now();
  replay_.Run(library_);
  times_.emplace_back(std::chrono::steady_clock::now() - begin);
  return times_.back();
}

Milliseconds HostCalls::Median() const { return MedianOf(times_); }

}  // namespace bench
