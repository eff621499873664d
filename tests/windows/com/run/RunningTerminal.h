#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "common/Text.h"
#include "hostlib/Recorder.h"
#include "hostlib/com/Apartment.h"
#include "hostlib/com/ComLibrary.h"
#include "platform/FixedPlatform.h"
#include "platform/win32/WindowsPlatform.h"
#include "practice/rehearsal/Rehearsal.h"
#include "tests/windows/terminal/Client.h"
#include "tests/windows/terminal/PracticeTerminal.h"

namespace com_run {

/// Runs the test's body; a failure of the link fails the test with its words.
template <typename Body>
void Telling(Body body) {
  try {
    body();
  } catch (const hostlib::LibraryError& error) {
    ADD_FAILURE() << common::ToUtf8(error.object() + L"." + error.operation() + L": " +
                                    error.description());
  }
}

/// A fixed machine that writes dates as this one: the terminal does.
class FixedDay : public platform::FixedPlatform {
 public:
  std::wstring ShortDateText(std::chrono::year_month_day date) const override {
    return machine_.ShortDateText(date);
  }
  std::optional<std::chrono::year_month_day> ReadShortDate(std::wstring_view text) const override {
    return machine_.ReadShortDate(text);
  }

 private:
  platform::WindowsPlatform machine_;
};

/// A running practice terminal with its window, and the program's link to it.
class RunningTerminal : public testing::Test {
 protected:
  RunningTerminal();
  ~RunningTerminal() override;

  /// A new one; there is only one at a time.
  void Start();

  /// The scene's booking, INI file and stored office.
  void Set(const practice::RehearsalScene& scene);
  /// The program's whole run over the link, with the scene's booking, INI file and agent.
  practice::RehearsalOutcome Run(const practice::RehearsalScene& scene, hostlib::CallHook& hook);

  hostlib::com::Apartment apartment_{[] { return false; }};
  hostlib::com::InstalledObjects installed_;
  hostlib::com::ComLibrary library_{installed_};
  std::unique_ptr<terminal::PracticeTerminal> terminal_;
  FixedDay platform_;

 private:
  /// Ends the terminal, and waits for the end of those that the system started to serve objects:
  /// they end by themselves, and the next one's clients might still be sent to them. False when one
  /// does not end.
  bool End();
  void WriteIni(const std::wstring& ini);
  void StoreOffice(const practice::RehearsalScene& scene);
};

}  // namespace com_run
