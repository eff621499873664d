#pragma once

#include <unordered_set>
#include <vector>

#include "bench/Recording.h"

namespace bench {

/// What a recorded run was answered, in its order. Equal answers are kept once: a whole list of
/// them would take more of a processor's memories than a library that makes each when it is asked.
class Answers {
 public:
  struct Answer {
    Step::Kind kind;
    int number;              ///< slot or interface
    bool isObject;           ///< one of class className instead of the value
    std::wstring className;  ///< of what was made
    hostlib::Value value;
    bool operator==(const Answer&) const = default;
  };

  explicit Answers(const Recording& recording);
  Answers(const Answers&) = delete;
  Answers& operator=(const Answers&) = delete;

  std::size_t size() const { return given_.size(); }
  const Answer& operator[](std::size_t index) const { return *given_[index]; }

 private:
  struct Hash {
    std::size_t operator()(const Answer& answer) const;
  };

  std::unordered_set<Answer, Hash> different_;
  std::vector<const Answer*> given_;
};

}  // namespace bench
