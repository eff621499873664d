#pragma once

#include "errors/ErrorHandler.h"
#include "hostlib/Recorder.h"
#include "hostlib/ScriptGlobal.h"
#include "hostlib/TerminalSession.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/ScriptedLibrary.h"

namespace support {

/// Thrown in place of the end of the run, so that a test sees which end it was.
struct EndedByEndScript {};
struct EndedAtOnce {};

class ThrowingRunEnd : public common::RunEnd {
 public:
  void UnloadForms() override { ++unloads; }
  [[noreturn]] void EndScript() override { throw EndedByEndScript(); }
  [[noreturn]] void EndAtOnce() override { throw EndedAtOnce(); }

  int unloads = 0;  ///< how often the forms were unloaded after the last step
};

/// What nearly every room is built on, for tests of one room: a scripted library behind a recorder,
/// a session and a reporter that are there, a desktop without windows. The reporter's boxes are in
/// the transcript as ScriptErrorReporter calls; the program's own boxes in desktop.log.
struct RoomBench {
  RoomBench() {
    using namespace hostlib::operations::script_error_reporter;
    scripted.On(kLastErrorNumber,
                [this](const hostlib::Arguments&) { return scripted.lastError.number; });
    scripted.On(kLastErrorText,
                [this](const hostlib::Arguments&) { return scripted.lastError.text; });
    scripted.Answer(kReportLastError, {});
    scripted.Answer(kShowMessage, {});
    scripted.Answer(kShowError, {});
    reporter.Create(library);
    session.Connect(library);
  }

  /// The calls so far, one line each, and a fresh start.
  std::vector<std::wstring> TakeCalls() {
    std::vector<std::wstring> lines = recorder.lines();
    recorder.Clear();
    return lines;
  }

  ScriptedLibrary scripted;
  hostlib::Recorder recorder;
  hostlib::InterposedLibrary library{scripted, recorder};
  hostlib::ScriptGlobal global{library};
  hostlib::ScriptErrorReporter reporter;
  hostlib::TerminalSession session;
  FakeDesktop desktop;
  ThrowingRunEnd runEnd;
  errors::StopFlag stop;
  errors::ErrorHandler errors{reporter, desktop, runEnd, stop};
};

}  // namespace support
