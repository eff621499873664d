#include "errors/ErrorHandler.h"

#include "common/RunTimeError.h"
#include "common/Text.h"

namespace errors {

using common::kTitle;

ErrorHandler::ErrorHandler(hostlib::ScriptErrorReporter& reporter, common::MessageBoxes& boxes,
                           common::RunEnd& runEnd, StopFlag& stop)
    : reporter_(reporter), boxes_(boxes), runEnd_(runEnd), stop_(stop) {}

bool ErrorHandler::Run(const Procedure& procedure, common::Body body) {
  try {
    body();
    return true;
  } catch (const hostlib::LibraryError& error) {
    if (error.number() == hostlib::kTerminalIsElevated) {
      // Only these words tell the agent what to do.
      ShowOwnText(procedure, error.description(), procedure.style);
    } else {
      ShowFailure(procedure, error.description(), true);
    }
  } catch (const common::RunTimeError& error) {
    ShowFailure(procedure, error.description(), false);
  } catch (const std::exception& error) {
    ShowFailure(procedure, common::FromUtf8(error.what()), false);
  }
  // Outside the catch blocks: a run that ends here must not carry the failure along.
  Follow(procedure.after);
  return false;
}

void ErrorHandler::Report(const Procedure& report, std::wstring_view addition) {
  ShowOwnText(report, std::wstring(report.text).append(addition), report.style);
  Follow(report.after);
}

void ErrorHandler::ReportRefusal(const Procedure& procedure) {
  ShowOwnText(procedure, std::wstring(procedure.text).append(common::kRefusalText),
              common::kExclamation);
}

void ErrorHandler::ShowFailure(const Procedure& procedure, const std::wstring& description,
                               bool raisedByLibrary) {
  std::wstring text(procedure.text);
  if (procedure.describes) text += L" Description=" + description;

  const bool endsWithLastError =
      procedure.form == Form::kShowMessage || procedure.form == Form::kShowErrorOrLast;
  if (raisedByLibrary && endsWithLastError) {
    ShowLastError(procedure);
    return;
  }
  if (procedure.form == Form::kReportLastOrError) {
    try {
      if (reporter_.LastErrorNumber() != 0) {
        reporter_.ReportLastError();
        return;
      }
    } catch (const std::exception&) {
      // The reporter is as gone as what failed before it: the own text says what is known.
    }
  }
  ShowOwnText(procedure, text, procedure.style);
}

void ErrorHandler::ShowLastError(const Procedure& procedure) {
  try {
    const std::int32_t number = reporter_.LastErrorNumber();
    const std::wstring text = reporter_.LastErrorText();
    reporter_.ShowMessage(number, kTitle, text);
  } catch (const std::exception&) {
    boxes_.ShowBox(procedure.text, procedure.style, kTitle);
  }
}

void ErrorHandler::ShowOwnText(const Procedure& procedure, std::wstring_view text, int style) {
  const std::int32_t number = common::ErrorNumber(procedure.number);
  try {
    if (procedure.form == Form::kShowMessage) {
      reporter_.ShowMessage(number, kTitle, text);
    } else {
      reporter_.ShowError(number, kTitle, text, style);
    }
  } catch (const std::exception&) {
    boxes_.ShowBox(text, style, kTitle);
  }
}

void ErrorHandler::Follow(After after) {
  if (after == After::kStopsRun) stop_.isSet = true;
  if (after == After::kEndsRun) runEnd_.EndScript();
}

}  // namespace errors
