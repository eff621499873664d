#pragma once

#include <utility>

#include "hostlib/Object.h"

namespace bench {

/// One thing that a program did with a library. Objects are known by their place, in the order in
/// which they were made.
struct Step {
  enum class Kind { kCreate, kInterface, kCall, kRelease };
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  Kind kind = Kind::kCall;
  std::size_t object = kNone;  ///< acted on; with kCreate the library itself
  std::size_t made = kNone;    ///< the object that came of it
  std::wstring className;      ///< of what was made
  int number = 0;              ///< slot or interface
  std::vector<hostlib::Value> arguments;
  std::vector<std::pair<std::size_t, std::size_t>> objects;  ///< argument and the object in it
  hostlib::Value answer;                                     ///< unless it is an object
};

struct Recording {
  std::vector<Step> steps;
  std::size_t objects = 0;

  /// How many of the steps are calls of an operation.
  std::size_t CountCalls() const;
};

/// A library that writes down what is done with another one.
class RecordingLibrary : public hostlib::Library {
 public:
  RecordingLibrary(hostlib::Library& inner, Recording& recording)
      : inner_(inner), recording_(recording) {}
  hostlib::ObjectPtr Create(std::wstring_view className) override;

 private:
  hostlib::Library& inner_;
  Recording& recording_;
};

/// A recording, ready to be replayed any number of times.
class Replay {
 public:
  explicit Replay(Recording recording);
  Replay(const Replay&) = delete;
  Replay& operator=(const Replay&) = delete;

  /// Does with a library what was done with the recorded one, and nothing else.
  void Run(hostlib::Library& library);

  const Recording& recording() const { return recording_; }

 private:
  const Recording recording_;
  /// By their place; null before they are made and after they are released.
  std::vector<hostlib::ObjectPtr> objects_;
  /// What each step's call is given: the recording's values, and the objects above.
  std::vector<std::vector<hostlib::ValueView>> arguments_;
};

}  // namespace bench
