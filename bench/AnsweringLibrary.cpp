#include "bench/AnsweringLibrary.h"

#include <stdexcept>

namespace bench {

using hostlib::Arguments;
using hostlib::ObjectPtr;
using hostlib::Value;

class AnsweringLibrary::Answerer : public hostlib::Object {
 public:
  Answerer(AnsweringLibrary& library, std::wstring_view className)
      : library_(library), className_(className) {}

  std::wstring_view ClassName() const override { return className_; }

  Value Call(int slot, const Arguments&) override {
    const Answers::Answer& answer = library_.Next(Step::Kind::kCall, slot);
    if (answer.isObject) return ObjectPtr(std::make_shared<Answerer>(library_, answer.className));
    return answer.value;
  }

  ObjectPtr Interface(int number) override {
    return std::make_shared<Answerer>(library_,
                                      library_.Next(Step::Kind::kInterface, number).className);
  }

 private:
  AnsweringLibrary& library_;
  std::wstring_view className_;
};

ObjectPtr AnsweringLibrary::Create(std::wstring_view) {
  return std::make_shared<Answerer>(*this, Next(Step::Kind::kCreate, 0).className);
}

const Answers::Answer& AnsweringLibrary::Next(Step::Kind kind, int number) {
  if (at_ == answers_.size() || answers_[at_].kind != kind || answers_[at_].number != number) {
    throw std::logic_error("the run does not do what the recorded one did");
  }
  return answers_[at_++];
}

}  // namespace bench
