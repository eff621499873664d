#pragma once

#include <optional>
#include <string>
#include <vector>

namespace faults {

/// A box that is to show the library's last error.
struct LastErrorShown {
  std::wstring says;  ///< what the last error really says
  /// The program reads it and shows it as a message, as the entry procedure and the update run do
  /// before they end the run; otherwise the library shows it, and what follows is the procedure's.
  bool byProgram = false;
};

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
  bool cancelled = false;  ///< the box was answered with Cancel
  std::optional<LastErrorShown> lastError = {};
  int question = 0;         ///< of an OK/Cancel box: its number among the questions
  bool afterFault = false;  ///< it happened after the fault had come
};

using Timeline = std::vector<Event>;

}  // namespace faults
