#pragma once

#include <string_view>

#include "common/Body.h"
#include "common/EndOfRun.h"
#include "common/MessageBoxes.h"
#include "errors/Procedures.h"
#include "hostlib/ScriptErrorReporter.h"

namespace errors {

/// Set by the reports whose words say that the run cannot go on; looked at between the steps.
struct StopFlag {
  bool isSet = false;
};

/// The one error handler of all procedures, and the one way to report anything through the
/// library's reporter. While the reporter is not there, or fails itself, a plain message box with
/// the same text, style and title stands in.
class ErrorHandler {
 public:
  ErrorHandler(hostlib::ScriptErrorReporter& reporter, common::MessageBoxes& boxes,
               common::RunEnd& runEnd, StopFlag& stop);

  /// Runs a procedure's body. A failure in it is shown in the procedure's form, the rest of the
  /// body is left, and the run goes on, is marked to stop, or ends, as the procedure says. What is
  /// no std::exception passes through: the end of the run, and that there is no library for it.
  /// True when the body completed.
  bool Run(const Procedure& procedure, common::Body body);

  /// Shows a report from within a procedure: its text and `addition`, with its number and style.
  /// Goes on, marks the run to stop, or ends it, as the report says.
  void Report(const Procedure& report, std::wstring_view addition = {});

  /// Shows that the host refused the procedure's transaction: its first line, the standard text,
  /// the exclamation style. Always returns: what follows is the caller's.
  void ReportRefusal(const Procedure& procedure);

 private:
  void ShowFailure(const Procedure& procedure, const std::wstring& description,
                   bool raisedByLibrary);
  void ShowLastError(const Procedure& procedure);
  void ShowOwnText(const Procedure& procedure, std::wstring_view text, int style);
  void Follow(After after);

  hostlib::ScriptErrorReporter& reporter_;
  common::MessageBoxes& boxes_;
  common::RunEnd& runEnd_;
  StopFlag& stop_;
};

}  // namespace errors
