#pragma once

#include "platform/Platform.h"
#include "practice/library/AttachedProgram.h"
#include "practice/library/PracticeObject.h"

namespace practice {

/// The library's global object: fields, dates, conversions, associations.
///
/// Dates: the host's form is DDMMMYY; the day-month-year text is "DD MM YY" (day first, year last,
/// two digits each); a date text is the user's short date. What is no date is a failure.
///
/// Associations: element numbers joined with "," become the host's form, in which runs of three or
/// more are shortened: 2,3,4,7 is 2-4,7. A list that holds anything else stays as it is.
class ScriptGlobalObject : public PracticeObject {
 public:
  /// Told of the program at each Attach; True ends it at once.
  using OnAttach = std::function<bool(const AttachedProgram& program)>;

  ScriptGlobalObject(const platform::Platform& platform, OnAttach onAttach, LastError* lastError);
};

}  // namespace practice
