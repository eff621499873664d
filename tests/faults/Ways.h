#pragma once

#include <string_view>
#include <vector>

#include "hostlib/Interposer.h"

namespace faults {

/// In which way a call fails.
enum class Way {
  kErrorWithNumber,     ///< the library fails and knows its last error
  kErrorWithoutNumber,  ///< the library fails and its last error is 0
  kErrorAndNoReporter,  ///< the same as the first, and the error reporter fails from then on
  kLibraryGone,         ///< from this call on nothing of the library answers
  kLibraryReplaced,  ///< it is gone, too, but another one without a session makes the new objects
  kSessionLost,      ///< from this call on the session carries nothing
  kAnswerLost,       ///< the host takes this entry, its answer and the session are lost
  kEmptyText,
  kRandomText,
  kHugeText,
  kBlanks,
  kWrongType,
  kMissingKey,
  kNoObject,
  kFalseFlag,
  kTrueFlag,
  kHugeNumber,
  kNegativeNumber,
  kEmptyArray,
  kRandomArray,
  kShiftedArray,
};

std::wstring_view NameOf(Way way);
/// The call answers with an error; the others change what it answers.
bool IsError(Way way);

/// A call, or the making of an object, as an undisturbed run makes it.
struct CallSite {
  std::wstring name;  ///< "ParameterBag.GetValue strKeyElement", "new QueueRequest"
  bool isCreation = false;
  bool isSession = false;
  bool isBagValue = false;
  hostlib::Value answer;  ///< objects left out
  bool answersObject = false;
};

/// The ways in which that call can fail; those that would change nothing are left out.
std::vector<Way> WaysOf(const CallSite& site);

/// What the call answers instead of `answer`. For the ways that are no errors.
hostlib::Value Spoilt(Way way, const hostlib::Value& answer);

}  // namespace faults
