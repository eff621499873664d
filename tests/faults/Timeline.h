#pragma once

#include <string>
#include <vector>

namespace faults {

/// One thing that happened in a run, as it looks from the program's side.
struct Event {
  enum class Kind {
    kEntry,   ///< an entry was handed to the session; `text` is the entry
    kBox,     ///< a box stood on the screen
    kCancel,  ///< the agent cancelled the form `text`
    kClosed,  ///< the form `text` left the screen
  };
  /// Of an entry: what the program learned of it.
  enum class Outcome { kAnswered, kBrokeOff };

  Kind kind;
  std::wstring text;
  Outcome outcome = Outcome::kAnswered;
  int style = 0;
  std::wstring title = {};
  bool cancelled = false;   ///< the box was answered with Cancel
  bool lastError = false;   ///< the box shows the library's own last error
  int question = 0;         ///< of an OK/Cancel box: its number among the questions
  bool afterFault = false;  ///< it happened after the fault had come
};

using Timeline = std::vector<Event>;

}  // namespace faults
