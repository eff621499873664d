#pragma once

#include <functional>
#include <map>
#include <string>

#include "common/RunTimeError.h"

namespace practice {

/// The session to the host is gone: the entry may or may not have been taken.
class SessionLost : public common::RunTimeError {
 public:
  SessionLost() : RunTimeError(L"The session to the host was lost") {}
};

/// How the host is to misbehave. Entries are counted from 1; the lines of a booking do not count.
struct Faults {
  std::map<int, std::wstring> refusals;  ///< entries refused with this reason, not looked at
  std::map<int, std::wstring> garbage;   ///< entries taken, but answered with this
  int dropFrom = 0;                      ///< from this entry on the session is lost; 0: never
  bool dropAnswerOnly = false;           ///< the first lost entry is taken, its answer is lost
  std::function<void(int entry)> slow;   ///< called before every entry; may take its time
};

}  // namespace practice
