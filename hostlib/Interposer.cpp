#include "hostlib/Interposer.h"

#include <algorithm>

namespace hostlib {
namespace {

/// The library's object, or, with a number, an interface of it that was asked for. That one is got
/// from the library only inside a call, so that the hook sees when it cannot be had.
class InterposedObject : public Object {
 public:
  InterposedObject(ObjectPtr inner, CallHook& hook) : inner_(std::move(inner)), hook_(hook) {}
  InterposedObject(ObjectPtr inner, int interfaceNumber, CallHook& hook)
      : inner_(std::move(inner)),
        interfaceNumber_(interfaceNumber),
        isObject_(false),
        hook_(hook) {}
  ~InterposedObject() override {
    if (isObject_) hook_.ObjectReleased(inner_->ClassName());
  }

  std::wstring_view ClassName() const override { return inner_->ClassName(); }

  Value Call(int slot, const Arguments& arguments) override {
    const CallInfo call{ClassName(), interfaceNumber_, slot,
                        FindOperation(ClassName(), interfaceNumber_, slot), arguments};
    return hook_.OnCall(call, [&] {
      const bool handsObjects = std::ranges::any_of(arguments, &ValueView::IsObject);
      const ObjectPtr target = isObject_ ? inner_ : inner_->Interface(interfaceNumber_);
      if (handsObjects) return Wrapped(target->Call(slot, Unwrapped(arguments)));
      return Wrapped(target->Call(slot, arguments));
    });
  }

  ObjectPtr Interface(int number) override {
    return std::make_shared<InterposedObject>(inner_, number, hook_);
  }

 private:
  // The library must get its own objects back, not ours.
  static std::vector<ValueView> Unwrapped(const Arguments& arguments) {
    std::vector<ValueView> inner(arguments.begin(), arguments.end());
    for (ValueView& value : inner) {
      const auto* object = value.If<ObjectPtr>();
      if (object == nullptr) continue;
      if (const auto* ours = dynamic_cast<const InterposedObject*>(object->get())) {
        value = ours->inner_;
      }
    }
    return inner;
  }

  Value Wrapped(const Value& value) {
    const auto* object = value.If<ObjectPtr>();
    if (object == nullptr || *object == nullptr) return value;
    hook_.ObjectCreated((*object)->ClassName());
    return ObjectPtr(std::make_shared<InterposedObject>(*object, hook_));
  }

  ObjectPtr inner_;
  int interfaceNumber_ = 1;
  bool isObject_ = true;
  CallHook& hook_;
};

}  // namespace

ObjectPtr InterposedLibrary::Create(std::wstring_view className) {
  ObjectPtr inner = inner_.Create(className);
  hook_.ObjectCreated(className);
  return std::make_shared<InterposedObject>(std::move(inner), hook_);
}

}  // namespace hostlib
