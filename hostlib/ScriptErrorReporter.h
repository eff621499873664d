#pragma once

#include "hostlib/Facade.h"

namespace hostlib {

/// The library's error reporter. Not there until Create, nor after Release: its operations then
/// throw LibraryError.
class ScriptErrorReporter : public Facade {
 public:
  ScriptErrorReporter() = default;

  void Create(Library& library) {
    object_ = library.Create(operations::script_error_reporter::kClass);
  }
  void Release() { object_ = nullptr; }
  bool IsThere() const { return object_ != nullptr; }

  std::wstring LastErrorText() {
    return Call(operations::script_error_reporter::kLastErrorText).Text();
  }
  /// 0 when no library call failed.
  std::int32_t LastErrorNumber() {
    return Call(operations::script_error_reporter::kLastErrorNumber).Long();
  }
  /// Shows the library's own last error.
  void ReportLastError() { Call(operations::script_error_reporter::kReportLastError); }
  void ShowMessage(std::int32_t number, std::wstring_view title, std::wstring_view text) {
    Call(operations::script_error_reporter::kShowMessage, number, title, text);
  }
  void ShowError(std::int32_t number, std::wstring_view title, std::wstring_view text, int style) {
    Call(operations::script_error_reporter::kShowError, number, title, text, style);
  }
};

}  // namespace hostlib
