#pragma once

#include <string>
#include <string_view>

#include "errors/ErrorHandler.h"
#include "hostlib/ScriptGlobal.h"
#include "platform/Platform.h"

namespace fares {

class DateHelpers {
 public:
  DateHelpers(hostlib::ScriptGlobal& global, const platform::Platform& platform,
              errors::ErrorHandler& errors);

  /// The host date (DDMMMYY) of the day after a host date; "" when it could not be computed, which
  /// has been reported.
  std::wstring AddDay(std::wstring_view hostDate);

 private:
  hostlib::ScriptGlobal& global_;
  const platform::Platform& platform_;
  errors::ErrorHandler& errors_;
};

}  // namespace fares
