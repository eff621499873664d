#include "practice/library/AttachedProgram.h"

#include "hostlib/Object.h"

namespace practice {
namespace {

using hostlib::Value;
using hostlib::ValueView;

// Programs attach with what they have: objects that answer nothing are no reason to refuse them.
Value Property(const ValueView& object, int slot) {
  const auto* asked = object.If<hostlib::ObjectPtr>();
  if (asked == nullptr || *asked == nullptr) return {};
  try {
    return (*asked)->Call(slot, {});
  } catch (const common::RunTimeError&) {
    return {};
  }
}

std::wstring TextIn(const Value& value) {
  const auto* text = value.If<std::wstring>();
  return text == nullptr ? std::wstring() : *text;
}

std::int32_t NumberIn(const Value& value) {
  const bool isNumber = value.If<std::int16_t>() != nullptr || value.If<std::int32_t>() != nullptr;
  return isNumber ? value.Long() : 0;
}

}  // namespace

AttachedProgram ReadAttachedProgram(const ValueView& progressForm, const ValueView& application) {
  return {TextIn(Property(progressForm, 7)), TextIn(Property(progressForm, 8)),
          TextIn(Property(application, 7)), TextIn(Property(application, 8)),
          NumberIn(Property(application, 9))};
}

}  // namespace practice
