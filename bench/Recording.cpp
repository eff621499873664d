#include "bench/Recording.h"

#include <algorithm>
#include <stdexcept>

namespace bench {
namespace {

using hostlib::Arguments;
using hostlib::ObjectPtr;
using hostlib::Value;
using hostlib::ValueView;

/// An object of the program's own (the progress form), as it is shown to the library in a replay.
class StandIn : public hostlib::Object {
 public:
  std::wstring_view ClassName() const override { return L"StandIn"; }
  Value Call(int, const Arguments&) override { return {}; }
  ObjectPtr Interface(int) override { throw std::logic_error("a stand-in has one interface"); }
};

class RecordingObject : public hostlib::Object {
 public:
  RecordingObject(ObjectPtr inner, std::size_t place, Recording& recording)
      : inner_(std::move(inner)), place_(place), recording_(recording) {}
  ~RecordingObject() override {
    Step step;
    step.kind = Step::Kind::kRelease;
    step.object = place_;
    recording_.steps.push_back(std::move(step));
  }

  std::wstring_view ClassName() const override { return inner_->ClassName(); }

  Value Call(int slot, const Arguments& arguments) override {
    Step step;
    step.object = place_;
    step.number = slot;
    const Value answer = inner_->Call(slot, Note(arguments, step));
    const auto* object = answer.If<ObjectPtr>();
    if (object == nullptr) {
      step.answer = answer;
      recording_.steps.push_back(std::move(step));
      return answer;
    }
    return NoteMade(*object, std::move(step));
  }

  ObjectPtr Interface(int number) override {
    Step step;
    step.kind = Step::Kind::kInterface;
    step.object = place_;
    step.number = number;
    return NoteMade(inner_->Interface(number), std::move(step));
  }

 private:
  // What the library gets: its own objects, not ours.
  std::vector<ValueView> Note(const Arguments& arguments, Step& step) const {
    std::vector<ValueView> given(arguments.begin(), arguments.end());
    for (const ValueView& argument : arguments) step.arguments.emplace_back(argument);
    for (std::size_t i = 0; i < given.size(); ++i) {
      const auto* object = given[i].If<ObjectPtr>();
      if (object == nullptr) continue;
      if (const auto* ours = dynamic_cast<const RecordingObject*>(object->get())) {
        step.objects.emplace_back(i, ours->place_);
        given[i] = ours->inner_;
        step.arguments[i] = Value();
      } else {
        step.arguments[i] = ObjectPtr(std::make_shared<StandIn>());
      }
    }
    return given;
  }

  ObjectPtr NoteMade(ObjectPtr made, Step step) {
    step.made = recording_.objects++;
    step.className = made->ClassName();
    recording_.steps.push_back(std::move(step));
    return std::make_shared<RecordingObject>(std::move(made), recording_.steps.back().made,
                                             recording_);
  }

  ObjectPtr inner_;
  std::size_t place_;
  Recording& recording_;
};

}  // namespace

std::size_t Recording::CountCalls() const {
  return static_cast<std::size_t>(std::ranges::count_if(
      steps, [](const Step& step) { return step.kind == Step::Kind::kCall; }));
}

ObjectPtr RecordingLibrary::Create(std::wstring_view className) {
  ObjectPtr made = inner_.Create(className);
  Step step;
  step.kind = Step::Kind::kCreate;
  step.made = recording_.objects++;
  step.className = className;
  recording_.steps.push_back(std::move(step));
  return std::make_shared<RecordingObject>(std::move(made), recording_.steps.back().made,
                                           recording_);
}

Replay::Replay(Recording recording)
    : recording_(std::move(recording)), objects_(recording_.objects) {
  for (const Step& step : recording_.steps) {
    auto& lent = arguments_.emplace_back(step.arguments.begin(), step.arguments.end());
    for (const auto& [argument, object] : step.objects) lent[argument] = objects_[object];
  }
}

void Replay::Run(hostlib::Library& library) {
  for (std::size_t i = 0; i < recording_.steps.size(); ++i) {
    const Step& step = recording_.steps[i];
    switch (step.kind) {
      case Step::Kind::kCreate:
        objects_[step.made] = library.Create(step.className);
        break;
      case Step::Kind::kInterface:
        objects_[step.made] = objects_[step.object]->Interface(step.number);
        break;
      case Step::Kind::kRelease:
        objects_[step.object] = nullptr;
        break;
      case Step::Kind::kCall: {
        const Value answer = objects_[step.object]->Call(step.number, arguments_[i]);
        if (step.made != Step::kNone) objects_[step.made] = answer.AsObject();
        break;
      }
    }
  }
}

}  // namespace bench
