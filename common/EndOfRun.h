#pragma once

namespace common {

/// Thrown to end the run from anywhere, through any number of modal dialogs. Deliberately no
/// std::exception: no error handler catches it, only the composition root does.
struct EndOfRun {};

/// The end of the run as the rooms see it.
class RunEnd {
 public:
  virtual ~RunEnd() = default;

  /// The end after the run's last step: unloads the forms. The program ends by itself when no
  /// window is left, so that nothing has to be thrown through the dialog that is still being
  /// served.
  virtual void UnloadForms() = 0;
  /// Unloads the forms and ends the run wherever it stands. Does not return.
  [[noreturn]] virtual void EndScript() = 0;
  /// Ends the program at once, without the end procedure; what is held is still released.
  [[noreturn]] virtual void EndAtOnce() = 0;
};

}  // namespace common
