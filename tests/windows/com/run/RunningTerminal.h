#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "hostlib/Recorder.h"
#include "hostlib/com/Apartment.h"
#include "hostlib/com/ComLibrary.h"
#include "platform/FixedPlatform.h"
#include "practice/rehearsal/Rehearsal.h"
#include "tests/windows/terminal/Client.h"
#include "tests/windows/terminal/Terminal.h"

namespace com_run {

/// A running practice terminal with its window, and the program's link to it.
class RunningTerminal : public testing::Test {
 protected:
  RunningTerminal();
  ~RunningTerminal() override;

  void Start();
  void Load(const std::wstring& booking);
  std::wstring PnrText();

  /// The program's whole run over the link, with the scene's booking, INI file and agent.
  practice::RehearsalOutcome Run(const practice::RehearsalScene& scene, hostlib::CallHook& hook);

  hostlib::com::Apartment apartment_{[] { return false; }};
  hostlib::com::InstalledObjects installed_;
  hostlib::com::ComLibrary library_{installed_};
  std::unique_ptr<terminal::Process> terminal_;
  platform::FixedPlatform platform_;

 private:
  void WriteIni(const std::wstring& ini);
  void StoreOffice(const practice::RehearsalScene& scene);
};

}  // namespace com_run
