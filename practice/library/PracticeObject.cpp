#include "practice/library/PracticeObject.h"

namespace practice {
namespace {

using hostlib::Arguments;
using hostlib::LibraryError;
using hostlib::Value;

constexpr auto kMemberNotFound = static_cast<std::int32_t>(0x80020003);
constexpr auto kBadParameterCount = static_cast<std::int32_t>(0x8002000E);
constexpr auto kNoInterface = static_cast<std::int32_t>(0x80004002);
constexpr int kAnyCount = -1;

/// A further interface of an object; keeps it alive.
class FurtherInterface : public hostlib::Object {
 public:
  FurtherInterface(std::shared_ptr<PracticeObject> owner, int number)
      : owner_(std::move(owner)), number_(number) {}
  std::wstring_view ClassName() const override { return owner_->ClassName(); }
  Value Call(int slot, const Arguments& arguments) override {
    return owner_->CallOn(number_, slot, arguments);
  }
  hostlib::ObjectPtr Interface(int number) override { return owner_->Interface(number); }

 private:
  std::shared_ptr<PracticeObject> owner_;
  int number_;
};

}  // namespace

PracticeObject::PracticeObject(std::wstring_view className, LastError* lastError)
    : className_(className), lastError_(lastError) {}

Value PracticeObject::Call(int slot, const Arguments& arguments) {
  return CallOn(1, slot, arguments);
}

hostlib::ObjectPtr PracticeObject::Interface(int number) {
  if (number == 1) return shared_from_this();
  for (const auto& [place, entry] : operations_) {
    if (place.first == number) {
      return std::make_shared<FurtherInterface>(shared_from_this(), number);
    }
  }
  Fail(kNoInterface, className_ + L" has no interface " + std::to_wstring(number));
}

Value PracticeObject::CallOn(int interfaceNumber, int slot, const Arguments& arguments) {
  if (lastError_ == nullptr) return Dispatch(interfaceNumber, slot, arguments);
  *lastError_ = {};
  try {
    return Dispatch(interfaceNumber, slot, arguments);
  } catch (const LibraryError& error) {
    *lastError_ = {error.number(), error.description()};
    throw;
  } catch (const common::RunTimeError& error) {
    // A value of the wrong kind from outside: the library's failure, in the library's form.
    constexpr auto kTypeMismatch = static_cast<std::int32_t>(0x80020005);
    *lastError_ = {kTypeMismatch, error.description()};
    throw LibraryError(kTypeMismatch, className_, error.description());
  }
}

Value PracticeObject::Dispatch(int interfaceNumber, int slot, const Arguments& arguments) {
  const auto found = operations_.find({interfaceNumber, slot});
  if (found == operations_.end()) {
    Fail(kMemberNotFound, className_ + L" has no operation in slot " + std::to_wstring(slot));
  }
  const Entry& entry = found->second;
  if (entry.arguments != kAnyCount && entry.arguments != static_cast<int>(arguments.size())) {
    Fail(kBadParameterCount,
         className_ + L": wrong number of arguments in slot " + std::to_wstring(slot));
  }
  return entry.body(arguments);
}

void PracticeObject::On(const hostlib::Operation& operation, Body body) {
  operations_[{operation.interfaceNumber, operation.slot}] = {operation.arguments, std::move(body)};
}

void PracticeObject::OnSlot(int slot, Body body) {
  operations_[{1, slot}] = {kAnyCount, std::move(body)};
}

void PracticeObject::Fail(std::int32_t number, std::wstring text) {
  throw LibraryError(number, L"Practice library", std::move(text));
}

}  // namespace practice
