#pragma once

#include "common/Literal.h"
#include "hostlib/Facade.h"

namespace hostlib {

/// A keyed bag of variants; a fresh one for every request. Keys are case-exact. A key that was
/// never set gives an empty value.
class ParameterBag : public Facade {
 public:
  explicit ParameterBag(Library& library) : Facade(library.Create(operations::kBag)) {}
  /// A bag that the library made.
  explicit ParameterBag(const Value& answer) : Facade(answer.AsObject()) {}

  void SetValue(common::Literal key, const ValueView& value) {
    Call(operations::parameter_bag::kSetValue, key, value);
  }
  Value GetValue(common::Literal key) const {
    return Call(operations::parameter_bag::kGetValue, key);
  }
};

}  // namespace hostlib
