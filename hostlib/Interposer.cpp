#include "hostlib/Interposer.h"

#include <algorithm>

namespace hostlib {
namespace {

class InterposedObject : public Object {
 public:
  InterposedObject(ObjectPtr inner, int interfaceNumber, CallHook& hook)
      : inner_(std::move(inner)), interfaceNumber_(interfaceNumber), hook_(hook) {}
  ~InterposedObject() override {
    if (interfaceNumber_ == 1) hook_.ObjectReleased(inner_->ClassName());
  }

  std::wstring_view ClassName() const override { return inner_->ClassName(); }

  Value Call(int slot, const Arguments& arguments) override {
    const CallInfo call{ClassName(), interfaceNumber_, slot,
                        FindOperation(ClassName(), interfaceNumber_, slot), arguments};
    return hook_.OnCall(call, [&] {
      const bool handsObjects = std::ranges::any_of(arguments, &Value::IsObject);
      if (handsObjects) return Wrapped(inner_->Call(slot, Unwrapped(arguments)));
      return Wrapped(inner_->Call(slot, arguments));
    });
  }

  ObjectPtr Interface(int number) override {
    return std::make_shared<InterposedObject>(inner_->Interface(number), number, hook_);
  }

 private:
  // The library must get its own objects back, not ours.
  static Arguments Unwrapped(const Arguments& arguments) {
    Arguments inner = arguments;
    for (Value& value : inner) {
      const auto* object = value.If<ObjectPtr>();
      if (object == nullptr) continue;
      if (const auto ours = std::dynamic_pointer_cast<InterposedObject>(*object)) {
        value = Value(ours->inner_);
      }
    }
    return inner;
  }

  Value Wrapped(const Value& value) {
    const auto* object = value.If<ObjectPtr>();
    if (object == nullptr || *object == nullptr) return value;
    hook_.ObjectCreated((*object)->ClassName());
    return ObjectPtr(std::make_shared<InterposedObject>(*object, 1, hook_));
  }

  ObjectPtr inner_;
  int interfaceNumber_;
  CallHook& hook_;
};

}  // namespace

ObjectPtr InterposedLibrary::Create(std::wstring_view className) {
  ObjectPtr inner = inner_.Create(className);
  hook_.ObjectCreated(className);
  return std::make_shared<InterposedObject>(std::move(inner), 1, hook_);
}

}  // namespace hostlib
