#pragma once

#include "bench/Recording.h"

namespace bench {

/// A library that answers from a recording without doing anything: what a run against it takes is
/// the program's own. Good for one run, which must do what the recorded one did.
class AnsweringLibrary : public hostlib::Library {
 public:
  explicit AnsweringLibrary(const Recording& recording);
  hostlib::ObjectPtr Create(std::wstring_view className) override;

 private:
  struct Answer {
    Step::Kind kind;
    int number;
    bool isObject;
    std::wstring className;
    hostlib::Value value;
  };
  class Answerer;
  Answer& Next(Step::Kind kind, int number);

  std::vector<Answer> answers_;
  std::size_t at_ = 0;
};

}  // namespace bench
