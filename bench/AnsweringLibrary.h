#pragma once

#include "bench/Answers.h"

namespace bench {

/// A library that gives recorded answers without doing anything: what a run against it takes is
/// the program's own. Good for one run, which must do what the recorded one did.
class AnsweringLibrary : public hostlib::Library {
 public:
  explicit AnsweringLibrary(const Answers& answers) : answers_(answers) {}
  hostlib::ObjectPtr Create(std::wstring_view className) override;

 private:
  class Answerer;
  const Answers::Answer& Next(Step::Kind kind, int number);

  const Answers& answers_;
  std::size_t at_ = 0;
};

}  // namespace bench
