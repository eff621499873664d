#include "bench/Answers.h"

#include <functional>
#include <utility>

namespace bench {

Answers::Answers(const Recording& recording) {
  for (const Step& step : recording.steps) {
    if (step.kind == Step::Kind::kRelease) continue;
    Answer answer{step.kind, step.number, step.made != Step::kNone, step.className, step.answer};
    given_.push_back(&*different_.insert(std::move(answer)).first);
  }
}

// Texts are what differs most; what else does is left to the comparison.
std::size_t Answers::Hash::operator()(const Answer& answer) const {
  const auto* text = answer.value.If<std::wstring>();
  return std::hash<std::wstring>()(text != nullptr ? *text : answer.className);
}

}  // namespace bench
