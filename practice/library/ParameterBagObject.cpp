#include "practice/library/ParameterBagObject.h"

namespace practice {

using hostlib::Arguments;
using hostlib::Value;

ParameterBagObject::ParameterBagObject(LastError* lastError)
    : PracticeObject(hostlib::operations::kBag, lastError) {
  using namespace hostlib::operations::parameter_bag;
  On(kSetValue, [this](const Arguments& arguments) {
    Set(arguments[0].Text(), Value(arguments[1]));
    return Value();
  });
  On(kGetValue, [this](const Arguments& arguments) { return Get(arguments[0].Text()); });
}

void ParameterBagObject::Set(std::wstring_view key, Value value) {
  values_.insert_or_assign(std::wstring(key), std::move(value));
}

Value ParameterBagObject::Get(std::wstring_view key) const {
  const auto found = values_.find(key);
  return found == values_.end() ? Value() : found->second;
}

ListObject::ListObject(Value array, LastError* lastError)
    : PracticeObject(hostlib::operations::kList, lastError) {
  OnSlot(hostlib::kDefaultMember, [array = std::move(array)](const Arguments&) { return array; });
}

ParameterBagObject& BagIn(const hostlib::ValueView& argument) {
  const auto bag = std::dynamic_pointer_cast<ParameterBagObject>(argument.AsObject());
  if (bag == nullptr) {
    throw hostlib::LibraryError(static_cast<std::int32_t>(0x80020005), L"Practice library",
                                L"A parameter bag is wanted");
  }
  return *bag;
}

}  // namespace practice
