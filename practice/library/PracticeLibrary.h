#pragma once

#include <memory>

#include "common/MessageBoxes.h"
#include "hostlib/Object.h"
#include "platform/Platform.h"
#include "practice/host/Host.h"
#include "practice/library/AttachedProgram.h"
#include "practice/library/Stores.h"

namespace practice {

class Workshop;

/// The script library over the practice host: builds entry texts from bags and reads the host's
/// displays back into bags. It knows the host by its answers alone. Its objects must not outlive
/// the collaborators; they may outlive the library.
class PracticeLibrary : public hostlib::Library {
 public:
  /// What the library works with.
  struct Collaborators {
    Host& host;
    const platform::Platform& platform;
    Profiles& profiles;
    UserValues& userValues;
    common::MessageBoxes& boxes;  ///< where the error reporter shows its boxes
  };
  struct Options {
    bool attachRefused = false;  ///< Attach answers True: the calling program must end at once
    bool sessionRunning = true;  ///< without it no TerminalSession can be made
  };

  explicit PracticeLibrary(Collaborators collaborators)
      : PracticeLibrary(collaborators, Options()) {}
  PracticeLibrary(Collaborators collaborators, Options options);
  ~PracticeLibrary() override;

  hostlib::ObjectPtr Create(std::wstring_view className) override;

  /// May be changed at any time.
  Options& options();
  /// The program that attached last.
  const AttachedProgram& attached() const;
  /// Objects made and not yet released, bags and lists included.
  int LiveObjects() const;

 private:
  std::shared_ptr<Workshop> workshop_;
};

}  // namespace practice
